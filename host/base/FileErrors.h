#pragma once

#include <filesystem>
#include <string>

#include "OrvikTypeLib/HostError.h"

namespace host {

/// Another program holds what was asked for; trying again later may succeed.
class BusyError : public orvik::HostError {
 public:
  using HostError::HostError;
};

/// The machine failed, independently of the file: the disk is full or broken, or the program has run out
/// of files or memory.
class StorageError : public orvik::HostError {
 public:
  using HostError::HostError;
};

/// Whether the system's error is the machine's state, and not the choice of the file.
bool IsErrorOfMachine(int error);

/// Throws `HostError` 75: the file, what was tried, the system's reason for `error` (0 for none), and what to
/// do. It is a `StorageError` when the system's reason is the machine's state.
/// @param what a translated sentence about the file, which is its "%%1": "%%1 cannot be opened"
[[noreturn]] void ThrowFileError(const std::filesystem::path& file, const std::string& what, int error,
                                 const std::string& advice);

/// Throws `BusyError` 75 in the same form.
[[noreturn]] void ThrowFileBusy(const std::filesystem::path& file, const std::string& what,
                                const std::string& advice);

}  // namespace host

#pragma once

#include <sys/types.h>

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "host/base/UniqueFd.h"

/// Durable files. Every error is a `HostError` 75 that names the file and says what to do.
namespace host {

/// Files beyond this size are refused: nothing that this host reads is that large.
inline constexpr std::uintmax_t kLargestFile = 512U * 1024 * 1024;

/// The file's whole content.
std::string ReadFile(const std::filesystem::path& file);
/// The whole content of an open file; `file` is named in errors.
std::string ReadDescriptor(int descriptor, const std::filesystem::path& file);

/// Writes all of it at the file's end or place.
void WriteDescriptor(int descriptor, std::string_view contents, const std::filesystem::path& file);

/// The file's permission bits; none for a missing file.
std::optional<mode_t> FileMode(const std::filesystem::path& file);

/// Throws for a write-protected file: replacing a file only needs write permission for its folder, but
/// protecting it means that it must not change. A missing file is accepted.
void RequireWritable(const std::filesystem::path& file);

/// Flushes the file's folder to disk, so that its name survives a crash.
void SyncFolderOf(const std::filesystem::path& file);

/// Replaces the file by one with these contents, on disk when the call returns: a crash leaves the old or the
/// new one. The caller holds the lock that keeps others from doing the same.
void ReplaceFile(const std::filesystem::path& file, std::string_view contents);

/// Creates the folder and its parents.
void CreateFolder(const std::filesystem::path& folder);

/// Holds a lock file during its lifetime; the system releases the lock when the program ends.
class FileLock {
 public:
  /// Waits until the lock is free, at most for `patience` and that of the program; then
  /// `BusyError`.
  FileLock(const std::filesystem::path& lockFile, std::chrono::milliseconds patience);

 private:
  bool TryLock(const std::filesystem::path& lockFile) const;

  UniqueFd descriptor_;
};

/// How long the host waits for another program that is writing one of its files.
inline constexpr std::chrono::milliseconds kLockPatience{2000};

}  // namespace host

#pragma once

#include <sys/types.h>

#include <filesystem>
#include <optional>
#include <string_view>

#include "host/base/Files.h"

namespace host {

/// A file that has its contents, flushed to disk, before it gets its name. Unless it is given one, nothing is
/// left of it. Every error is a `HostError` 75 that names the file.
class FreshFile {
 public:
  /// A file that replaces `file`: until then it is `file`.new, where the leftover of a crash is overwritten.
  /// @param mode permission bits; none for the usual ones of a new file
  static FreshFile Beside(const std::filesystem::path& file, std::string_view contents,
                          std::optional<mode_t> mode);

  /// Whether the file system has files without a name. Where it has none, a new file is `file`.new.PID first,
  /// which is left behind when the program is killed at that moment.
  enum class Names { kLate, kEarly };
  /// A file for a name that is free.
  static FreshFile ForNewName(const std::filesystem::path& file, std::string_view contents,
                              Names names = Names::kLate);

  FreshFile(FreshFile&& other) noexcept;
  FreshFile(const FreshFile&) = delete;
  FreshFile& operator=(const FreshFile&) = delete;
  ~FreshFile();

  int Descriptor() const { return descriptor_.Get(); }

  /// Gives it the name in the place of the file that has it. The name is not flushed yet: `SyncFolderOf`.
  UniqueFd Replace(const std::filesystem::path& file) &&;
  /// Gives it the name, which must be free: otherwise refused. Not flushed either.
  UniqueFd TakeNewName(const std::filesystem::path& file) &&;

 private:
  FreshFile(std::filesystem::path name, UniqueFd descriptor)
      : name_(std::move(name)), descriptor_(std::move(descriptor)) {}

  static FreshFile Named(const std::filesystem::path& name, const std::filesystem::path& file);
  void Fill(const std::filesystem::path& file, std::string_view contents, std::optional<mode_t> mode) const;
  int Link(const std::filesystem::path& file);

  std::filesystem::path name_;  ///< that it has so far; empty for none
  UniqueFd descriptor_;
};

}  // namespace host

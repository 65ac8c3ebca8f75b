#pragma once

#include <sys/types.h>

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

/// Durable files. Every error is a `HostError` 75 that names the file and says what to do.
namespace bench {

/// Owns an open file.
class FileDescriptor {
 public:
  FileDescriptor() = default;
  explicit FileDescriptor(int descriptor) : descriptor_(descriptor) {}
  FileDescriptor(FileDescriptor&& other) noexcept : descriptor_(std::exchange(other.descriptor_, -1)) {}
  FileDescriptor& operator=(FileDescriptor&& other) noexcept;
  FileDescriptor(const FileDescriptor&) = delete;
  FileDescriptor& operator=(const FileDescriptor&) = delete;
  ~FileDescriptor();

  bool Valid() const { return descriptor_ >= 0; }
  int Get() const { return descriptor_; }

 private:
  int descriptor_ = -1;
};

/// Files beyond this size are refused: nothing that this host reads is that large.
inline constexpr std::uintmax_t kLargestFile = 512U * 1024 * 1024;

/// The file's whole content.
std::string ReadFile(const std::filesystem::path& file);
/// The whole content of an open file; `file` is named in errors.
std::string ReadDescriptor(int descriptor, const std::filesystem::path& file);

/// Writes all of it at the file's end or place.
void WriteDescriptor(int descriptor, std::string_view contents, const std::filesystem::path& file);

/// The file's permission bits; none when it is not there.
std::optional<mode_t> FileMode(const std::filesystem::path& file);

/// Writes the contents into the new file `fresh`, on disk when the call returns. On an error nothing is left
/// of it.
/// @param mode permission bits of the file; none for the usual ones of a new file
/// @return the new file, open
FileDescriptor WriteFreshFile(const std::filesystem::path& fresh, std::string_view contents,
                              std::optional<mode_t> mode);

/// Brings the folder in which the file stands to the disk, so that its name is there after a crash.
void SyncFolderOf(const std::filesystem::path& file);

/// Puts `fresh` in the place of `file`, on disk when the call returns: a crash leaves the one or the other.
void MoveIntoPlace(const std::filesystem::path& fresh, const std::filesystem::path& file);

/// Replaces the file by one with these contents, the way of the two above. Whoever calls it holds the lock
/// that keeps others from doing the same.
void ReplaceFile(const std::filesystem::path& file, std::string_view contents);

/// Creates the folder and its parents.
void CreateFolder(const std::filesystem::path& folder);

/// Holds a lock file for as long as it lives; a program that ends without letting go loses it too.
class FileLock {
 public:
  /// Waits until nobody else holds the lock, at most for `patience`; then `HostError` 75.
  FileLock(const std::filesystem::path& lockFile, std::chrono::milliseconds patience);

 private:
  FileDescriptor descriptor_;
};

/// How long the host waits for another program that is writing one of its files.
inline constexpr std::chrono::milliseconds kLockPatience{2000};

/// Throws `HostError` 75: the file, what was tried, the system's reason for `error` (0 for none), and what to
/// do.
/// @param what a translated sentence about the file, which is its "%%1": "%%1 cannot be opened"
[[noreturn]] void ThrowFileError(const std::filesystem::path& file, const std::string& what, int error,
                                 const std::string& advice);

}  // namespace bench

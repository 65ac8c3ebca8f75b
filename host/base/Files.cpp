#include "host/base/Files.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <thread>
#include <vector>

#include "host/base/FileErrors.h"
#include "host/base/FreshFile.h"
#include "host/base/Patience.h"
#include "host/base/Tr.h"

namespace host {

std::string ReadFile(const std::filesystem::path& file) {
  const UniqueFd descriptor(open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  if (!descriptor)
    ThrowFileError(file, Tr("%%1 cannot be opened"), errno, Tr("check the name and your permissions"));
  return ReadDescriptor(descriptor.Get(), file);
}

std::string ReadDescriptor(int descriptor, const std::filesystem::path& file) {
  struct stat status {};
  if (fstat(descriptor, &status) != 0)
    ThrowFileError(file, Tr("%%1 cannot be read"), errno, Tr("check the disk"));
  if (!S_ISREG(status.st_mode)) ThrowFileError(file, Tr("%%1 is no file"), 0, Tr("name a file"));
  if (static_cast<std::uintmax_t>(status.st_size) > kLargestFile)
    ThrowFileError(file, Tr("%%1 is too large"), 0, Tr("files up to 512 MiB are read"));
  const auto size = static_cast<std::size_t>(status.st_size);
  std::string contents;
  contents.reserve(size);
  std::vector<char> block(std::min<std::size_t>(size, 256 * 1024));
  while (contents.size() < size) {
    const ssize_t count = pread(descriptor, block.data(), std::min(block.size(), size - contents.size()),
                                static_cast<off_t>(contents.size()));
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) ThrowFileError(file, Tr("%%1 cannot be read"), errno, Tr("check the disk"));
    if (count == 0) break;
    contents.append(block.data(), static_cast<std::size_t>(count));
  }
  return contents;
}

void WriteDescriptor(int descriptor, std::string_view contents, const std::filesystem::path& file) {
  while (!contents.empty()) {
    const ssize_t count = write(descriptor, contents.data(), contents.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0)
      ThrowFileError(file, Tr("%%1 cannot be written"), errno,
                     Tr("what was there before is kept; check the disk"));
    contents.remove_prefix(static_cast<std::size_t>(count));
  }
}

std::optional<mode_t> FileMode(const std::filesystem::path& file) {
  struct stat status {};
  if (stat(file.c_str(), &status) != 0) return {};
  return status.st_mode & 07777;
}

void SyncFolderOf(const std::filesystem::path& file) {
  const auto folder = file.has_parent_path() ? file.parent_path() : std::filesystem::path(".");
  const UniqueFd descriptor(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (!descriptor || fsync(descriptor.Get()) != 0)
    ThrowFileError(folder, Tr("%%1 cannot be brought to the disk"), errno, Tr("check the disk"));
}

void RequireWritable(const std::filesystem::path& file) {
  const auto mode = FileMode(file);
  if (!mode) return;
  constexpr mode_t kAnybodyMayWrite = 0222;
  // The superuser may write any file, so check the permission bits instead.
  const bool meant = (*mode & kAnybodyMayWrite) != 0;
  if (meant && faccessat(AT_FDCWD, file.c_str(), W_OK, AT_EACCESS) == 0) return;
  ThrowFileError(file, Tr("%%1 is write-protected"), 0,
                 Tr("allow writing, as by \"chmod u+w\", or use a copy"));
}

void ReplaceFile(const std::filesystem::path& file, std::string_view contents) {
  RequireWritable(file);
  FreshFile::Beside(file, contents, FileMode(file)).Replace(file);
  SyncFolderOf(file);
}

void CreateFolder(const std::filesystem::path& folder) {
  std::error_code error;
  std::filesystem::create_directories(folder, error);
  if (error)
    ThrowFileError(folder, Tr("%%1 cannot be created"), error.value(),
                   Tr("name a folder that you may write to"));
}

FileLock::FileLock(const std::filesystem::path& lockFile, std::chrono::milliseconds patience) {
  descriptor_ = UniqueFd(open(lockFile.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC, 0666));
  if (!descriptor_)
    ThrowFileError(lockFile, Tr("%%1 cannot be opened"), errno, Tr("check the folder and your permissions"));
  const auto deadline = std::chrono::steady_clock::now() + patience;
  WaitUntilFree([&] {
    while (!TryLock(lockFile)) {
      if (std::chrono::steady_clock::now() >= deadline)
        ThrowFileBusy(lockFile, Tr("%%1 is held by another program"),
                      Tr("close the other program and try again"));
      std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
  });
}

bool FileLock::TryLock(const std::filesystem::path& lockFile) const {
  if (flock(descriptor_.Get(), LOCK_EX | LOCK_NB) == 0) return true;
  if (errno != EWOULDBLOCK && errno != EINTR)
    ThrowFileError(lockFile, Tr("%%1 cannot be locked"), errno, Tr("keep the folder on a local disk"));
  return false;
}

}  // namespace host

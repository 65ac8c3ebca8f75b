#include "host/base/FreshFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <string>
#include <utility>

#include "host/base/FileErrors.h"
#include "host/base/Tr.h"

namespace host {
namespace {

constexpr mode_t kUsualMode = 0666;  // less the umask

std::filesystem::path WithEnding(std::filesystem::path file, const std::string& ending) {
  return file += ending;
}

std::filesystem::path FolderOf(const std::filesystem::path& file) {
  return file.has_parent_path() ? file.parent_path() : std::filesystem::path(".");
}

}  // namespace

FreshFile FreshFile::Beside(const std::filesystem::path& file, std::string_view contents,
                            std::optional<mode_t> mode) {
  auto fresh = Named(WithEnding(file, ".new"), file);
  fresh.Fill(file, contents, mode);
  return fresh;
}

FreshFile FreshFile::ForNewName(const std::filesystem::path& file, std::string_view contents, Names names) {
  if (names == Names::kLate) {
    FreshFile nameless({},
                       UniqueFd(open(FolderOf(file).c_str(), O_RDWR | O_TMPFILE | O_CLOEXEC, kUsualMode)));
    if (nameless.descriptor_) {
      nameless.Fill(file, contents, {});
      return nameless;
    }
  }
  // Of two programs that create the same name at once, each writes a file of its own.
  auto named = Named(WithEnding(file, ".new." + std::to_string(getpid())), file);
  named.Fill(file, contents, {});
  return named;
}

FreshFile FreshFile::Named(const std::filesystem::path& name, const std::filesystem::path& file) {
  UniqueFd descriptor(open(name.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC, kUsualMode));
  if (!descriptor)
    ThrowFileError(file, Tr("%%1 cannot be written"), errno, Tr("check the folder and your permissions"));
  return {name, std::move(descriptor)};
}

FreshFile::FreshFile(FreshFile&& other) noexcept
    : name_(std::exchange(other.name_, {})), descriptor_(std::move(other.descriptor_)) {}

FreshFile::~FreshFile() {
  if (!name_.empty()) unlink(name_.c_str());
}

void FreshFile::Fill(const std::filesystem::path& file, std::string_view contents,
                     std::optional<mode_t> mode) const {
  if (ftruncate(Descriptor(), 0) != 0 || (mode && fchmod(Descriptor(), *mode) != 0))
    ThrowFileError(file, Tr("%%1 cannot be written"), errno, Tr("check the disk"));
  WriteDescriptor(Descriptor(), contents, file);
  if (fsync(Descriptor()) != 0)
    ThrowFileError(file, Tr("%%1 cannot be brought to the disk"), errno, Tr("check the disk"));
}

UniqueFd FreshFile::Replace(const std::filesystem::path& file) && {
  if (rename(name_.c_str(), file.c_str()) != 0)
    ThrowFileError(file, Tr("%%1 cannot be replaced"), errno, Tr("check the folder and your permissions"));
  name_.clear();
  return std::move(descriptor_);
}

UniqueFd FreshFile::TakeNewName(const std::filesystem::path& file) && {
  const int error = Link(file);
  if (error == EEXIST)
    ThrowFileError(file, Tr("%%1 is there already"), 0, Tr("choose another name, or remove the file first"));
  if (error != 0)
    ThrowFileError(file, Tr("%%1 cannot be created"), error, Tr("check the folder and your permissions"));
  return std::move(descriptor_);
}

/// Gives it the name, which it never takes from another file; the system's error, or 0.
int FreshFile::Link(const std::filesystem::path& file) {
  if (!name_.empty() && renameat2(AT_FDCWD, name_.c_str(), AT_FDCWD, file.c_str(), RENAME_NOREPLACE) == 0) {
    name_.clear();
    return 0;
  }
  if (!name_.empty() && errno != EINVAL && errno != ENOSYS) return errno;
  // What file systems that do not know the flag know: links. The early name goes with this object.
  const auto from = name_.empty() ? "/proc/self/fd/" + std::to_string(Descriptor()) : name_.string();
  return linkat(AT_FDCWD, from.c_str(), AT_FDCWD, file.c_str(), AT_SYMLINK_FOLLOW) == 0 ? 0 : errno;
}

}  // namespace host

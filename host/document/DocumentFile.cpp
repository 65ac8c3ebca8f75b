#include "host/document/DocumentFile.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <cerrno>
#include <system_error>
#include <utility>

#include "host/base/FileErrors.h"
#include "host/base/FreshFile.h"
#include "host/base/Patience.h"
#include "host/base/Tr.h"

namespace host::document {
namespace {

constexpr int kOpenAttempts = 100;

DocumentFile::Use constexpr kWrite = DocumentFile::Use::kWrite;

}  // namespace

std::optional<DocumentFile::Stamp> DocumentFile::StampOf(const std::filesystem::path& file) {
  const UniqueFd descriptor(open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  return descriptor ? StampOf(descriptor.Get()) : std::nullopt;
}

std::optional<DocumentFile::Stamp> DocumentFile::StampOf(int descriptor) {
  struct stat status {};
  if (fstat(descriptor, &status) != 0) return {};
  return Stamp{status.st_dev, status.st_ino, static_cast<std::uint64_t>(status.st_size),
               status.st_mtim.tv_sec, status.st_mtim.tv_nsec};
}

DocumentFile DocumentFile::Existing(const std::filesystem::path& file, Use use) {
  DocumentFile opened;
  std::error_code error;
  // A link is followed, so that what it names is replaced and not the link.
  opened.path_ = std::filesystem::canonical(file, error);
  if (error)
    ThrowFileError(file, Tr("%%1 cannot be opened"), error.value(),
                   Tr("check the name and your permissions"));
  if (use == kWrite) RequireWritable(opened.path_);
  // Between opening and locking the file may be replaced by a new one: then that one is meant.
  return WaitUntilFree([&] {
    for (int attempt = 0; attempt < kOpenAttempts; ++attempt) {
      if (opened.TryOpen(use)) return std::move(opened);
    }
    ThrowFileBusy(opened.path_, Tr("%%1 changes all the time"),
                  Tr("close the program that writes it and try again"));
  });
}

bool DocumentFile::TryOpen(Use use) {
  use_ = use;
  descriptor_ = UniqueFd(open(path_.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  if (!descriptor_)
    ThrowFileError(path_, Tr("%%1 cannot be opened"), errno, Tr("check the name and your permissions"));
  if (use == kWrite) Lock(descriptor_.Get());
  stamp_ = StampOf(descriptor_.Get());
  return use == Use::kRead || stamp_ == StampOf(path_);
}

DocumentFile DocumentFile::New(const std::filesystem::path& file) {
  DocumentFile created;
  created.path_ = std::filesystem::absolute(file);
  created.use_ = kWrite;
  std::error_code error;
  if (std::filesystem::exists(std::filesystem::symlink_status(created.path_, error)))
    ThrowFileError(file, Tr("%%1 is there already"), 0, Tr("choose another name, or remove the file first"));
  return created;
}

void DocumentFile::Lock(int descriptor) const {
  if (flock(descriptor, LOCK_EX | LOCK_NB) == 0) return;
  if (errno == EWOULDBLOCK)
    ThrowFileBusy(path_, Tr("%%1 is open in another program"), Tr("close it there and try again"));
  ThrowFileError(path_, Tr("%%1 cannot be locked"), errno, Tr("keep documents on a local disk"));
}

std::string DocumentFile::Read() const { return ReadDescriptor(descriptor_.Get(), path_); }

void DocumentFile::Write(std::string_view contents) {
  if (use_ != kWrite)
    ThrowFileError(path_, Tr("%%1 was opened for reading only"), 0, Tr("open it for writing"));
  if (stamp_ && stamp_ != StampOf(path_))
    ThrowFileError(path_, Tr("%%1 was changed by another program since it was opened"), 0,
                   Tr("save under another name, and compare the two"));
  // Locked before it has its name: no other program can be faster.
  if (stamp_) {
    RequireWritable(path_);
    auto fresh = FreshFile::Beside(path_, contents, FileMode(path_));
    Lock(fresh.Descriptor());
    descriptor_ = std::move(fresh).Replace(path_);
  } else {
    auto fresh = FreshFile::ForNewName(path_, contents);
    Lock(fresh.Descriptor());
    descriptor_ = std::move(fresh).TakeNewName(path_);
  }
  stamp_ = StampOf(descriptor_.Get());
  SyncFolderOf(path_);
}

}  // namespace host::document

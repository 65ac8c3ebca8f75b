#include "host/base/SystemError.h"

#include <cerrno>
#include <system_error>

#include "host/base/Tr.h"

namespace host {

std::string SystemError(int error) {
  switch (error) {
    case EACCES:
      return Tr("Permission denied");
    case EBUSY:
      return Tr("Device or resource busy");
    case EDQUOT:
      return Tr("Disk quota exceeded");
    case EEXIST:
      return Tr("File exists");
    case EFBIG:
      return Tr("File too large");
    case EINVAL:
      return Tr("Invalid argument");
    case EIO:
      return Tr("Input/output error");
    case EISDIR:
      return Tr("Is a directory");
    case ELOOP:
      return Tr("Too many levels of symbolic links");
    case EMFILE:
      return Tr("Too many open files");
    case ENAMETOOLONG:
      return Tr("File name too long");
    case ENODEV:
      return Tr("No such device");
    case ENOENT:
      return Tr("No such file or directory");
    case ENOSPC:
      return Tr("No space left on device");
    case ENOTDIR:
      return Tr("Not a directory");
    case ENOTEMPTY:
      return Tr("Directory not empty");
    case ENXIO:
      return Tr("No such device or address");
    case EPERM:
      return Tr("Operation not permitted");
    case EROFS:
      return Tr("Read-only file system");
    default:
      return std::generic_category().message(error);
  }
}

}  // namespace host

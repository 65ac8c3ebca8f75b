#include "host/base/FileErrors.h"

#include <cerrno>

#include "host/base/LanguageService.h"
#include "host/base/SystemError.h"
#include "host/base/Tr.h"

namespace host {
namespace {

constexpr char kFilesSource[] = "orvik-bench";

template <class Error>
[[noreturn]] void Throw(const std::string& text) {
  throw Error(orvik::HostError::kPathError, kFilesSource, text);
}

}  // namespace

bool IsErrorOfMachine(int error) {
  switch (error) {
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
    case EIO:
    case EMFILE:
    case ENFILE:
    case ENOMEM:
      return true;
    default:
      return false;
  }
}

void ThrowFileError(const std::filesystem::path& file, const std::string& what, int error,
                    const std::string& advice) {
  const auto told = WithValues(what, {file.string()});
  if (error == 0) Throw<orvik::HostError>(Tr("%%1 (%%2)", {told, advice}));
  const auto text = Tr("%%1: %%2 (%%3)", {told, SystemError(error), advice});
  if (IsErrorOfMachine(error)) Throw<StorageError>(text);
  Throw<orvik::HostError>(text);
}

void ThrowFileBusy(const std::filesystem::path& file, const std::string& what, const std::string& advice) {
  Throw<BusyError>(Tr("%%1 (%%2)", {WithValues(what, {file.string()}), advice}));
}

}  // namespace host

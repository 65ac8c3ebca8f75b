#include "host/bench/DesktopModule.h"

#include <dlfcn.h>

#include <stdexcept>

#include "host/base/FileErrors.h"
#include "host/base/Tr.h"
#include "host/bench/InputError.h"

namespace host::bench {
namespace {

[[noreturn]] void RefuseDesktop(const std::string& reason) {
  throw IncompleteError(
      Tr("The window cannot be opened: %%1. The other commands need nothing more: "
         "\"orvik-bench --help\" shows them",
         {reason}));
}

template <class Entry>
Entry* FindEntry(void* module, const char* name, const std::filesystem::path& file) {
  auto* const address = dlsym(module, name);
  if (!address) RefuseDesktop(Tr("%%1 has no entry point \"%%2\"", {file.string(), name}));
  return reinterpret_cast<Entry*>(address);
}

}  // namespace

bool RunDesktopModule(const DesktopOptions& options, const std::filesystem::path& module) {
  // Never closed: Qt does not come back once it has been unloaded.
  auto* const opened = dlopen(module.c_str(), RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE);
  if (!opened) RefuseDesktop(dlerror());
  if (FindEntry<desktop::VersionEntry>(opened, desktop::kVersionEntry, module)() !=
      std::string(ORVIK_VERSION))
    RefuseDesktop(
        Tr("%%1 belongs to another version of this program; install both together", {module.string()}));
  std::string reason;
  switch (FindEntry<desktop::RunEntry>(opened, desktop::kRunEntry, module)(options, reason)) {
    case desktop::Ending::kInOrder:
      return true;
    case desktop::Ending::kLeftOver:
      return false;
    case desktop::Ending::kBadInput:
      throw InputError(reason);
    case desktop::Ending::kNotPossible:
      throw IncompleteError(reason);
    case desktop::Ending::kBusy:
      throw BusyError(orvik::HostError::kPathError, "orvik-bench", reason);
    case desktop::Ending::kInternalError:
      break;
  }
  throw std::runtime_error(reason);
}

}  // namespace host::bench

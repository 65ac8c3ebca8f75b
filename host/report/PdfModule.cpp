#include "host/report/PdfModule.h"

#include <dlfcn.h>

#include "OrvikTypeLib/HostError.h"
#include "host/base/Tr.h"

namespace host::report {
namespace {

[[noreturn]] void Refuse(const std::string& reason) {
  throw orvik::HostError(
      orvik::HostError::kDeviceError, "orvik-bench",
      Tr("The report cannot be written as PDF: %%1. HTML and plain text work without it: give a "
         "name that ends with .html or .txt",
         {reason}));
}

template <class Entry>
Entry* Find(void* module, const char* name, const std::filesystem::path& file) {
  auto* const address = dlsym(module, name);
  if (!address) Refuse(Tr("%%1 has no entry point \"%%2\"", {file.string(), name}));
  return reinterpret_cast<Entry*>(address);
}

}  // namespace

std::string WritePdf(const report::Report& report, const std::filesystem::path& module) {
  // Never closed: Qt cannot be loaded again once it has been unloaded.
  auto* const opened = dlopen(module.c_str(), RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE);
  if (!opened) Refuse(dlerror());
  if (Find<pdf::VersionEntry>(opened, pdf::kVersionEntry, module)() != std::string(ORVIK_VERSION))
    Refuse(Tr("%%1 belongs to another version of this program; install both together", {module.string()}));
  std::string pdf, reason;
  if (!Find<pdf::WriteEntry>(opened, pdf::kWriteEntry, module)(report, pdf, reason)) Refuse(Tr(reason));
  return pdf;
}

}  // namespace host::report

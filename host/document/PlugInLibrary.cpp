#include "host/document/PlugInLibrary.h"

#include <dlfcn.h>

#include "OrvikTypeLib/HostError.h"
#include "host/base/Text.h"
#include "host/base/Tr.h"

namespace host::document {

PlugInLibrary::PlugInLibrary(const std::filesystem::path& file, const std::shared_ptr<orvik::IHost>& host)
    : file_(std::filesystem::absolute(file)) {
  if (!std::filesystem::exists(file_)) Refuse(Tr("there is no such file"));
  handle_ = dlopen(file_.c_str(), RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE);
  if (!handle_) Refuse(dlerror());
  const auto version = Find<orvik::ContractVersionEntry>(orvik::kContractVersionEntry)();
  if (version != orvik::kContractVersion)
    Refuse(Tr("it was built for version %%1 of the contract, and this program is for %%2",
              {std::to_string(version), std::to_string(orvik::kContractVersion)}));
  const auto open = Find<orvik::OpenLibraryEntry>(orvik::kOpenLibraryEntry);
  close_ = Find<orvik::CloseLibraryEntry>(orvik::kCloseLibraryEntry);
  open(host, classes_);
  if (!classes_) {
    close_();
    Refuse(Tr("it does not open"));
  }
}

PlugInLibrary::~PlugInLibrary() {
  if (!classes_) return;
  classes_.reset();
  close_();
}

template <class Entry>
Entry* PlugInLibrary::Find(const char* name) const {
  auto* const address = dlsym(handle_, name);
  if (!address) Refuse(Tr("it has no entry point \"%%1\"", {name}));
  return reinterpret_cast<Entry*>(address);
}

std::string PlugInLibrary::PlugInClass() const {
  for (std::int32_t index = 1; index <= classes_->Count(); ++index) {
    const auto identifier = classes_->ClassIdentifier(index);
    if (LowerAscii(identifier).ends_with("plugin")) return identifier;
  }
  Refuse(Tr("it has no plug-in class"));
}

void PlugInLibrary::Refuse(const std::string& reason) const {
  throw orvik::HostError(orvik::HostError::kClassNotRegistered, "orvik-bench",
                         Tr("%%1 cannot be used as a plug-in: %%2", {file_.string(), reason}));
}

}  // namespace host::document

#include "plugin/base/MKELDGlobalVars.h"

#include <utility>

#include "OrvikTypeLib/HostClasses.h"
#include "plugin/base/Attempt.h"
#include "plugin/base/MKELDConstants.h"

namespace keld::MKELDGlobalVars {
namespace {

struct SharedObjects {
  std::shared_ptr<orvik::IHost> Host;
  std::shared_ptr<orvik::ILanguageService> LanguageService;
  std::shared_ptr<orvik::IErrorLog> ErrorLog;
  std::shared_ptr<orvik::IXmlDocument> XmlDocument;
  std::shared_ptr<orvik::IRegistryReader> RegistryReader;
  std::shared_ptr<orvik::IPersistence> Persistence;
  std::shared_ptr<orvik::ICommApplication> CommApplication;
  std::shared_ptr<orvik::IObject> InstrumentData;
};

SharedObjects& Shared() {
  static SharedObjects TheObjects;
  return TheObjects;
}

template <class Interface>
const std::shared_ptr<Interface>& CreatedOnFirstUse(std::shared_ptr<Interface>& Slot, const char* sClassID) {
  if (!Slot) Slot = CreateHostObject<Interface>(sClassID);
  return Slot;
}

}  // namespace

void Open(std::shared_ptr<orvik::IHost> Host) {
  Close();
  Shared().Host = std::move(Host);
}

void Close() {
  // Empty the slots first: a destructor that asks for another object must not find a half-released one.
  const SharedObjects Ended = std::exchange(Shared(), {});
}

orvik::IHost& Host() { return orvik::Required(Shared().Host); }

std::shared_ptr<orvik::platform::IApplication> Application() { return Host().Application(); }

std::shared_ptr<orvik::ILanguageService> LanguageService() {
  return CreatedOnFirstUse(Shared().LanguageService, orvik::HostClasses::kLanguageService);
}

std::shared_ptr<orvik::IErrorLog> ErrorLog() {
  return CreatedOnFirstUse(Shared().ErrorLog, orvik::HostClasses::kErrorLog);
}

std::shared_ptr<orvik::IXmlDocument> XmlDocument() {
  return CreatedOnFirstUse(Shared().XmlDocument, orvik::HostClasses::kXmlDocument);
}

std::shared_ptr<orvik::IRegistryReader> RegistryReader() {
  return CreatedOnFirstUse(Shared().RegistryReader, orvik::HostClasses::kRegistryReader);
}

std::shared_ptr<orvik::IPersistence> Persistence() {
  return CreatedOnFirstUse(Shared().Persistence, orvik::HostClasses::kPersistence);
}

std::shared_ptr<orvik::ICommApplication> CommApplication() {
  return CreatedOnFirstUse(Shared().CommApplication, orvik::HostClasses::kCommApplication);
}

std::shared_ptr<orvik::IObject>& InstrumentDataSlot() { return Shared().InstrumentData; }

std::string Translated(const std::string& sText, const std::vector<std::string>& asValues) {
  return LanguageService()->Translate(sText, MKELDConstants::kModule, asValues);
}

std::string Shown(const std::string& sText, const std::vector<std::string>& asValues) {
  return AttemptValue(sText, [&] { return Translated(sText, asValues); });
}

void TranslateCaptions(const std::shared_ptr<orvik::platform::IPanel>& Controls) {
  Attempt([&] { LanguageService()->TranslateControls(MKELDConstants::kModule, Controls); });
}

}  // namespace keld::MKELDGlobalVars

#pragma once

#include <memory>
#include <string>
#include <vector>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/ICommApplication.h"
#include "OrvikTypeLib/IErrorLog.h"
#include "OrvikTypeLib/IHost.h"
#include "OrvikTypeLib/ILanguageService.h"
#include "OrvikTypeLib/IPersistence.h"
#include "OrvikTypeLib/IRegistryReader.h"
#include "OrvikTypeLib/IXmlDocument.h"
#include "platform/IApplication.h"

/// The process-wide objects. Each host service is created on first use and lives until the library is closed.
/// User-interface thread only, so there are no locks.
namespace keld::MKELDGlobalVars {

/// Opens the library for `Host`; closing it releases the host and every shared object.
void Open(std::shared_ptr<orvik::IHost> Host);
void Close();

/// The host and its platform; `HostError` 91 before `Open`.
orvik::IHost& Host();
std::shared_ptr<orvik::platform::IApplication> Application();

/// The shared service objects; the host's `HostError` when one cannot be created.
std::shared_ptr<orvik::ILanguageService> LanguageService();
std::shared_ptr<orvik::IErrorLog> ErrorLog();
std::shared_ptr<orvik::IXmlDocument> XmlDocument();
std::shared_ptr<orvik::IRegistryReader> RegistryReader();
std::shared_ptr<orvik::IPersistence> Persistence();
std::shared_ptr<orvik::ICommApplication> CommApplication();

/// The slot of the one instrument data object, filled by `CKELDData::Shared`; kept here so that `Close`
/// empties it with the rest.
std::shared_ptr<orvik::IObject>& InstrumentDataSlot();

/// A new object of a host class, viewed as `Interface`; `HostError` if the host lacks the class or the class
/// lacks the view.
template <class Interface>
std::shared_ptr<Interface> CreateHostObject(const std::string& sClassID) {
  auto Created = orvik::As<Interface>(Host().CreateObject(sClassID));
  if (!Created)
    throw orvik::HostError(orvik::HostError::kClassNotRegistered, "KELD(IN)",
                           "host class " + sClassID + " is of another kind");
  return Created;
}

/// The translation of a language string, with "%%1", "%%2" replaced by the values. Passes on the errors of
/// the language service.
std::string Translated(const std::string& sText, const std::vector<std::string>& asValues = {});

/// As `Translated`, but returns the literal if the language service fails, so that windows stay usable.
std::string Shown(const std::string& sText, const std::vector<std::string>& asValues = {});

/// Translates the captions of a form or user control; they stay literals if the language service fails.
void TranslateCaptions(const std::shared_ptr<orvik::platform::IPanel>& Controls);

}  // namespace keld::MKELDGlobalVars

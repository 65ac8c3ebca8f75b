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

/// The process-wide objects. Each host service is created by whoever touches it first and lives until the
/// library is closed. User-interface thread only, so nothing is locked.
namespace keld::MKELDGlobalVars {

/// The library was opened by `Host`; closing it lets go of the host and of every shared object.
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

/// A new object of a host class, seen as `Interface`; `HostError` when the host has no such class or it has
/// no such view.
template <class Interface>
std::shared_ptr<Interface> CreateHostObject(const std::string& sClassID) {
  auto Created = orvik::As<Interface>(Host().CreateObject(sClassID));
  if (!Created)
    throw orvik::HostError(orvik::HostError::kClassNotRegistered, "KELD(IN)",
                           "host class " + sClassID + " is of another kind");
  return Created;
}

/// The text to show for a language-string literal, with "%%1", "%%2" replaced by the values; the error of a
/// language service that fails.
std::string Translated(const std::string& sText, const std::vector<std::string>& asValues = {});

/// The same on a window that must stay usable without a language service: the whole literal when it fails.
std::string Shown(const std::string& sText, const std::vector<std::string>& asValues = {});

/// Translates the captions of a form or user control; they stay literals when the language service fails.
void TranslateCaptions(const std::shared_ptr<orvik::platform::IPanel>& Controls);

}  // namespace keld::MKELDGlobalVars

#include "plugin/CKELDPlugin.h"

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/Conversions.h"
#include "OrvikTypeLib/ITestContainer.h"
#include "OrvikTypeLib/ITestElement.h"
#include "model/CKELDSequence.h"
#include "plugin/CatalogueBuilder.h"
#include "plugin/IdentifierTable.h"
#include "plugin/Picture.h"
#include "plugin/base/Attempt.h"
#include "plugin/base/ClassIdentifiers.h"
#include "plugin/base/MKELDConstants.h"
#include "plugin/base/MKELDGlobalVars.h"
#include "plugin/base/MKELDLanguageConstants.h"
#include "plugin/base/Version.h"

namespace keld::plugin {

using orvik::As;
using orvik::Required;

namespace {

/// The text of the settings value "Configuration". If the settings key is missing, logs that and returns "".
std::string ReadCatalogueText() {
  const bool fOpen = AttemptValue(false, [] {
    return MKELDGlobalVars::RegistryReader()->OpenKey(MKELDConstants::kHive, MKELDConstants::kSettingsKey);
  });
  if (!fOpen) {
    Attempt([] {
      MKELDGlobalVars::ErrorLog()->LogEntry(MKELDConstants::kPlugInID, MKELDConstants::kErrorSettingsKey,
                                            MKELDConstants::kPlugInClass, MKELDConstants::kLevelConfiguration,
                                            {}, {}, {}, {}, {});
    });
    return {};
  }
  return AttemptValue(std::string(), [] {
    const auto Settings = MKELDGlobalVars::RegistryReader();
    return orvik::TextOf(Settings->ReadValue(MKELDConstants::kConfigurationValue));
  });
}

}  // namespace

std::shared_ptr<CKELDPlugin> CKELDPlugin::Create() {
  const std::shared_ptr<CKELDPlugin> Created(new CKELDPlugin);
  Created->mCatalogue = model::CKELDSequence::Create();
  return Created;
}

std::shared_ptr<orvik::ITestContainer> CKELDPlugin::Cast_ITestContainer(
    const std::shared_ptr<orvik::IObject>& Object) const {
  return As<orvik::ITestContainer>(Object);
}

std::string CKELDPlugin::IObject_ClassID() const { return ClassIdentifiers::kPlugin; }

std::string CKELDPlugin::IPlugIn_ID() const { return MKELDConstants::kPlugInID; }

std::shared_ptr<orvik::IPicture> CKELDPlugin::IPlugIn_Icon(std::int16_t iTestID, std::int16_t iStyle) const {
  return AttemptValue(std::shared_ptr<orvik::IPicture>(),
                      [&] { return Picture::FromResource(IconKey(iTestID, iStyle)); });
}

std::string CKELDPlugin::IPlugIn_Name() const { return msName; }

std::int32_t CKELDPlugin::IPlugIn_Flags() const { return mlFlags; }

std::shared_ptr<orvik::ITestContainer> CKELDPlugin::IPlugIn_Tests() const { return mCatalogue; }

// The build number is left out, on purpose: 2.2.0.2 is shown as 2.2.2.
std::string CKELDPlugin::IPlugIn_Version() const {
  return std::to_string(Version::kMajor) + "." + std::to_string(Version::kMinor) + "." +
         std::to_string(Version::kRevision);
}

void CKELDPlugin::IPlugIn_Initialize(std::shared_ptr<orvik::IObject> /*Context*/) {
  Attempt([&] { msName = MKELDGlobalVars::Translated(MKELDLanguageConstants::kPlugInName); });
  mlFlags = 1;
  const std::string sCatalogue = ReadCatalogueText();
  Attempt([&] { mCatalogue = BuildCatalogue(sCatalogue); });
}

std::shared_ptr<orvik::ITestElement> CKELDPlugin::IPlugIn_CreateTest(std::int32_t lTestID) {
  return AttemptValue(std::shared_ptr<orvik::ITestElement>(), [&] {
    const auto iteEntry = Required(mCatalogue).FindElement(lTestID);
    return iteEntry ? iteEntry->Clone() : nullptr;
  });
}

// The plug-in has no control panel, no data of the equipment under test, no menu and no set-up.
std::shared_ptr<orvik::IObject> CKELDPlugin::IPlugIn_ControlPanel() const { return {}; }
std::shared_ptr<orvik::IObject> CKELDPlugin::IPlugIn_CreateDUTData() const { return {}; }
std::shared_ptr<orvik::IObject> CKELDPlugin::IPlugIn_PlugInMenu() const { return {}; }
std::shared_ptr<orvik::IObject> CKELDPlugin::IPlugIn_Setup() const { return {}; }

}  // namespace keld::plugin

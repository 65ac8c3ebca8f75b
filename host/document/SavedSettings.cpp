#include "host/document/SavedSettings.h"

#include "OrvikTypeLib/Codes.h"
#include "host/base/Text.h"

namespace host::document {
namespace {

std::string SettingOf(const orvik::ITestElement& element, const char* name) {
  const auto configuration = element.Configuration();
  if (!configuration) return {};
  const SavedSettings saved(*configuration);
  return saved.Settings() ? saved.Settings()->Attribute(name) : std::string();
}

}  // namespace

SavedSettings::SavedSettings(const orvik::IConfigData& configuration) {
  orvik::IXmlDocument& document = *xml_;
  node_ = document.CreateRoot("Configuration");
  configuration.Save(node_);
  settings_ = document.FindElement(plugins::keld::kSettingsNode);
}

std::int32_t MeasuringSettings(const orvik::ITestElement& element) {
  return WholeNumber(SettingOf(element, SavedSettings::kOptions)).value_or(0) & orvik::OptionBits::kAnyLead;
}

std::string ValueFilter(const orvik::ITestElement& element) {
  return SettingOf(element, SavedSettings::kFilter);
}

}  // namespace host::document

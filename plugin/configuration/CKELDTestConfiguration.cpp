#include "plugin/configuration/CKELDTestConfiguration.h"

#include <algorithm>
#include <charconv>
#include <optional>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/Conversions.h"
#include "OrvikTypeLib/IReport.h"
#include "OrvikTypeLib/ITestContainer.h"
#include "OrvikTypeLib/ITestElement.h"
#include "OrvikTypeLib/IXmlNode.h"
#include "platform/Controls.h"
#include "platform/IContainerSite.h"
#include "platform/IUserControl.h"
#include "plugin/base/Attempt.h"
#include "plugin/base/ClassIdentifiers.h"
#include "plugin/base/MKELDGlobalVars.h"
#include "plugin/base/MKELDLanguageConstants.h"
#include "plugin/base/MXmlConstants.h"
#include "plugin/base/ReportMarkup.h"
#include "plugin/configuration/ConfigurationControl.h"
#include "plugin/configuration/FElementSetup.h"

namespace keld::configuration {

using orvik::As;
using orvik::Required;

namespace {

/// Report metric: the usable width of the page in twips.
constexpr std::int32_t kUsableWidth = 10;
/// The width assumed if the report does not return one: A4 with margins of 2 cm.
constexpr std::int32_t kUsualWidth = 9638;
constexpr std::int32_t kMargin = 560;
constexpr char kSixSpaces[] = "      ";

/// Parses a whole 32-bit decimal integer; surrounding blanks are allowed.
std::optional<std::int32_t> WholeNumber(const std::string& sText) {
  const std::string sNumber = orvik::Trim(sText);
  std::int32_t lValue = 0;
  const auto [pEnd, eError] = std::from_chars(sNumber.data(), sNumber.data() + sNumber.size(), lValue);
  if (eError != std::errc{} || pEnd != sNumber.data() + sNumber.size()) return {};
  return lValue;
}

std::shared_ptr<orvik::IXmlNode> FoundOrAdded(orvik::IXmlNode& Parent, const char* sName) {
  auto Child = Parent.FindChild(sName);
  return Child ? Child : Parent.AddChild(sName);
}

/// Finds "KELDConfig" directly below the node or below its "PlugInData".
std::shared_ptr<orvik::IXmlNode> SavedConfiguration(const orvik::IXmlNode& Node) {
  if (auto Direct = Node.FindChild(MXmlConstants::kKELDConfig)) return Direct;
  const auto PlugInData = Node.FindChild(MXmlConstants::kPlugInData);
  return PlugInData ? PlugInData->FindChild(MXmlConstants::kKELDConfig) : nullptr;
}

}  // namespace

std::shared_ptr<CKELDTestConfiguration> CKELDTestConfiguration::Create() {
  return std::make_shared<CKELDTestConfiguration>();
}

std::int16_t CKELDTestConfiguration::OwnerTestID() const {
  return AttemptValue(std::int16_t{0}, [&] { return orvik::Narrow16(Required(miteOwner)->TestID()); });
}

std::string CKELDTestConfiguration::IObject_ClassID() const { return ClassIdentifiers::kTestConfiguration; }

std::shared_ptr<orvik::IConfigData> CKELDTestConfiguration::IConfigData_Clone() const {
  const auto Copy = Create();
  Copy->mlOptions = mlOptions;
  Copy->mlValueFilter = mlValueFilter;
  return Copy;
}

std::shared_ptr<orvik::IDialog> CKELDTestConfiguration::IConfigData_CreateDialog() {
  const bool fSequence = As<orvik::ITestContainer>(Owner()) != nullptr;
  const auto Dialog = FElementSetup::Create();
  const auto Site = Dialog->CreateSetupCtrl(fSequence ? ClassIdentifiers::kSequenceConfigurationControl
                                                      : ClassIdentifiers::kTestConfigurationControl);
  std::shared_ptr<ConfigurationControl> Control;
  Attempt([&] { Control = As<ConfigurationControl>(Required(Site).Object()); });
  Attempt([&] { Required(Control).SetOwner(As<CKELDTestConfiguration>(shared_from_this())); });
  if (fSequence) {
    // For an unknown code, select the first entry; the selection then replaces the code.
    Attempt([&] {
      const auto cmbAssign = As<orvik::platform::IComboBox>(Required(Control).GetControl("cmbAssign"));
      Required(cmbAssign).SetSelectedIndex(mlValueFilter >= 1 && mlValueFilter <= 4 ? mlValueFilter - 1 : 0);
    });
  }
  Attempt([&] { Required(Control).FillSettings(); });
  return Dialog;
}

bool CKELDTestConfiguration::IConfigData_HasDialog() const { return true; }

// The host passes "Configuration", as to `Save`; its "PlugInData" is accepted too. Missing or malformed
// options stay unchanged; a filter without a name is unknown, code 0.
void CKELDTestConfiguration::IConfigData_Load(std::shared_ptr<orvik::IXmlNode> Node) {
  std::shared_ptr<orvik::IXmlNode> Saved;
  Attempt([&] { Saved = SavedConfiguration(Required(Node)); });
  if (!Saved) return;
  Attempt([&] { mlOptions = WholeNumber(Saved->Attribute(MXmlConstants::kOptions)).value_or(mlOptions); });
  Attempt([&] {
    mlValueFilter = ConfigurationTables::ValueFilterCode(Saved->Attribute(MXmlConstants::kValueFilter));
  });
}

// Accepts "Configuration" or its "PlugInData", and reuses elements that exist already.
void CKELDTestConfiguration::IConfigData_Save(std::shared_ptr<orvik::IXmlNode> Node) const {
  std::shared_ptr<orvik::IXmlNode> Saved;
  Attempt([&] {
    const bool fInside = Required(Node).Name() == MXmlConstants::kPlugInData;
    const auto PlugInData = fInside ? Node : FoundOrAdded(*Node, MXmlConstants::kPlugInData);
    Saved = FoundOrAdded(Required(PlugInData), MXmlConstants::kKELDConfig);
  });
  Attempt([&] { Required(Saved).SetAttribute(MXmlConstants::kOptions, std::to_string(mlOptions)); });
  Attempt([&] {
    Required(Saved).SetAttribute(MXmlConstants::kValueFilter,
                                 ConfigurationTables::ValueFilterName(mlValueFilter));
  });
}

void CKELDTestConfiguration::IConfigData_PrintReport(std::shared_ptr<orvik::IReport> Report) const {
  std::int32_t lWidth = kUsualWidth;
  Attempt([&] { lWidth = Required(Report).Metric(kUsableWidth); });
  Attempt([&] { Required(Report).SetTableBorder(0); });
  Attempt([&] { Required(Report).SetTableIndent(0); });
  Attempt([&] { Required(Report).SetHeaderRows(1); });
  Attempt([&] {
    using keld::MKELDGlobalVars::Translated;
    using keld::ReportMarkup::Row;
    const std::string sHeading = MKELDGlobalVars::Translated(MKELDLanguageConstants::kConfigurationHeading);
    const std::string sLeads =
        MKELDGlobalVars::Translated(ConfigurationTables::LeadText(OwnerTestID(), mlOptions));
    const auto Escaped = [&](const std::string& sText) { return Required(Report).Escape(sText); };
    Required(Report).AddTable(
        ReportMarkup::Format({{.lWidth = kMargin}, {.lWidth = std::max(lWidth - kMargin, 0)}}),
        ReportMarkup::Row({"", ReportMarkup::BoldItalic(Escaped(sHeading))}),
        ReportMarkup::Row({"", Escaped(sLeads) + kSixSpaces}));
  });
}

}  // namespace keld::configuration

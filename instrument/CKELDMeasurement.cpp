#include "instrument/CKELDMeasurement.h"

#include <limits>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/Conversions.h"
#include "OrvikTypeLib/HostError.h"
#include "OrvikTypeLib/IXmlNode.h"
#include "instrument/Number.h"
#include "plugin/base/Attempt.h"
#include "plugin/base/ClassIdentifiers.h"
#include "plugin/base/MKELDGlobalVars.h"
#include "plugin/base/MXmlConstants.h"
#include "plugin/base/ReportMarkup.h"

namespace keld::instrument {

using orvik::Required;
using orvik::Variant;

namespace {

constexpr char kFormat[] = "0";
constexpr char kIndent[] = "      ";

Variant Sum(const Variant& vLeft, const Variant& vRight) {
  if (orvik::IsEmpty(vLeft)) return vRight;
  if (orvik::IsEmpty(vRight)) return vLeft;

  const auto* plLeft = std::get_if<std::int32_t>(&vLeft);
  const auto* plRight = std::get_if<std::int32_t>(&vRight);
  if (plLeft && plRight) {
    const std::int64_t lSum = std::int64_t{*plLeft} + *plRight;
    if (lSum >= std::numeric_limits<std::int32_t>::min() && lSum <= std::numeric_limits<std::int32_t>::max())
      return static_cast<std::int32_t>(lSum);
  }
  const auto rLeft = NumberIn(vLeft);
  const auto rRight = NumberIn(vRight);
  if (!rLeft || !rRight)
    throw orvik::HostError(orvik::HostError::kTypeMismatch, MKELDConstants::kPlugInID,
                           "\"" + orvik::TextOf(vRight) + "\" cannot be added to \"" + orvik::TextOf(vLeft) +
                               "\": only numbers can be added");
  return *rLeft + *rRight;
}

}  // namespace

std::shared_ptr<CKELDMeasurement> CKELDMeasurement::Create() { return std::make_shared<CKELDMeasurement>(); }

std::string CKELDMeasurement::IObject_ClassID() const { return ClassIdentifiers::kMeasurement; }

void CKELDMeasurement::SetDescription(const std::string& sNewDescription) { sDescription = sNewDescription; }

void CKELDMeasurement::SetStatus(std::int32_t lNewStatus) { lStatus = lNewStatus; }

void CKELDMeasurement::AddValue(const Variant& vAdded, const std::string& sNewUnit,
                                const std::string& sNewFlags, const std::string& /*sIgnored*/) {
  Attempt([&] { vValue = Sum(vValue, vAdded); });
  sUnit = sNewUnit;
  sFlags = sNewFlags;
}

std::string CKELDMeasurement::ReportLine(const std::shared_ptr<orvik::IReport>& Report) const {
  std::string sShownDescription = sDescription;
  Attempt([&] { sShownDescription = MKELDGlobalVars::Translated(sDescription); });
  std::string sShownUnit = sUnit;
  Attempt([&] {
    // What the tester sent is text even if it looks like markup.
    sShownDescription = Required(Report).Escape(sShownDescription);
    sShownUnit = Report->Escape(sUnit);
  });
  return ReportMarkup::Row(
      {"", kIndent + sShownDescription, orvik::FormatValue(vValue, kFormat), sShownUnit});
}

bool CKELDMeasurement::FailsLimits(const std::shared_ptr<orvik::ILimitData>& Limits,
                                   const std::shared_ptr<orvik::IStandardColl>& Standards) {
  if (!Limits || !Standards) return false;
  std::shared_ptr<orvik::IStandardColl> Failed;
  const auto Self = orvik::As<orvik::IMeasurement>(shared_from_this());
  const bool fJudged = Attempt([&] { Failed = Limits->FindFailedStandards(Self, Standards); });
  return !fJudged || Failed != nullptr;
}

std::string CKELDMeasurement::IMeasurement_ValueFormat() const { return kFormat; }

void CKELDMeasurement::IMeasurement_Load(std::shared_ptr<orvik::IXmlNode> Node) {
  Attempt([&] { sFlags = Required(Node).Attribute(MXmlConstants::kFlags); });
  // A node that fails to return a child ends the list.
  Attempt([&] {
    Required(Node).ForEachChild(
        [&](const std::string& sName, const auto& Child) { LoadChild(sName, Child); });
  });
}

void CKELDMeasurement::LoadChild(const std::string& sName, const std::shared_ptr<orvik::IXmlNode>& Child) {
  if (sName == MXmlConstants::kDescription) {
    Attempt([&] { sDescription = Child->Text(); });
  } else if (sName == MXmlConstants::kValue) {
    Attempt(
        [&] { vValue = orvik::LeadingNumber(Required(MKELDGlobalVars::Persistence()).ReadValue(Child)); });
  } else if (sName == MXmlConstants::kUnit) {
    Attempt([&] { sUnit = Child->Text(); });
  } else if (sName == MXmlConstants::kStatus) {
    Attempt([&] { lStatus = Required(MKELDGlobalVars::Persistence()).ReadStatus(Child); });
  }
}

std::shared_ptr<orvik::IXmlNode> CKELDMeasurement::IMeasurement_Save(
    std::shared_ptr<orvik::IXmlNode> Parent) const {
  std::shared_ptr<orvik::IXmlNode> Node;
  Attempt([&] { Node = Required(Parent).AddChild(MXmlConstants::kMeasurement); });
  if (!Node) return nullptr;

  if (!sFlags.empty()) Attempt([&] { Node->SetAttribute(MXmlConstants::kFlags, sFlags); });
  Attempt([&] { Required(Node->AddChild(MXmlConstants::kDescription)).SetText(sDescription); });
  Attempt(
      [&] { Required(MKELDGlobalVars::Persistence()).WriteValue(Node, orvik::Trim(orvik::TextOf(vValue))); });
  if (!sUnit.empty()) Attempt([&] { Required(Node->AddChild(MXmlConstants::kUnit)).SetText(sUnit); });
  Attempt([&] { Required(MKELDGlobalVars::Persistence()).WriteStatus(Node, "", lStatus); });
  return Node;
}

}  // namespace keld::instrument

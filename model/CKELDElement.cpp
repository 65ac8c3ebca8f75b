#include "model/CKELDElement.h"

#include <utility>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/IAuxiliaryState.h"
#include "OrvikTypeLib/IInformationRecord.h"
#include "OrvikTypeLib/IXmlNode.h"
#include "plugin/base/Attempt.h"
#include "plugin/base/MKELDGlobalVars.h"
#include "plugin/base/MXmlConstants.h"
#include "plugin/configuration/CKELDTestConfiguration.h"
#include "results/CKELDLimitData.h"
#include "results/CKELDResultData.h"

namespace keld::model {

using orvik::As;
using orvik::Required;

CKELDElement::~CKELDElement() {
  if (mBaseElement) Attempt([&] { mBaseElement->Terminate(); });
}

void CKELDElement::InstallBaseElement(const std::string& sHostClass) {
  Attempt([&] { SetBaseElement(MKELDGlobalVars::CreateHostObject<orvik::IBaseElement>(sHostClass)); });
  Attempt([&] { Required(mBaseElement).SetConfiguration(configuration::CKELDTestConfiguration::Create()); });
  OwnConfiguration();
  Attempt([&] { Required(mBaseElement).SetLimits(results::CKELDLimitData::Create()); });
  OwnLimits();
}

void CKELDElement::SetBaseElement(std::shared_ptr<orvik::IBaseElement> Base) {
  if (!Base) return;
  mBaseElement = std::move(Base);
  Attempt([&] { mBaseElement->SetOuter(SelfElement()); });
}

void CKELDElement::OwnConfiguration() {
  Attempt([&] { Required(TestConfiguration()).SetOwner(SelfElement()); });
}

void CKELDElement::OwnLimits() {
  Attempt([&] { Required(As<results::CKELDLimitData>(Limits())).SetOwner(SelfElement()); });
}

void CKELDElement::OwnResult() {
  Attempt([&] {
    if (const auto Owned = ResultData()) Owned->SetOwner(SelfElement());
  });
}

bool CKELDElement::CloneInto(CKELDElement& Copy) const {
  const auto BaseCopy = AttemptValue(std::shared_ptr<orvik::IBaseElement>(),
                                     [&] { return As<orvik::IBaseElement>(Required(mBaseElement).Clone()); });
  if (!BaseCopy) return false;
  Copy.SetBaseElement(BaseCopy);
  Copy.OwnConfiguration();
  Copy.SetExpectedUnits(ExpectedUnits());
  Copy.OwnLimits();
  Copy.OwnResult();
  return true;
}

std::shared_ptr<orvik::ITestElement> CKELDElement::SelfElement() {
  auto Self = weak_from_this().lock();
  return Self ? std::shared_ptr<orvik::ITestElement>(std::move(Self), this) : nullptr;
}

std::shared_ptr<configuration::CKELDTestConfiguration> CKELDElement::TestConfiguration() const {
  return As<configuration::CKELDTestConfiguration>(Configuration());
}

// --- ITestElement: forwarded to the base element ---

void CKELDElement::ITestElement_Initialize(const std::string& sPlugInID, std::int32_t lElementID,
                                           std::int32_t lTestID) {
  Attempt([&] { Required(mBaseElement).Initialize(sPlugInID, lElementID, lTestID); });
  OwnLimits();
}

void CKELDElement::ITestElement_Load(std::shared_ptr<orvik::IXmlNode> Node,
                                     std::shared_ptr<orvik::IObject> Context) {
  Attempt([&] {
    if (Required(Node).Name() != MXmlConstants::kResultItem) return;
    Required(mBaseElement).SetResult(results::CKELDResultData::Create());
    OwnResult();
  });
  Attempt([&] { Required(mBaseElement).Load(Node, Context); });
}

std::shared_ptr<orvik::IXmlNode> CKELDElement::ITestElement_Save(
    std::shared_ptr<orvik::IXmlNode> Parent) const {
  return AttemptValue(std::shared_ptr<orvik::IXmlNode>(),
                      [&] { return Required(mBaseElement).Save(Parent); });
}

orvik::Variant CKELDElement::ITestElement_Info() const {
  return AttemptValue(orvik::Variant(), [&] { return Required(mBaseElement).Info(); });
}

bool CKELDElement::ITestElement_QuerySetParent(std::shared_ptr<orvik::ITestElement>) const { return true; }

void CKELDElement::ITestElement_UpdateReferences() {
  Attempt([&] { Required(Limits()).UpdateLimits(SelfElement()); });
}

std::shared_ptr<orvik::IConfigData> CKELDElement::ITestElement_Configuration() const {
  return AttemptValue(std::shared_ptr<orvik::IConfigData>(),
                      [&] { return Required(mBaseElement).Configuration(); });
}

std::shared_ptr<orvik::ILimitData> CKELDElement::ITestElement_Limits() const {
  return AttemptValue(std::shared_ptr<orvik::ILimitData>(), [&] { return Required(mBaseElement).Limits(); });
}

std::shared_ptr<orvik::IResultData> CKELDElement::ITestElement_Result() const {
  return AttemptValue(std::shared_ptr<orvik::IResultData>(), [&] { return Required(mBaseElement).Result(); });
}

void CKELDElement::ITestElement_PrintReport(std::shared_ptr<orvik::IReport> Report,
                                            std::shared_ptr<orvik::IObject> Context) {
  Attempt([&] {
    if (!Required(Required(mBaseElement).Auxiliary()).PrintElement() || !Printable()) return;
    mBaseElement->PrintReport(Report, Context);
  });
}

std::int32_t CKELDElement::ITestElement_ID() const {
  return AttemptValue(std::int32_t{0}, [&] { return Required(mBaseElement).ID(); });
}

void CKELDElement::ITestElement_SetID(std::int32_t lID) {
  Attempt([&] { Required(mBaseElement).SetID(lID); });
}

std::shared_ptr<orvik::ITestElement> CKELDElement::ITestElement_Parent() const {
  return AttemptValue(std::shared_ptr<orvik::ITestElement>(),
                      [&] { return Required(mBaseElement).Parent(); });
}

void CKELDElement::ITestElement_SetParent(std::shared_ptr<orvik::ITestElement> iteParent) {
  Attempt([&] { Required(mBaseElement).SetParent(iteParent); });
}

std::int32_t CKELDElement::ITestElement_TestID() const {
  return AttemptValue(std::int32_t{0}, [&] { return Required(mBaseElement).TestID(); });
}

std::string CKELDElement::ITestElement_PlugInID() const {
  return AttemptValue(std::string(), [&] { return Required(mBaseElement).PlugInID(); });
}

std::shared_ptr<orvik::IInformationRecord> CKELDElement::ITestElement_Information() const {
  return AttemptValue(std::shared_ptr<orvik::IInformationRecord>(),
                      [&] { return Required(mBaseElement).Information(); });
}

orvik::Variant CKELDElement::ITestElement_Filter() const {
  return AttemptValue(orvik::Variant(), [&] { return Required(mBaseElement).Filter(); });
}

orvik::Variant CKELDElement::ITestElement_GetMeasurementList() const {
  return AttemptValue(orvik::Variant(), [&] { return Required(mBaseElement).GetMeasurementList(); });
}

}  // namespace keld::model

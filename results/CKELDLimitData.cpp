#include "results/CKELDLimitData.h"

#include <utility>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/Codes.h"
#include "OrvikTypeLib/HostClasses.h"
#include "OrvikTypeLib/ILimit.h"
#include "OrvikTypeLib/ILimitView.h"
#include "OrvikTypeLib/IMeasurement.h"
#include "OrvikTypeLib/IReport.h"
#include "OrvikTypeLib/IStandard.h"
#include "OrvikTypeLib/IStandardColl.h"
#include "OrvikTypeLib/ITestElement.h"
#include "OrvikTypeLib/IXmlNode.h"
#include "model/IKELDTest.h"
#include "platform/IContainerSite.h"
#include "platform/IUserControl.h"
#include "plugin/base/ClassIdentifiers.h"
#include "plugin/base/MKELDConstants.h"
#include "plugin/base/MKELDGlobalVars.h"
#include "plugin/base/MKELDLanguageConstants.h"
#include "plugin/base/MXmlConstants.h"
#include "plugin/configuration/FElementSetup.h"
#include "results/JudgedValue.h"

namespace keld::results {

using orvik::As;
using orvik::Required;

namespace {

std::shared_ptr<orvik::IStandardColl> NewCollection() {
  return MKELDGlobalVars::CreateHostObject<orvik::IStandardColl>(orvik::HostClasses::kStandardColl);
}

std::vector<std::string> ReportHeader() {
  return {MKELDConstants::kLimitKey, MKELDGlobalVars::Translated(MKELDLanguageConstants::kTestLimits), "0"};
}

/// Whether a measured value fails a standard. A value that is not a number fails, so that it never counts
/// as passed.
bool Fails(const orvik::IStandard& Standard, const std::optional<float>& Value,
           const std::string& sLimitKey) {
  return !Value || Standard.Evaluate(*Value, sLimitKey, {}) == orvik::Judgement::kLimitExceeded;
}

}  // namespace

std::shared_ptr<CKELDLimitData> CKELDLimitData::Create() { return std::make_shared<CKELDLimitData>(); }

std::string CKELDLimitData::IObject_ClassID() const { return ClassIdentifiers::kLimitData; }

void CKELDLimitData::AddStandard(std::shared_ptr<orvik::IStandard> Standard) {
  if (!mStandards) mStandards = NewCollection();
  if (Standard) mStandards->Add(std::move(Standard));
}

void CKELDLimitData::CopyFrom(std::shared_ptr<const orvik::ILimitData> Source) {
  if (!Source) return;
  // Read before the own collection is replaced, so that nothing is lost if the source fails or is this
  // object.
  const auto Standards = Source->Standards();
  mStandards = Standards ? Standards->Clone() : nullptr;
}

void CKELDLimitData::SetOwner(std::shared_ptr<orvik::ITestElement> iteOwner) { mOwner = iteOwner; }

std::shared_ptr<orvik::IObject> CKELDLimitData::ILimitData_Owner() const { return mOwner.lock(); }

std::shared_ptr<orvik::ILimitData> CKELDLimitData::ILimitData_Clone() const {
  auto Copy = CKELDLimitData::Create();
  Copy->CopyFrom(std::shared_ptr<const orvik::ILimitData>(shared_from_this(), this));
  return Copy;
}

std::string CKELDLimitData::ExpectedUnits() const {
  return Required(As<model::IKELDTest>(Required(mOwner))).ExpectedUnits();
}

bool CKELDLimitData::HasStandards() const { return mStandards && mStandards->Count() > 0; }

std::shared_ptr<orvik::IDialog> CKELDLimitData::ILimitData_CreateDialog() {
  auto Dialog = configuration::FElementSetup::Create();
  const auto Site = Dialog->CreateSetupCtrl(orvik::HostClasses::kLimitView);
  const auto LimitView = As<orvik::ILimitView>(Required(Site).Object());
  const std::string sUnit = ExpectedUnits();
  // Bounds may be entered in the element's unit or as a percentage.
  const std::string sAllowedUnits = ExpectedUnits() + ";%";
  Required(LimitView).InitializeView(MKELDConstants::kLimitKey,
                                     MKELDGlobalVars::Translated(MKELDLanguageConstants::kKELDTest), sUnit,
                                     sAllowedUnits);
  Dialog->Initialize(shared_from_this(), {}, {}, {});
  return Dialog;
}

std::shared_ptr<orvik::IStandard> CKELDLimitData::ILimitData_CreateStandard(const std::string& sName,
                                                                            const std::string& sDescription) {
  const auto Standard = MKELDGlobalVars::CreateHostObject<orvik::IStandard>(orvik::HostClasses::kStandard);
  Standard->Initialize(sName, sDescription, 1);
  const auto Limit = MKELDGlobalVars::CreateHostObject<orvik::ILimit>(orvik::HostClasses::kLimit);
  Limit->Initialize(MKELDConstants::kLimitKey, ExpectedUnits(), "", "");
  Standard->AddLimit(Limit);
  AddStandard(Standard);
  return Standard;
}

void CKELDLimitData::ILimitData_Load(std::shared_ptr<orvik::IXmlNode> Node,
                                     std::shared_ptr<orvik::IObject> Context) {
  const auto Loaded = NewCollection();
  Loaded->Load(std::move(Node), std::move(Context));
  mStandards = Loaded->Count() > 0 ? Loaded : nullptr;
}

std::shared_ptr<orvik::IXmlNode> CKELDLimitData::ILimitData_Save(
    std::shared_ptr<orvik::IXmlNode> Parent) const {
  if (!mStandards) return {};
  auto Node = mStandards->Save(std::move(Parent));
  if (Node) Node->SetName(MXmlConstants::kExpectedResult);
  return Node;
}

void CKELDLimitData::ILimitData_PrintReport(std::shared_ptr<orvik::IReport> Report,
                                            std::shared_ptr<orvik::IObject> Context) {
  if (!HasStandards()) return;
  const auto Self = shared_from_this();
  const std::vector<std::string> asHeader = ReportHeader();
  mStandards->Print(std::move(Report), As<orvik::ITestElement>(Context), asHeader);
  mPrintAccessed.Raise(asHeader);
}

std::shared_ptr<orvik::IStandardColl> CKELDLimitData::ILimitData_FindFailedStandards(
    std::shared_ptr<orvik::IMeasurement> Measurement, std::shared_ptr<orvik::IStandardColl> Standards) const {
  if (!Measurement || !HasStandards()) return {};
  const std::string sLimitKey = Measurement->LimitKey();
  const auto Value = JudgedValue(Measurement->value());
  auto Failed = NewCollection();
  const std::int32_t lCount = Required(Standards).Count();
  for (std::int32_t lIndex = 1; lIndex <= lCount; ++lIndex) {
    const auto Selected = Standards->item(lIndex);
    const auto Own = mStandards->Find(Required(Selected).Name(), Selected->Description());
    if (Own && Fails(*Own, Value, sLimitKey)) Failed->Add(Own);
  }
  return Failed->Count() > 0 ? Failed : nullptr;
}

}  // namespace keld::results

#include "results/CKELDResultData.h"

#include <utility>
#include <vector>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/IMeasurement.h"
#include "OrvikTypeLib/IReport.h"
#include "OrvikTypeLib/IServiceRecord.h"
#include "OrvikTypeLib/ITestContainer.h"
#include "OrvikTypeLib/ITestElement.h"
#include "OrvikTypeLib/ITestEnumerator.h"
#include "instrument/CKELDMeasurement.h"
#include "plugin/base/Attempt.h"
#include "plugin/base/ClassIdentifiers.h"
#include "plugin/configuration/FElementSetup.h"
#include "results/ResultReport.h"
#include "results/ResultServiceRecord.h"

namespace keld::results {

using orvik::As;
using orvik::Required;

std::shared_ptr<CKELDResultData> CKELDResultData::Create() { return std::make_shared<CKELDResultData>(); }

std::string CKELDResultData::IObject_ClassID() const { return ClassIdentifiers::kResultData; }

void CKELDResultData::SetMeasurement(std::shared_ptr<orvik::IMeasurement> Measurement) {
  mMeasurement = std::move(Measurement);
}

void CKELDResultData::SetMTIIdentifier(std::int32_t lIdentifier) { lMTIIdentifier = lIdentifier; }

void CKELDResultData::SetStatus(std::int32_t lNewStatus) { lStatus = lNewStatus; }

void CKELDResultData::SetServiceRecord(std::shared_ptr<orvik::IServiceRecord> ServiceRecord) {
  mServiceRecord = std::move(ServiceRecord);
}

std::string CKELDResultData::ReportPart(int iIndex) const {
  const auto lIndex = static_cast<std::size_t>(iIndex);
  return iIndex >= 1 && lIndex <= asReportParts.size() ? asReportParts[lIndex - 1] : std::string();
}

void CKELDResultData::Reset(std::shared_ptr<orvik::ITestElement> iteElement, std::int32_t lNewStatus) {
  ResetThis(iteElement, lNewStatus);
  // A list of walks instead of recursion: deeply nested sequences would overflow the stack.
  std::vector<std::shared_ptr<orvik::ITestEnumerator>> Walks;
  const auto Descend = [&Walks](const std::shared_ptr<orvik::ITestElement>& iteParent) {
    if (const auto Children = As<orvik::ITestContainer>(iteParent)) Walks.push_back(Children->NewEnum());
  };
  Descend(iteElement);
  while (!Walks.empty()) {
    const auto iteChild = Required(Walks.back()).Next();
    if (!iteChild) {
      Walks.pop_back();
      continue;
    }
    if (const auto Result = As<CKELDResultData>(iteChild->Result())) Result->ResetThis(iteChild, lNewStatus);
    Descend(iteChild);
  }
}

void CKELDResultData::ResetThis(const std::shared_ptr<orvik::ITestElement>& iteElement,
                                std::int32_t lNewStatus) {
  mMeasurement.reset();
  lStatus = lNewStatus;
  BuildServiceRecord(iteElement);
}

void CKELDResultData::BuildServiceRecord(std::shared_ptr<orvik::ITestElement> iteElement) {
  mOwner = iteElement;
  // First, so that no earlier summary remains if the new one cannot be created.
  mServiceRecord.reset();
  mServiceRecord = MakeServiceRecord(iteElement, lStatus, OwnValue());
}

orvik::Variant CKELDResultData::OwnValue() const {
  return mMeasurement ? mMeasurement->value() : orvik::Variant();
}

// The one measurement, for any index.
std::shared_ptr<orvik::IMeasurement> CKELDResultData::IResultData_Measurement(std::int32_t) const {
  return mMeasurement;
}

std::shared_ptr<orvik::IDialog> CKELDResultData::IResultData_CreateDialog() {
  std::shared_ptr<configuration::FElementSetup> Dialog;
  Attempt([&] { Dialog = configuration::FElementSetup::Create(); });
  Attempt([&] { Required(Dialog).CreateSetupCtrl(ClassIdentifiers::kDetailedResult); });
  Attempt([&] { Required(Dialog).Initialize(shared_from_this(), {}, {}, {}); });
  return Dialog;
}

void CKELDResultData::IResultData_PrintReport(std::shared_ptr<orvik::IReport> Report,
                                              std::shared_ptr<orvik::ITestElement>) {
  auto& Printer = Required(Report);
  asReportParts = {ResultReport::Format(Printer), ResultReport::Header(Printer), ""};
  if (!mMeasurement) return;
  asReportParts.back() = Required(As<instrument::CKELDMeasurement>(mMeasurement)).ReportLine(Report);
  if (asReportParts.back().empty()) return;
  constexpr std::int32_t kBoxColumnsAndRows = 7;
  Printer.SetTableBorder(kBoxColumnsAndRows);
  Printer.SetTableIndent(0);
  Printer.SetHeaderRows(1);
  Printer.AddTable(asReportParts[0], asReportParts[1], asReportParts[2]);
}

}  // namespace keld::results

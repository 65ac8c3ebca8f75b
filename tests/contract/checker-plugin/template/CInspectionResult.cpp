#include "tests/contract/checker-plugin/template/CInspectionResult.h"

#include "OrvikTypeLib/Codes.h"
#include "OrvikTypeLib/HostClasses.h"
#include "OrvikTypeLib/IDialog.h"
#include "OrvikTypeLib/IInformationRecord.h"
#include "OrvikTypeLib/IMeasurement.h"
#include "OrvikTypeLib/IPersistence.h"
#include "OrvikTypeLib/IReport.h"
#include "OrvikTypeLib/ITestElement.h"
#include "OrvikTypeLib/IXmlNode.h"
#include "tests/contract/checker-plugin/template/Names.h"
#include "tests/contract/checker-plugin/template/TheHost.h"

namespace check {
namespace {

constexpr char kStatus[] = "Status";
constexpr char kComment[] = "Comment";
constexpr char kServiceRecord[] = "ServiceRecord";

std::shared_ptr<orvik::IServiceRecord> NewServiceRecord() {
  return NewHostObject<orvik::IServiceRecord>(orvik::HostClasses::kServiceRecord);
}

std::shared_ptr<orvik::IPersistence> Persistence() {
  return NewHostObject<orvik::IPersistence>(orvik::HostClasses::kPersistence);
}

std::string VerdictText(std::int32_t status) {
  if (status == orvik::ResultStatus::kPassed) return Translated("30005::undamaged");
  if (status == orvik::ResultStatus::kFailed) return Translated("30006::DAMAGED");
  return Translated("30007::not inspected");
}

}  // namespace

std::shared_ptr<CInspectionResult> CInspectionResult::Create() {
  return std::shared_ptr<CInspectionResult>(new CInspectionResult);
}

// Hosts copy a result by creating another of this class and loading what the first one saves.
std::string CInspectionResult::IObject_ClassID() const { return names::kResultClass; }

void CInspectionResult::Decide(std::int32_t status, const orvik::ITestElement& element) {
  status_ = status;
  serviceRecord_ = NewServiceRecord();
  serviceRecord_->Initialize(element.Information(), orvik::ServiceCode::Of(status), "");
}

std::shared_ptr<orvik::IMeasurement> CInspectionResult::IResultData_Measurement(std::int32_t) const {
  return {};
}

std::shared_ptr<orvik::IDialog> CInspectionResult::IResultData_CreateDialog() { return {}; }

std::shared_ptr<orvik::IXmlNode> CInspectionResult::IResultData_Save(
    std::shared_ptr<orvik::IXmlNode> parent) const {
  const auto item = orvik::Required(parent).AddChild(kNode);
  Persistence()->WriteStatus(item, "", status_);
  if (serviceRecord_) serviceRecord_->Save(item);
  if (!comment_.empty()) item->AddChild(kComment)->SetText(comment_);
  return item;
}

void CInspectionResult::IResultData_Load(std::shared_ptr<orvik::IXmlNode> node,
                                         std::shared_ptr<orvik::IObject> context) {
  for (auto child = orvik::Required(node).FirstChild(); child; child = child->NextSibling()) {
    const std::string name = child->Name();
    if (name == kStatus) {
      status_ = Persistence()->ReadStatus(child);
    } else if (name == kComment) {
      comment_ = child->Text();
    } else if (name == kServiceRecord) {
      serviceRecord_ = NewServiceRecord();
      serviceRecord_->Load(child, context);
    }
  }
}

// One table of two columns. Typed text is escaped, or it could read as markup.
void CInspectionResult::IResultData_PrintReport(std::shared_ptr<orvik::IReport> report,
                                                std::shared_ptr<orvik::ITestElement> element) {
  auto& page = orvik::Required(report);
  const std::string half = std::to_string(page.Metric(10) / 2);
  page.SetTableBorder(7);
  page.SetTableIndent(0);
  page.SetHeaderRows(0);
  page.AddTable("<+" + half + "|<+" + half + ";", "",
                page.Escape(orvik::Required(element).Information()->DisplayName()) + "|" +
                    page.Escape(VerdictText(status_)) + ";");
}

}  // namespace check

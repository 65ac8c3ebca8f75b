#include "tests/contract/checker-plugin/template/CInspection.h"

#include <utility>

#include "OrvikTypeLib/Codes.h"
#include "OrvikTypeLib/HostClasses.h"
#include "OrvikTypeLib/IConfigData.h"
#include "OrvikTypeLib/IInformationRecord.h"
#include "OrvikTypeLib/ILimitData.h"
#include "OrvikTypeLib/IReport.h"
#include "OrvikTypeLib/IResultData.h"
#include "OrvikTypeLib/IRunController.h"
#include "OrvikTypeLib/IXmlNode.h"
#include "tests/contract/checker-plugin/template/AskUndamaged.h"
#include "tests/contract/checker-plugin/template/CInspectionResult.h"
#include "tests/contract/checker-plugin/template/Names.h"
#include "tests/contract/checker-plugin/template/TheHost.h"

namespace check {

// An object that needs itself while it is set up has a `Create`: `shared_from_this` works from there on.
std::shared_ptr<CInspection> CInspection::Create() {
  const std::shared_ptr<CInspection> created(new CInspection);
  created->Wrap(NewHostObject<orvik::IBaseElement>(orvik::HostClasses::kTestElement));
  return created;
}

/// From here on children, reports and saved documents see this element in the place of the host's.
void CInspection::Wrap(std::shared_ptr<orvik::IBaseElement> base) {
  base_ = std::move(base);
  base_->SetOuter(orvik::As<orvik::ITestElement>(shared_from_this()));
}

// The name by which a document creates the element again.
std::string CInspection::IObject_ClassID() const { return names::kInspectionClass; }

// The host's element copies itself deeply; the copy is wrapped again, or it would no longer be of this class.
std::shared_ptr<orvik::ITestElement> CInspection::ITestElement_Clone() const {
  auto copy = Create();
  copy->Wrap(orvik::As<orvik::IBaseElement>(base_->Clone()));
  return copy;
}

// The host's element cannot know which class a saved result has, so it asks the plug-in's element first.
void CInspection::ITestElement_Load(std::shared_ptr<orvik::IXmlNode> node,
                                    std::shared_ptr<orvik::IObject> context) {
  if (orvik::Required(node).Name() == CInspectionResult::kNode) NewResult();
  base_->Load(node, context);
}

std::shared_ptr<CInspectionResult> CInspection::NewResult() {
  auto result = CInspectionResult::Create();
  base_->SetResult(result);
  return result;
}

// The run: ask whether it may start, do the work, store the outcome, notify the host. `Navigation::kNext`
// asks for the next element, `kAbort` ends the whole run.
void CInspection::ITestElement_Perform(std::shared_ptr<orvik::IRunController> controller) {
  // The operator may close the document meanwhile: stay alive until the operation is over.
  const auto self = orvik::As<orvik::ITestElement>(shared_from_this());
  if (!orvik::Required(controller).StartQuery(self)) return;

  const auto answer = AskUndamaged(Information()->DisplayName());
  const auto result = NewResult();
  if (answer == Answer::kUndamaged) result->Decide(orvik::ResultStatus::kPassed, *self);
  if (answer == Answer::kDamaged) result->Decide(orvik::ResultStatus::kFailed, *self);
  // A window closed without an answer leaves "not tested": never a pass without an answer.

  controller->FinishedNotice(self);
  controller->NavigationRequest(answer == Answer::kNone ? orvik::Navigation::kAbort
                                                        : orvik::Navigation::kNext);
}

// --- passed on ---

void CInspection::ITestElement_Initialize(const std::string& plugInId, std::int32_t elementId,
                                          std::int32_t testId) {
  base_->Initialize(plugInId, elementId, testId);
}

std::shared_ptr<orvik::IXmlNode> CInspection::ITestElement_Save(
    std::shared_ptr<orvik::IXmlNode> parent) const {
  return base_->Save(std::move(parent));
}

bool CInspection::ITestElement_QuerySetParent(std::shared_ptr<orvik::ITestElement> parent) const {
  return base_->QuerySetParent(std::move(parent));
}

std::shared_ptr<orvik::IConfigData> CInspection::ITestElement_Configuration() const {
  return base_->Configuration();
}

std::shared_ptr<orvik::ILimitData> CInspection::ITestElement_Limits() const { return base_->Limits(); }

std::shared_ptr<orvik::IResultData> CInspection::ITestElement_Result() const { return base_->Result(); }

void CInspection::ITestElement_PrintReport(std::shared_ptr<orvik::IReport> report,
                                           std::shared_ptr<orvik::IObject> context) {
  base_->PrintReport(std::move(report), std::move(context));
}

void CInspection::ITestElement_SetParent(std::shared_ptr<orvik::ITestElement> parent) {
  base_->SetParent(std::move(parent));
}

std::shared_ptr<orvik::IInformationRecord> CInspection::ITestElement_Information() const {
  return base_->Information();
}

}  // namespace check

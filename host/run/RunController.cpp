#include "host/run/RunController.h"

#include <utility>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/HostError.h"
#include "host/base/Tr.h"
#include "host/document/ElementWalk.h"

namespace host::run {

bool RunController::Begin(const RunRecorder::Heading& heading,
                          const std::vector<std::shared_ptr<orvik::ITestElement>>& elements) {
  parts_.recorder.Begin(heading, elements);
  Save();
  return saveFailure_.empty();
}

bool RunController::IRunController_StartQuery(std::shared_ptr<orvik::ITestElement> iteElement) {
  const auto id = orvik::Required(iteElement).ID();
  // The query of an opening guide measures nothing yet: an older result stays.
  if (std::exchange(opening_, std::nullopt) == id) return true;
  const bool again = parts_.recorder.Starts(iteElement);
  if (again || !saveFailure_.empty()) Save();
  // Never measure what is not on record: after a power cut the earlier result would count.
  if (!saveFailure_.empty()) return false;
  parts_.doubts.ElementStarts(id);
  running_.insert(id);
  started_.Raise(iteElement);
  return true;
}

void RunController::IRunController_NavigationRequest(std::int32_t lCode) {
  if (lCode < orvik::Navigation::kNext || lCode > orvik::Navigation::kNotApplicable)
    throw orvik::HostError(orvik::HostError::kInvalidArgument, "orvik.RunController",
                           Tr("navigation request %%1 is not one of 0 to 4", {std::to_string(lCode)}));
  asked_ = static_cast<orvik::Navigation::Code>(lCode);
}

void RunController::IRunController_FinishedNotice(std::shared_ptr<orvik::ITestElement> iteElement) {
  const bool ran = running_.erase(orvik::Required(iteElement).ID()) > 0;
  if (ran) {
    parts_.recorder.Finished(iteElement, document::RecordedTest::By::kTester);
  } else {
    // The operator skipped it or recorded it as not applicable: what the tester said no longer matters.
    ForgetDoubts(iteElement);
    parts_.recorder.Finished(iteElement, document::RecordedTest::By::kOperator);
  }
  // Before the event: its handlers may rely on the saved document.
  Save();
  finished_.Raise(iteElement);
}

void RunController::ForgetDoubts(const std::shared_ptr<orvik::ITestElement>& top) {
  document::WalkElements(top, [this](const std::shared_ptr<orvik::ITestElement>& element) {
    parts_.doubts.Forget(element->ID());
  });
}

void RunController::Settle(const std::shared_ptr<orvik::ITestElement>& element) {
  parts_.recorder.Settle(element, asked_ == orvik::Navigation::kAbort);
  Save();
}

void RunController::End(document::RunRecord::End end) {
  parts_.recorder.End(end);
  Save();
}

void RunController::Save() {
  try {
    parts_.save();
    saveFailure_.clear();
  } catch (const orvik::HostError& error) {
    // The plug-in's element could not handle it; `DocumentRunner` reads it.
    saveFailure_ = error.Description();
  }
}

}  // namespace host::run

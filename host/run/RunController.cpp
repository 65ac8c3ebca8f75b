#include "host/run/RunController.h"

#include <utility>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/HostError.h"
#include "host/base/Tr.h"
#include "host/document/ElementWalk.h"

namespace bench {

bool RunController::Begin(const RunRecorder::Heading& heading,
                          const std::vector<std::shared_ptr<orvik::ITestElement>>& elements) {
  parts_.recorder.Begin(heading, elements);
  Save();
  return saveFailure_.empty();
}

bool RunController::IRunController_StartQuery(std::shared_ptr<orvik::ITestElement> iteElement) {
  const auto id = orvik::Required(iteElement).ID();
  // A guide that opens leaves an older result as it is.
  if (std::exchange(opening_, std::nullopt) == id) return true;
  const bool again = parts_.recorder.Starts(iteElement);
  if (again || !saveFailure_.empty()) Save();
  // What is not on record must not be measured: a power cut would leave the earlier result.
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
  // Without a run the operator set the element aside, or said that the test does not apply.
  const bool ran = running_.erase(orvik::Required(iteElement).ID()) > 0;
  if (!ran)
    WalkElements(iteElement, [this](const std::shared_ptr<orvik::ITestElement>& below) {
      parts_.doubts.Forget(below->ID());
    });
  parts_.recorder.Finished(iteElement, ran ? RecordedTest::By::kTester : RecordedTest::By::kOperator);
  // Whoever hears that it has finished may rely on the document.
  Save();
  finished_.Raise(iteElement);
}

void RunController::Settle(const std::shared_ptr<orvik::ITestElement>& element) {
  parts_.recorder.Settle(element, asked_ == orvik::Navigation::kAbort);
  Save();
}

void RunController::End(RunRecord::End end) {
  parts_.recorder.End(end);
  Save();
}

void RunController::Save() {
  try {
    parts_.save();
    saveFailure_.clear();
  } catch (const orvik::HostError& error) {
    // An element cannot do anything about it; the document's runner asks.
    saveFailure_ = error.Description();
  }
}

}  // namespace bench

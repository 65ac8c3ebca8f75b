#include "host/run/RunController.h"

#include <utility>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/HostError.h"
#include "OrvikTypeLib/IResultData.h"
#include "OrvikTypeLib/ITestContainer.h"
#include "host/run/ElementDoubts.h"
#include "host/run/ElementWalk.h"
#include "host/run/RunMark.h"
#include "host/services/Tr.h"

namespace bench {

bool RunController::IRunController_StartQuery(std::shared_ptr<orvik::ITestElement> iteElement) {
  const auto id = orvik::Required(iteElement).ID();
  // A guide that opens leaves an older result as it is, and what speaks against it.
  if (std::exchange(opening_, std::nullopt) == id) return true;
  ForgetDoubts(iteElement);
  parts_.doubts.ElementStarts(id);
  running_.insert(id);
  started_.Raise(iteElement);
  return true;
}

void RunController::IRunController_NavigationRequest(std::int32_t lCode) {
  if (lCode < static_cast<std::int32_t>(Navigation::kNext) ||
      lCode > static_cast<std::int32_t>(Navigation::kNotApplicable))
    throw orvik::HostError(orvik::HostError::kInvalidArgument, "orvik.RunController",
                           Tr("navigation request %%1 is not one of 0 to 4", {std::to_string(lCode)}));
  asked_ = static_cast<Navigation>(lCode);
}

void RunController::IRunController_FinishedNotice(std::shared_ptr<orvik::ITestElement> iteElement) {
  const auto& element = orvik::Required(iteElement);
  // Without a run the operator set the result aside, or said that the test does not apply.
  if (running_.erase(element.ID()) == 0) ForgetDoubts(iteElement);
  // The measurement of a sequence is computed, and carries no unit.
  if (!orvik::As<orvik::ITestContainer>(iteElement)) {
    for (const auto& doubt :
         {UnitDoubt(element), LeadsDoubt(element, parts_.instruments, parts_.doubts.LastOhms())}) {
      if (!doubt.empty()) parts_.doubts.Add(element.ID(), doubt);
    }
  }
  results_.Finished(iteElement);
  StoreDoubts(iteElement);
  MarkRun(iteElement);
  // Whoever hears that it has finished may rely on the document.
  Save();
  finished_.Raise(iteElement);
}

void RunController::Settle(const std::shared_ptr<orvik::ITestElement>& element) {
  results_.Settle(element);
  WalkElements(element, [this](const std::shared_ptr<orvik::ITestElement>& below) { StoreDoubts(below); });
  Save();
}

void RunController::MarkRun(const std::shared_ptr<orvik::ITestElement>& element) {
  const auto result = element->Result();
  if (parts_.clock && result && result->Status() != 0)
    SetRunMark(element, parts_.factory, RunMark{parts_.clock(), parts_.by});
}

void RunController::ForgetDoubts(const std::shared_ptr<orvik::ITestElement>& element) {
  WalkElements(element, [this](const std::shared_ptr<orvik::ITestElement>& below) {
    parts_.doubts.Forget(below->ID());
    SetDoubts(below, parts_.factory, {});
    SetRunMark(below, parts_.factory, std::nullopt);
  });
}

void RunController::StoreDoubts(const std::shared_ptr<orvik::ITestElement>& element) {
  const auto& noted = parts_.doubts.Of(element->ID());
  if (!noted.empty()) SetDoubts(element, parts_.factory, noted);
}

void RunController::Save() {
  try {
    parts_.save();
  } catch (const orvik::HostError& error) {
    // An element cannot do anything about it; the document's runner asks.
    saveFailure_ = error.Description();
  }
}

}  // namespace bench

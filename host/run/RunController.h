#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>

#include "OrvikTypeLib/IInstrumentColl.h"
#include "OrvikTypeLib/IRunController.h"
#include "OrvikTypeLib/IStandardColl.h"
#include "OrvikTypeLib/ITestElement.h"
#include "host/run/DoubtTracker.h"
#include "host/run/ResultWatch.h"
#include "host/services/WallClock.h"
#include "platform/Event.h"

namespace bench {

class ElementFactory;

/// What the operator asked for when an element was left.
enum class Navigation { kNext = 0, kPrevious = 1, kAbort = 2, kSkip = 3, kNotApplicable = 4 };

/// What elements ask and tell while they run. Notes the doubts about each, and has the document saved after
/// each that has finished.
class RunController final : public orvik::IRunController {
 public:
  struct Parts {
    std::shared_ptr<orvik::IStandardColl> standards;
    std::shared_ptr<orvik::IInstrumentColl> instruments;
    const ElementFactory& factory;
    DoubtTracker& doubts;
    /// Saves the document; may throw `HostError`.
    std::function<void()> save;
    /// Tells the time of day that results are marked with; without it they get no mark.
    WallClock clock = {};
    /// Who operates the tester.
    std::string by = {};
  };

  explicit RunController(Parts parts) : parts_(std::move(parts)), results_(parts_.doubts) {}

  /// An element has begun to run, or its run is over.
  orvik::platform::Event<const std::shared_ptr<orvik::ITestElement>&>& Started() { return started_; }
  orvik::platform::Event<const std::shared_ptr<orvik::ITestElement>&>& Finished() { return finished_; }

  /// The element is about to be performed. Its first start query is for its guide; those after it for runs.
  void Open(const orvik::ITestElement& element) { opening_ = element.ID(); }
  /// What was asked for last.
  Navigation Asked() const { return asked_; }
  /// Stores what was noted about the element and all that stands below it, and saves the document. What came
  /// to light while the session was being closed counts too.
  void Settle(const std::shared_ptr<orvik::ITestElement>& element);
  /// Why the document could not be saved while an element ran; empty as long as it could. The element could
  /// not be told.
  const std::string& SaveFailure() const { return saveFailure_; }

 private:
  bool IRunController_StartQuery(std::shared_ptr<orvik::ITestElement> iteElement) override;
  void IRunController_NavigationRequest(std::int32_t lCode) override;
  void IRunController_FinishedNotice(std::shared_ptr<orvik::ITestElement> iteElement) override;
  std::shared_ptr<orvik::IStandardColl> IRunController_Standards() const override { return parts_.standards; }
  std::shared_ptr<orvik::IInstrumentColl> IRunController_Instruments() const override {
    return parts_.instruments;
  }

  void MarkRun(const std::shared_ptr<orvik::ITestElement>& element);
  void ForgetDoubts(const std::shared_ptr<orvik::ITestElement>& element);
  void StoreDoubts(const std::shared_ptr<orvik::ITestElement>& element);
  void Save();

  const Parts parts_;
  ResultWatch results_;
  std::optional<std::int32_t> opening_;
  std::set<std::int32_t> running_;  ///< started, and not finished
  Navigation asked_ = Navigation::kNext;
  std::string saveFailure_;
  orvik::platform::Event<const std::shared_ptr<orvik::ITestElement>&> started_;
  orvik::platform::Event<const std::shared_ptr<orvik::ITestElement>&> finished_;
};

}  // namespace bench

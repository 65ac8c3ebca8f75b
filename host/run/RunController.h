#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "OrvikTypeLib/Codes.h"
#include "OrvikTypeLib/IInstrumentColl.h"
#include "OrvikTypeLib/IRunController.h"
#include "OrvikTypeLib/IStandardColl.h"
#include "OrvikTypeLib/ITestElement.h"
#include "host/run/DoubtTracker.h"
#include "host/run/RunRecorder.h"
#include "platform/Event.h"

namespace host::run {

/// Answers the running elements and records what they report. Saves the document before an element is
/// measured again, and after each element that has finished.
class RunController final : public orvik::IRunController {
 public:
  struct Parts {
    std::shared_ptr<orvik::IStandardColl> standards;
    std::shared_ptr<orvik::IInstrumentColl> instruments;
    DoubtTracker& doubts;
    RunRecorder& recorder;
    /// Saves the document; may throw `HostError`.
    std::function<void()> save;
  };

  explicit RunController(Parts parts) : parts_(std::move(parts)) {}

  /// An element has started to measure, or has finished.
  orvik::platform::Event<const std::shared_ptr<orvik::ITestElement>&>& Started() { return started_; }
  orvik::platform::Event<const std::shared_ptr<orvik::ITestElement>&>& Finished() { return finished_; }

  /// The element is about to be performed: its next start query is for the guide, not for a measurement.
  void Open(const orvik::ITestElement& element) { opening_ = element.ID(); }
  /// What the operator asked for when the last element was left.
  orvik::Navigation::Code Asked() const { return asked_; }
  /// Starts a run of these elements, which have no current result from here on.
  /// @return whether that could be saved; if not, nothing may be measured
  bool Begin(const RunRecorder::Heading& heading,
             const std::vector<std::shared_ptr<orvik::ITestElement>>& elements);
  /// Records what closing the session revealed about the element and all below it, and saves the document.
  void Settle(const std::shared_ptr<orvik::ITestElement>& element);
  /// Ends the run and saves the document.
  void End(document::RunRecord::End end);
  /// Why the last save failed; empty after a successful one. The contract has no way to report it.
  const std::string& SaveFailure() const { return saveFailure_; }

 private:
  bool IRunController_StartQuery(std::shared_ptr<orvik::ITestElement> iteElement) override;
  void IRunController_NavigationRequest(std::int32_t lCode) override;
  void IRunController_FinishedNotice(std::shared_ptr<orvik::ITestElement> iteElement) override;
  std::shared_ptr<orvik::IStandardColl> IRunController_Standards() const override { return parts_.standards; }
  std::shared_ptr<orvik::IInstrumentColl> IRunController_Instruments() const override {
    return parts_.instruments;
  }

  void ForgetDoubts(const std::shared_ptr<orvik::ITestElement>& top);
  void Save();

  const Parts parts_;
  std::optional<std::int32_t> opening_;
  std::set<std::int32_t> running_;  ///< elements that have started and not finished
  orvik::Navigation::Code asked_ = orvik::Navigation::kNext;
  std::string saveFailure_;
  orvik::platform::Event<const std::shared_ptr<orvik::ITestElement>&> started_;
  orvik::platform::Event<const std::shared_ptr<orvik::ITestElement>&> finished_;
};

}  // namespace host::run

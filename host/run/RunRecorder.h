#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "OrvikTypeLib/IInstrumentColl.h"
#include "OrvikTypeLib/IMeasurement.h"
#include "OrvikTypeLib/IStandardColl.h"
#include "OrvikTypeLib/ITestElement.h"
#include "host/base/WallClock.h"
#include "host/document/Runs.h"
#include "host/run/DoubtTracker.h"

namespace host::run {

/// Records a run in the document's record of runs.
class RunRecorder {
 public:
  using Element = std::shared_ptr<orvik::ITestElement>;

  /// What is known of a run before it starts.
  struct Heading {
    document::Equipment equipment;
    std::string by;  ///< the operator's name; may be empty
    std::string port;
    std::string program;
    bool simulated = false;
    double timeScale = 1.0;
  };

  struct Parts {
    document::Runs& runs;
    std::shared_ptr<orvik::IInstrumentColl> instruments;
    std::shared_ptr<orvik::IStandardColl> standards;  ///< by which the plug-in judges
    const DoubtTracker& doubts;
    WallClock clock = LocalTimeText;
    /// When that tester's leads were measured as `leads` mOhm; empty when that is unknown.
    std::function<std::string(const std::string& serial, std::int32_t leads)> leadsMeasured = {};
  };

  explicit RunRecorder(Parts parts) : parts_(std::move(parts)) {}

  /// Starts a run that takes up these elements and all below them.
  void Begin(const Heading& heading, const std::vector<Element>& elements);
  /// The element is about to be measured.
  /// @return whether that was recorded: the run had finished the element already, or had not taken it up
  bool Starts(const Element& element);
  /// The element is finished; by the operator, all elements below it are finished, too.
  void Finished(const Element& element, document::RecordedTest::By by);
  /// The element has been left and its session is closed: records what happened since it finished, for it and
  /// all below it.
  /// @param aborted whether it was left by an abort; otherwise a saved "aborted" is from an earlier run
  void Settle(const Element& element, bool aborted);
  /// Ends the run.
  void End(document::RunRecord::End end);

 private:
  void SettleOne(const orvik::ITestElement& element, bool aborted);
  /// The current run's last record of the element; null until the run has finished it.
  document::RecordedTest* LastTest(std::int32_t element);
  document::RecordedTest TestOf(const orvik::ITestElement& element, document::RecordedTest::By by);
  void Append(const orvik::ITestElement& element, document::RecordedTest::By by);
  std::int32_t TesterOf(std::int32_t instrument);
  std::vector<document::RecordedLimit> JudgedBy(const orvik::ITestElement& element,
                                                const orvik::IMeasurement& measurement) const;

  const Parts parts_;
};

}  // namespace host::run

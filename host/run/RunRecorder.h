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

namespace bench {

/// Writes down what a run does, in the document's record of runs.
class RunRecorder {
 public:
  using Element = std::shared_ptr<orvik::ITestElement>;

  /// What is known of a run before it begins.
  struct Heading {
    Equipment equipment;
    std::string by;  ///< who operates the tester; may be empty
    std::string port;
    std::string program;
    bool simulated = false;
    double timeScale = 1.0;
  };

  struct Parts {
    Runs& runs;
    std::shared_ptr<orvik::IInstrumentColl> instruments;
    std::shared_ptr<orvik::IStandardColl> standards;  ///< those by which the plug-in judges
    const DoubtTracker& doubts;
    WallClock clock = LocalTimeText;
    /// When the test leads of that tester were measured as so many mOhm; empty when it is not known.
    std::function<std::string(const std::string& serial, std::int32_t leads)> leadsMeasured = {};
  };

  explicit RunRecorder(Parts parts) : parts_(std::move(parts)) {}

  /// A run begins that takes up these elements and all below them.
  void Begin(const Heading& heading, const std::vector<Element>& elements);
  /// The element is about to be measured. Returns whether that had to be written down: the run had finished
  /// it already, or had not taken it up.
  bool Starts(const Element& element);
  /// The element is finished. Set aside by the operator, all below it is finished, too.
  void Finished(const Element& element, RecordedTest::By by);
  /// The element has been left and its session is closed: writes down what came to light since it finished,
  /// for it and all below it.
  /// @param aborted whether it was left by an abort; otherwise a saved "aborted" is of an earlier run
  void Settle(const Element& element, bool aborted);
  /// The run is over.
  void End(RunRecord::End end);

 private:
  void SettleOne(const orvik::ITestElement& element, bool aborted);
  /// What the run that goes on recorded last of the element; null when it is yet to finish it.
  RecordedTest* LastTest(std::int32_t element);
  RecordedTest TestOf(const orvik::ITestElement& element, RecordedTest::By by);
  void Append(const orvik::ITestElement& element, RecordedTest::By by);
  std::int32_t TesterOf(std::int32_t instrument);
  std::vector<RecordedLimit> JudgedBy(const orvik::ITestElement& element,
                                      const orvik::IMeasurement& measurement) const;

  const Parts parts_;
};

}  // namespace bench

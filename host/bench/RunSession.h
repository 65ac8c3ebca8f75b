#pragma once

#include <memory>
#include <vector>

#include "OrvikTypeLib/ITestElement.h"
#include "host/bench/RunReporter.h"
#include "host/bench/StopProgress.h"
#include "host/bench/TesterConnection.h"
#include "host/bench/Workbench.h"
#include "host/run/DocumentRunner.h"
#include "host/run/DoubtTracker.h"
#include "host/run/IOperator.h"
#include "host/run/LinkWatch.h"
#include "host/run/RunRecorder.h"
#include "host/run/StopRequest.h"
#include "host/serial/WireLog.h"

namespace host::document {
class Document;
}

namespace host::bench {

/// `InputError` when the document has runs of the other kind: simulated and real ones never meet.
void RequireOneKindOfRuns(const document::Document& document, bool simulated);

/// One run of a document: connects tester, document, log and reporter.
class RunSession {
 public:
  /// @param by the name of the operator, for the record
  /// `InputError` when the document has runs on a tester of the other kind, real or simulated.
  RunSession(Workbench& workbench, document::Document& document, serial::WireLog& log, RunReporter& reporter,
             const TesterConnection& tester, const std::string& by);

  /// `reporter` gets verdicts by these standards; if empty, by every standard of the element.
  void JudgeBy(std::vector<std::string> standards) { standards_ = std::move(standards); }
  /// The run's stop request, for the operator of the guide.
  run::StopRequest& Stop() { return stop_; }
  /// Number and name of the test that the run has reached, whose guide is shown.
  std::string ReachedTest() const;
  /// Runs the elements while `runOperator` works the guide; returns when the session with the tester is over
  /// and the document saved.
  run::DocumentRunner::End Run(const std::vector<std::shared_ptr<orvik::ITestElement>>& elements,
                               std::unique_ptr<run::IOperator> runOperator);
  /// Why it ended so.
  const std::string& Reason() const { return runner_.Reason(); }
  /// Stops the run cleanly: drops the running test, closes the session with the tester, saves the document.
  /// Asked again, it reports the progress of that.
  void AskToStop();

 private:
  void Listen();
  judge::JudgedElement Judged(const orvik::ITestElement& element) const;

  Workbench& workbench_;
  document::Document& document_;
  serial::WireLog& log_;
  RunReporter& reporter_;
  std::vector<std::string> standards_;
  run::StopRequest stop_;
  const run::RunRecorder::Heading heading_;
  run::DoubtTracker doubts_;
  run::LinkWatch link_;
  StopProgress stopProgress_;
  run::RunRecorder recorder_;
  const std::shared_ptr<run::RunController> controller_;
  run::DocumentRunner runner_;
  std::shared_ptr<orvik::ITestElement> reached_;
  std::vector<orvik::platform::Subscription> heard_;
};

}  // namespace host::bench

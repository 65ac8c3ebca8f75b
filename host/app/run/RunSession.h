#pragma once

#include <memory>
#include <vector>

#include "OrvikTypeLib/ITestElement.h"
#include "host/app/Workbench.h"
#include "host/app/run/RunReporter.h"
#include "host/app/run/StopProgress.h"
#include "host/run/DocumentRunner.h"
#include "host/run/DoubtTracker.h"
#include "host/run/IOperator.h"
#include "host/run/LinkWatch.h"
#include "host/serial/WireLog.h"

namespace bench {

class Document;

/// Who operates the guide: the program itself, the person at the terminal by words, or the person before the
/// windows.
enum class OperatorKind { kProgram, kTerminal, kScreen };

/// One run of a document: everything that takes part in it, joined.
class RunSession {
 public:
  /// @param by the name of the operator, for the results
  RunSession(Workbench& workbench, Document& document, WireLog& log, RunReporter& reporter, OperatorKind kind,
             const std::string& by);

  /// Runs the elements; returns when the session with the tester is over and the document saved.
  DocumentRunner::End Run(const std::vector<std::shared_ptr<orvik::ITestElement>>& elements);
  /// Why it ended so.
  const std::string& Reason() const { return runner_.Reason(); }
  /// Has the run end in good order: the running test is dropped, the session with the tester closed, the
  /// document saved. Asked again it tells how far that has come.
  void AskToStop();

 private:
  void Listen();
  std::unique_ptr<IOperator> MakeOperator();

  Workbench& workbench_;
  Document& document_;
  WireLog& log_;
  RunReporter& reporter_;
  const OperatorKind kind_;
  StopRequest stop_;
  DoubtTracker doubts_;
  LinkWatch link_;
  StopProgress stopProgress_;
  const std::shared_ptr<RunController> controller_;
  DocumentRunner runner_;
  std::vector<orvik::platform::Subscription> heard_;
};

}  // namespace bench

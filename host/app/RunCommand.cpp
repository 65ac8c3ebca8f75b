#include "host/app/RunCommand.h"

#include <unistd.h>

#include <iostream>

#include "host/app/DocumentJson.h"
#include "host/app/DocumentText.h"
#include "host/app/EventLines.h"
#include "host/app/InputError.h"
#include "host/app/ProgressLines.h"
#include "host/app/RunSelection.h"
#include "host/app/RunSession.h"
#include "host/document/Document.h"

namespace bench {

namespace {

constexpr char kInstrument[] = "KELD(IN)";

ExitStatus StatusOf(DocumentRunner::End end, Outcome outcome) {
  if (outcome == Outcome::kFailed) return ExitStatus::kFailed;
  if (end != DocumentRunner::End::kFinished || outcome == Outcome::kIncomplete)
    return ExitStatus::kIncomplete;
  return ExitStatus::kPassed;
}

}  // namespace

CLI::App* RunCommand::Declare(CLI::App& program) {
  auto* command = program.add_subcommand("run", "Run the tests of a document on the tester");
  command->add_option("FILE", options_.file, "The document")->required();
  options_.tester.Declare(*command);
  command->add_option("--element", options_.elements, "Run this element; may be given again")
      ->allow_extra_args(false)
      ->type_name("ID");
  command->add_option("--standard", options_.standards, "Judge by this standard; may be given again")
      ->allow_extra_args(false)
      ->type_name("NAME");
  command->add_flag("--resume", options_.resume, "Go on with what has no result yet");
  command->add_option("--operator", options_.operatorKind, "Who presses the guide's buttons: auto or ask")
      ->type_name("auto|ask");
  const auto* json = command->add_flag("--json", options_.json, "Print one JSON object at the end");
  command->add_flag("--events", options_.events, "Print one JSON object a line as things happen")
      ->excludes(const_cast<CLI::Option*>(json));
  command->add_option("--wire-log", options_.wireLog, "Log of the wire; otherwise FILE.wire.log")
      ->type_name("LOG");
  return command;
}

void RunCommand::Check() const {
  options_.tester.Check();
  if (options_.operatorKind != "auto" && options_.operatorKind != "ask")
    throw InputError("--operator " + options_.operatorKind + ": give \"auto\" or \"ask\"");
}

ExitStatus RunCommand::Run(const GlobalOptions& options) {
  Check();
  Workbench workbench(options, options_.tester.TimeScale());
  const auto document = Document::Open(workbench.Host(), options_.file);
  const auto reporter = Reporter(workbench);
  return Perform(workbench, *document, *reporter);
}

std::unique_ptr<RunReporter> RunCommand::Reporter(Workbench& workbench) const {
  if (options_.events) return std::make_unique<EventLines>(std::cout, *workbench.Application());
  // With --json the standard output belongs to the object alone.
  const bool onError = options_.json;
  return std::make_unique<ProgressLines>(onError ? std::cerr : std::cout,
                                         isatty(onError ? STDERR_FILENO : STDOUT_FILENO) == 1,
                                         workbench.Application(), options_.tester.TimeScale());
}

ExitStatus RunCommand::Perform(Workbench& workbench, Document& document, RunReporter& reporter) {
  const auto selected = SelectedElements(document, options_);
  SelectStandards(document, *workbench.Host(), options_);
  const auto elements = options_.resume ? WithoutResult(selected, *workbench.Host()) : selected;
  WireLog log(options_.wireLog.empty() ? options_.file + ".wire.log" : options_.wireLog);
  options_.tester.Prepare();
  workbench.Ports().Assign(kInstrument, options_.tester.Device());
  if (const auto remark = options_.tester.TimeRemark(); !remark.empty()) reporter.Remark(remark);
  if (elements.empty()) reporter.Remark("Every element has a result; there is nothing to go on with.");

  auto end = DocumentRunner::End::kFinished;
  {
    RunSession session(workbench, document, log, reporter, options_.operatorKind == "ask");
    end = session.Run(elements);
    Tell(end, session.Reason(), reporter);
  }
  if (!log.Failure().empty())
    reporter.Remark("The wire log " + log.Path() + " could not be written: " + log.Failure());

  const auto summary = SummaryOf(document, *workbench.Host(), document.Standards());
  const auto run = OutcomeOf(Summarise(selected, *workbench.Host()->Elements(), document.Standards()));
  const auto status = StatusOf(end, run);
  if (auto* events = dynamic_cast<EventLines*>(&reporter))
    events->Ended(OutcomeText(summary.outcome), static_cast<int>(status));
  else
    std::cout << (options_.json ? Indented(JsonOf(summary)) + "\n" : TextOf(summary)) << std::flush;
  return status;
}

void RunCommand::Tell(DocumentRunner::End end, const std::string& reason, RunReporter& reporter) const {
  switch (end) {
    case DocumentRunner::End::kFinished:
      return;
    case DocumentRunner::End::kStopped:
      return reporter.Remark(
          "Stopped. The document is saved; \"run --resume\" goes on with what has no result yet.");
    case DocumentRunner::End::kAborted:
      return reporter.Remark("Ended by the operator. The document is saved.");
    case DocumentRunner::End::kTesterLost:
      return reporter.Remark("The run has ended: " + reason + ".");
    case DocumentRunner::End::kNotSaved:
      return reporter.Remark("The run has ended, since the document cannot be saved: " + reason);
  }
}

}  // namespace bench

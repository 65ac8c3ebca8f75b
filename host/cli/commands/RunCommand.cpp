#include "host/cli/commands/RunCommand.h"

#include <unistd.h>

#include <CLI/CLI.hpp>
#include <iostream>
#include <nlohmann/json.hpp>
#include <optional>

#include "OrvikTypeLib/HostError.h"
#include "host/base/Tr.h"
#include "host/bench/InputError.h"
#include "host/bench/RunSelection.h"
#include "host/bench/RunSession.h"
#include "host/bench/UnsavedChanges.h"
#include "host/cli/help/Examples.h"
#include "host/cli/options/NumberOption.h"
#include "host/cli/output/AskOperator.h"
#include "host/cli/output/Colour.h"
#include "host/cli/output/DocumentJson.h"
#include "host/cli/output/DocumentLines.h"
#include "host/cli/output/EventLines.h"
#include "host/cli/output/ProgressLines.h"
#include "host/document/Document.h"
#include "host/report/DocumentView.h"
#include "host/run/AutoOperator.h"
#include "host/run/StopSignals.h"

namespace host::cli {

namespace {

bench::ExitStatus StatusOf(run::DocumentRunner::End end, judge::Outcome outcome) {
  if (outcome == judge::Outcome::kFailed) return bench::ExitStatus::kFailed;
  if (end != run::DocumentRunner::End::kFinished || outcome == judge::Outcome::kIncomplete)
    return bench::ExitStatus::kIncomplete;
  return bench::ExitStatus::kPassed;
}

}  // namespace

CLI::App* RunCommand::Declare(CLI::App& program) {
  auto* command = program.add_subcommand("run", Tr("Run the tests of a document on the tester"));
  command->add_option("FILE", options_.file, Tr("The document"))->required();
  options_.tester.Declare(*command);
  WholeNumbers(
      command->add_option("--element", options_.elements, Tr("Run only this element; may be repeated")))
      ->allow_extra_args(false)
      ->type_name("ID");
  command->add_option("--standard", options_.standards, Tr("Judge by this standard only; may be repeated"))
      ->allow_extra_args(false)
      ->type_name("NAME");
  command->add_flag("--resume", options_.resume, Tr("Continue with the elements that have no result yet"));
  command
      ->add_option("--operator", options_.operatorKind,
                   Tr("Who presses the guide's buttons: auto (the program) or ask (the operator)"))
      ->type_name("auto|ask");
  command
      ->add_option("--by", options_.by,
                   Tr("Name of the operator, for the report; otherwise that of the account"))
      ->type_name("NAME");
  const auto* json = command->add_flag("--json", options_.json, Tr("Print one JSON object at the end"));
  command->add_flag("--events", options_.events, Tr("Print events as they happen, one JSON object per line"))
      ->excludes(const_cast<CLI::Option*>(json));
  command
      ->add_option("--wire-log", options_.wireLog,
                   Tr("Log the serial traffic to this file; otherwise FILE.wire.log"))
      ->type_name("LOG");
  command->footer(Examples({"orvik-bench run pump-7.orvik --port /dev/ttyUSB0",
                            "orvik-bench run pump-7.orvik --port /dev/ttyUSB0 --operator ask",
                            "orvik-bench run pump-7.orvik --simulate broken-earth --time-scale 20",
                            "orvik-bench run pump-7.orvik --port /dev/ttyUSB0 --resume"},
                           Tr("The document is saved after each element. Ctrl-C stops the run: the session "
                              "with the tester is closed and the document saved; --resume continues later. "
                              "Exit status 0: all passed, recorded or not applicable, 1: something failed "
                              "its limits, 2: something was not completed, is doubtful or not judged.")));
  return command;
}

void RunCommand::Check() const {
  options_.tester.Check();
  if (options_.operatorKind != "auto" && options_.operatorKind != "ask")
    throw bench::InputError(Tr("--operator %%1: give \"auto\" or \"ask\"", {options_.operatorKind}));
}

bench::ExitStatus RunCommand::Run(const bench::GlobalOptions& options) {
  Check();
  bench::Workbench workbench(options, options_.tester.TimeScale());
  const auto document = document::Document::Open(workbench.Host(), options_.file);
  const auto reporter = Reporter(workbench);
  return Perform(workbench, *document, *reporter);
}

std::unique_ptr<bench::RunReporter> RunCommand::Reporter(bench::Workbench& workbench) const {
  if (options_.events) return std::make_unique<EventLines>(std::cout, *workbench.Application());
  // With --json the standard output belongs to the object alone.
  const bool onError = options_.json;
  return std::make_unique<ProgressLines>(onError ? std::cerr : std::cout,
                                         onError ? STDERR_FILENO : STDOUT_FILENO, workbench.Application(),
                                         options_.tester.TimeScale());
}

bench::ExitStatus RunCommand::Perform(bench::Workbench& workbench, document::Document& document,
                                      bench::RunReporter& reporter) {
  const auto selected = bench::SelectedElements(document, options_);
  bench::SelectStandards(document, *workbench.Host(), options_);
  const auto elements =
      options_.resume
          ? bench::Unfinished(selected, document, report::ViewOf(document, *workbench.Host()).judged)
          : selected;
  serial::WireLog log(options_.wireLog.empty() ? options_.file + ".wire.log" : options_.wireLog);
  const auto& tester = options_.tester.Connect(workbench.Ports());
  if (const auto remark = options_.tester.TimeRemark(); !remark.empty()) reporter.Remark(remark);
  if (elements.empty()) reporter.Remark(Tr("Every element has a result; nothing is left to run."));

  auto end = run::DocumentRunner::End::kFinished;
  {
    const auto& application = workbench.Application();
    bench::RunSession session(workbench, document, log, reporter, tester, bench::OperatorName(options_.by));
    session.JudgeBy(options_.standards);
    std::unique_ptr<run::IOperator> runOperator;
    if (options_.operatorKind == "ask")
      runOperator = std::make_unique<AskOperator>(application, session.Stop(), reporter,
                                                  [&session] { return session.ReachedTest(); });
    else
      runOperator = std::make_unique<run::AutoOperator>(
          application, session.Stop(), [&reporter](const std::string& text) { reporter.Prompted(text); });
    const run::StopSignals signals(*application, [&session](int) { session.AskToStop(); });
    end = session.Run(elements, std::move(runOperator));
    reporter.Over();
    RemarkOnEnd(end, session.Reason(), reporter);
  }
  if (end == run::DocumentRunner::End::kNotSaved) KeepResults(document, reporter);
  if (!log.Failure().empty())
    reporter.Remark(Tr("The wire log %%1 could not be written: %%2", {log.Path(), log.Failure()}));

  const auto view = report::ViewOf(document, *workbench.Host(), options_.standards);
  const auto status = StatusOf(end, report::JudgedPart(view.judged, selected).outcome);
  reporter.Ended(view.judged.outcome, static_cast<int>(status));
  if (!options_.events)
    std::cout << (options_.json ? Indented(JsonOf(view)) + "\n" : TextOf(view, ColoursWanted(STDOUT_FILENO)))
              << std::flush;
  return status;
}

void RunCommand::RemarkOnEnd(run::DocumentRunner::End end, const std::string& reason,
                             bench::RunReporter& reporter) const {
  switch (end) {
    case run::DocumentRunner::End::kFinished:
      return;
    case run::DocumentRunner::End::kStopped:
      return reporter.Remark(
          Tr("Stopped. The document is saved; \"run --resume\" continues with the elements that have no "
             "result yet."));
    case run::DocumentRunner::End::kAborted:
      return reporter.Remark(Tr("Ended by the operator. The document is saved."));
    case run::DocumentRunner::End::kTesterLost:
      return reporter.Remark(Tr("The run has ended: %%1.", {reason}));
    case run::DocumentRunner::End::kNotSaved:
      return reporter.Remark(Tr("The run has ended because the document cannot be saved: %%1", {reason}));
  }
}

void RunCommand::KeepResults(const document::Document& document, bench::RunReporter& reporter) {
  try {
    reporter.Remark(Tr("The results are in %%1, the document as it would have been saved.",
                       {bench::KeepUnsaved(document).string()}));
  } catch (const orvik::HostError& error) {
    reporter.Remark(Tr("The results could not be saved to another file either and are only shown here: %%1",
                       {error.Description()}));
  }
}

}  // namespace host::cli

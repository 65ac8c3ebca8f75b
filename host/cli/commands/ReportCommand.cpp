#include "host/cli/commands/ReportCommand.h"

#include <CLI/CLI.hpp>
#include <filesystem>
#include <iostream>

#include "host/base/Files.h"
#include "host/base/Tr.h"
#include "host/bench/RunSelection.h"
#include "host/cli/help/Examples.h"
#include "host/cli/options/NumberOption.h"
#include "host/cli/output/RunText.h"
#include "host/document/Document.h"
#include "host/report/DocumentReport.h"
#include "host/report/DocumentView.h"
#include "host/report/RunReport.h"

namespace host::cli {

namespace {

constexpr char kStandardOutput[] = "-";

}  // namespace

CLI::App* ReportCommand::Declare(CLI::App& program) {
  auto* command =
      program.add_subcommand("report", Tr("Write a document as a report: HTML, PDF or plain text"));
  command->add_option("FILE", file_, Tr("The document"))->required();
  command
      ->add_option("--to", to_,
                   Tr("The report to write; its extension, .html, .pdf or .txt, sets the format. - is the "
                      "standard output"))
      ->required()
      ->type_name("OUT");
  command
      ->add_option(
          "--format", format_,
          Tr("Format of the report, whatever the extension; without it, the standard output gets plain text"))
      ->type_name("html|pdf|txt");
  auto* run = WholeNumbers(command->add_option(
      "--run", run_,
      Tr("Report this run as it was recorded, regardless of what counts now; \"show --runs\" lists them")));
  run->type_name("N");
  command
      ->add_option(
          "--standard", standards_,
          Tr("Judge by this standard only; may be repeated. The output names the standards left out"))
      ->allow_extra_args(false)
      ->type_name("NAME")
      ->excludes(run);
  command->footer(Examples({"orvik-bench report pump-7.orvik --to pump-7.html",
                            "orvik-bench report pump-7.orvik --to pump-7.pdf",
                            "orvik-bench report pump-7.orvik --to first-run.pdf --run 1",
                            "orvik-bench report pump-7.orvik --to - --format html > pump-7.html"}));
  command_ = command;
  return command;
}

bench::ReportFormat ReportCommand::Format() const {
  if (command_->count("--format") > 0) return bench::ReportFormatNamed(format_);
  return to_ == kStandardOutput ? bench::ReportFormat::kText : bench::ReportFormatOf(to_);
}

report::Report ReportCommand::Report(const document::Document& document, document::Host& host,
                                     const std::string& language) const {
  if (run_) return report::RunReportOf(document, host, FoundRun(document.Runs().All(), *run_), language);
  if (!standards_.empty())
    bench::RequireStandards(report::ViewOf(document, host, standards_).judged, standards_, file_);
  return report::ReportOf(document, host, language, standards_);
}

bench::ExitStatus ReportCommand::Run(const bench::GlobalOptions& options) {
  const std::filesystem::path out(to_);
  const bool toOutput = to_ == kStandardOutput;
  const auto format = Format();
  if (!toOutput) bench::RefuseDocumentAsReport(file_, out);
  bench::Workbench workbench(options, bench::Workbench::Settings::kIfReadable);
  const auto document = document::Document::Open(workbench.Host(), file_, document::DocumentFile::Use::kRead);
  const auto report = bench::ReportText(Report(*document, *workbench.Host(), options.language), format);
  if (toOutput) {
    std::cout << report;
    return bench::ExitStatus::kPassed;
  }
  ReplaceFile(out, report);
  std::cout << out.string() << "\n";
  return bench::ExitStatus::kPassed;
}

}  // namespace host::cli

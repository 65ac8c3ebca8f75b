#include "host/app/report/ReportCommand.h"

#include <filesystem>
#include <iostream>

#include "host/app/help/Examples.h"
#include "host/document/Document.h"
#include "host/services/Files.h"
#include "host/services/Tr.h"

namespace bench {

namespace {

constexpr char kStandardOutput[] = "-";

}  // namespace

CLI::App* ReportCommand::Declare(CLI::App& program) {
  auto* command =
      program.add_subcommand("report", Tr("Write a document as a report: HTML, PDF or plain text"));
  command->add_option("FILE", file_, Tr("The document"))->required();
  command
      ->add_option("--to", to_,
                   Tr("The report to write; its ending, .html, .pdf or .txt, says as what. - is the standard "
                      "output"))
      ->required()
      ->type_name("OUT");
  command
      ->add_option("--format", format_,
                   Tr("What to write, whatever the name ends with; plain text on the standard output when it "
                      "is not given"))
      ->type_name("html|pdf|txt");
  command->footer(Examples({"orvik-bench report pump-7.orvik --to pump-7.html",
                            "orvik-bench report pump-7.orvik --to pump-7.pdf",
                            "orvik-bench report pump-7.orvik --to - --format html > pump-7.html"}));
  command_ = command;
  return command;
}

ReportFormat ReportCommand::Format() const {
  if (command_->count("--format") > 0) return ReportFormatNamed(format_);
  return to_ == kStandardOutput ? ReportFormat::kText : ReportFormatOf(to_);
}

ExitStatus ReportCommand::Run(const GlobalOptions& options) {
  const std::filesystem::path out(to_);
  const bool toOutput = to_ == kStandardOutput;
  const auto format = Format();
  if (!toOutput) RefuseDocumentAsReport(file_, out);
  Workbench workbench(options, Workbench::Settings::kIfReadable);
  const auto document = Document::Open(workbench.Host(), file_, DocumentFile::Use::kRead);
  const auto report = ReportText(*document, *workbench.Host(), options.language, format);
  if (toOutput) {
    std::cout << report;
    return ExitStatus::kPassed;
  }
  ReplaceFile(out, report);
  std::cout << out.string() << "\n";
  return ExitStatus::kPassed;
}

}  // namespace bench

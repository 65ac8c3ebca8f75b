#include "host/app/report/ReportCommand.h"

#include <filesystem>
#include <iostream>

#include "host/app/report/ReportFile.h"
#include "host/document/Document.h"
#include "host/services/Tr.h"

namespace bench {

CLI::App* ReportCommand::Declare(CLI::App& program) {
  auto* command =
      program.add_subcommand("report", Tr("Write a document as a report: HTML, PDF or plain text"));
  command->add_option("FILE", file_, Tr("The document"))->required();
  command->add_option("--to", to_, Tr("The report to write; its ending, .html, .pdf or .txt, says as what"))
      ->required()
      ->type_name("OUT");
  command->footer(
      Tr("Examples:\n"
         "  orvik-bench report pump-7.orvik --to pump-7.html\n"
         "  orvik-bench report pump-7.orvik --to pump-7.pdf"));
  return command;
}

ExitStatus ReportCommand::Run(const GlobalOptions& options) {
  const std::filesystem::path out(to_);
  CheckReportFile(file_, out);
  Workbench workbench(options, Workbench::Settings::kIfReadable);
  const auto document = Document::Open(workbench.Host(), file_, DocumentFile::Use::kRead);
  WriteReport(*document, *workbench.Host(), options.language, out);
  std::cout << out.string() << "\n";
  return ExitStatus::kPassed;
}

}  // namespace bench

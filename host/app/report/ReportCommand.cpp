#include "host/app/report/ReportCommand.h"

#include <filesystem>
#include <iostream>

#include "host/app/InputError.h"
#include "host/app/ProgramFiles.h"
#include "host/app/report/DocumentReport.h"
#include "host/document/Document.h"
#include "host/pdf/PdfModule.h"
#include "host/report/HtmlReport.h"
#include "host/report/TextReport.h"
#include "host/services/Files.h"
#include "host/services/Text.h"
#include "host/services/Tr.h"

namespace bench {

namespace {

using Output = std::string (*)(const report::Report&);

std::string PdfReport(const report::Report& report) { return WritePdf(report, files::PdfModule()); }

/// The output that a file's ending stands for.
Output OutputFor(const std::filesystem::path& file) {
  const auto ending = LowerAscii(file.extension().string());
  if (ending == ".html") return HtmlReport;
  if (ending == ".pdf") return PdfReport;
  if (ending == ".txt") return TextReport;
  throw InputError(
      Tr("--to %%1: reports are written as .html, .pdf or .txt; give a name that ends with one of them",
         {file.string()}));
}

}  // namespace

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
  const auto output = OutputFor(out);
  std::error_code absent;  // what is not there is no other file either
  if (std::filesystem::equivalent(file_, out, absent))
    throw InputError(
        Tr("--to %%1: this is the document itself; give the report another name", {out.string()}));
  Workbench workbench(options);
  const auto document = Document::Open(workbench.Host(), file_, DocumentFile::Use::kRead);
  ReplaceFile(out, output(ReportOf(*document, *workbench.Host(), options.language)));
  std::cout << out.string() << "\n";
  return ExitStatus::kPassed;
}

}  // namespace bench

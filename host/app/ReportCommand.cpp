#include "host/app/ReportCommand.h"

#include <iostream>

#include "host/app/DocumentReport.h"
#include "host/app/InputError.h"
#include "host/document/Document.h"
#include "host/report/TextReport.h"
#include "host/services/Files.h"

namespace bench {

CLI::App* ReportCommand::Declare(CLI::App& program) {
  auto* command = program.add_subcommand("report", "Write a document as a report");
  command->add_option("FILE", file_, "The document")->required();
  command->add_option("--to", to_, "The report to write, such as pump-7.txt")->required()->type_name("OUT");
  return command;
}

ExitStatus ReportCommand::Run(const GlobalOptions& options) {
  const std::filesystem::path out(to_);
  if (out.extension() != ".txt")
    throw InputError("--to " + to_ +
                     ": this program writes reports as plain text; give a name that ends with .txt");
  Workbench workbench(options);
  const auto document = Document::Open(workbench.Host(), file_, DocumentFile::Use::kRead);
  const auto report = std::make_shared<ReportObject>();
  PrintDocument(*document, *workbench.Host(), report);
  ReplaceFile(out, TextReport(*report));
  std::cout << out.string() << "\n";
  return ExitStatus::kPassed;
}

}  // namespace bench

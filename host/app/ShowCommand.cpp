#include "host/app/ShowCommand.h"

#include <iostream>

#include "host/app/DocumentJson.h"
#include "host/app/DocumentText.h"
#include "host/document/Document.h"

namespace bench {

CLI::App* ShowCommand::Declare(CLI::App& program) {
  auto* command = program.add_subcommand("show", "Print a document and its results");
  command->add_option("FILE", file_, "The document")->required();
  command->add_flag("--json", json_, "Print one JSON object");
  return command;
}

ExitStatus ShowCommand::Run(const GlobalOptions& options) {
  Workbench workbench(options);
  const auto document = Document::Open(workbench.Host(), file_, DocumentFile::Use::kRead);
  auto standards = document->Standards();
  if (standards->Count() == 0) standards = NamedStandards(*document, *workbench.Host());
  const auto summary = SummaryOf(*document, *workbench.Host(), standards);
  std::cout << (json_ ? Indented(JsonOf(summary)) + "\n" : TextOf(summary));
  return ExitStatus::kPassed;
}

}  // namespace bench

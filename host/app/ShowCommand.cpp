#include "host/app/ShowCommand.h"

#include <unistd.h>

#include <iostream>

#include "host/app/Colour.h"
#include "host/app/DocumentJson.h"
#include "host/app/DocumentText.h"
#include "host/document/Document.h"
#include "host/services/Tr.h"

namespace bench {

CLI::App* ShowCommand::Declare(CLI::App& program) {
  auto* command = program.add_subcommand("show", Tr("Print a document and its results"));
  command->add_option("FILE", file_, Tr("The document"))->required();
  command->add_flag("--json", json_, Tr("Print one JSON object"));
  command->footer(
      Tr("Examples:\n"
         "  orvik-bench show pump-7.orvik\n"
         "  orvik-bench show pump-7.orvik --json"));
  return command;
}

ExitStatus ShowCommand::Run(const GlobalOptions& options) {
  Workbench workbench(options, Workbench::Settings::kIfReadable);
  const auto document = Document::Open(workbench.Host(), file_, DocumentFile::Use::kRead);
  const auto view = ViewOf(*document, *workbench.Host());
  std::cout << (json_ ? Indented(JsonOf(view)) + "\n" : TextOf(view, ColoursWanted(STDOUT_FILENO)));
  return ExitStatus::kPassed;
}

}  // namespace bench

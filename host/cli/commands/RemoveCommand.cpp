#include "host/cli/commands/RemoveCommand.h"

#include <CLI/CLI.hpp>

#include "host/base/Tr.h"
#include "host/bench/DocumentElements.h"
#include "host/cli/commands/ChangeDocument.h"
#include "host/cli/help/Examples.h"
#include "host/cli/options/NumberOption.h"
#include "host/document/Document.h"

namespace host::cli {

CLI::App* RemoveCommand::Declare(CLI::App& program) {
  auto* command = program.add_subcommand("remove", Tr("Remove elements from a document"));
  command->add_option("FILE", file_, Tr("The document"))->required();
  WholeNumbers(command->add_option("--element", elements_,
                                   Tr("Identifiers of the elements; a sequence is removed with its tests")))
      ->required()
      ->type_name("ID");
  command->footer(Examples(
      {"orvik-bench remove pump-7.orvik --element 3", "orvik-bench remove pump-7.orvik --element 3 5"}));
  return command;
}

bench::ExitStatus RemoveCommand::Run(const bench::GlobalOptions& options) {
  return ChangeDocument(options, file_, [&](auto& workbench, auto& document) {
    std::string list;
    for (const auto& element : bench::ElementsFor(document, "--element", elements_)) {
      if (document.Find(element->ID()) != element) continue;  // it went with a sequence that was removed
      document.Remove(element);
      list += Tr("removed: %%1", {bench::NameWithNumber(*element, *workbench.Host()->Elements())}) + "\n";
    }
    return list;
  });
}

}  // namespace host::cli

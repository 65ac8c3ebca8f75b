#include "host/cli/commands/MoveCommand.h"

#include <CLI/CLI.hpp>

#include "host/base/Tr.h"
#include "host/bench/DocumentElements.h"
#include "host/bench/InputError.h"
#include "host/cli/commands/ChangeDocument.h"
#include "host/cli/help/Examples.h"
#include "host/cli/options/NumberOption.h"
#include "host/document/Document.h"
#include "host/report/DocumentView.h"

namespace host::cli {

CLI::App* MoveCommand::Declare(CLI::App& program) {
  auto* command = program.add_subcommand("move", Tr("Change the order in which a document is tested"));
  command->add_option("FILE", file_, Tr("The document"))->required();
  WholeNumbers(
      command->add_option("--element", element_,
                          Tr("Identifier of the element to move; a sequence is moved with its tests")))
      ->required()
      ->type_name("ID");
  auto* before = command->add_option("--before", before_, Tr("Test it before this element"));
  auto* after = command->add_option("--after", after_, Tr("Test it after this element"));
  for (auto* option : {before, after}) WholeNumbers(option)->type_name("ID");
  auto* end = command->add_flag("--to-end", toEnd_, Tr("Test it last in the document"));
  before->excludes(after)->excludes(end);
  after->excludes(end);
  command->footer(Examples({"orvik-bench move pump-7.orvik --element 3 --before 1",
                            "orvik-bench move pump-7.orvik --element 2 --to-end"},
                           Tr("Moved next to an element of a sequence, an element becomes part of that "
                              "sequence. Identifiers do not change.")));
  return command;
}

document::ElementPlace MoveCommand::PlaceIn(const document::Document& document) const {
  const auto besideItself = [&](const std::string& option, std::int32_t id) {
    if (id == element_)
      throw bench::InputError(
          Tr("%%1 %%2: give another element than the one to move", {option, std::to_string(id)}));
    return bench::ElementFor(document, option, id);
  };
  if (before_) return document::ElementPlace::Before(*besideItself("--before", *before_));
  if (after_) return document::ElementPlace::After(*besideItself("--after", *after_));
  if (!toEnd_) throw bench::InputError(Tr("give the place with --before, --after or --to-end"));
  return document::ElementPlace::AtEndOf(nullptr);
}

bench::ExitStatus MoveCommand::Run(const bench::GlobalOptions& options) {
  return ChangeDocument(options, file_, [&](auto& workbench, auto& document) {
    const auto element = bench::ElementFor(document, "--element", element_);
    document.Move(element, PlaceIn(document));
    std::string list;
    for (const auto& top : report::TopElements(document))
      list += bench::ListOf(top, *workbench.Host()->Elements());
    return list;
  });
}

}  // namespace host::cli

#include "host/cli/commands/AddCommand.h"

#include <CLI/CLI.hpp>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/ITestContainer.h"
#include "host/base/Tr.h"
#include "host/bench/DocumentElements.h"
#include "host/bench/InputError.h"
#include "host/cli/commands/ChangeDocument.h"
#include "host/cli/help/Examples.h"
#include "host/cli/options/NumberOption.h"
#include "host/document/Document.h"

namespace host::cli {

CLI::App* AddCommand::Declare(CLI::App& program) {
  auto* command = program.add_subcommand("add", Tr("Add tests to a document and print their identifiers"));
  command->add_option("FILE", file_, Tr("The document"))->required();
  WholeNumbers(command->add_option("TESTID", tests_, Tr("Tests of the catalogue, in the order of testing")))
      ->required();
  auto* to = command->add_option("--to", to_, Tr("Add them at the end of this sequence"));
  auto* before = command->add_option("--before", before_, Tr("Add them before this element"));
  auto* after = command->add_option("--after", after_, Tr("Add them after this element"));
  for (auto* option : {to, before, after}) WholeNumbers(option)->type_name("ID");
  to->excludes(before)->excludes(after);
  before->excludes(after);
  command->footer(
      Examples({"orvik-bench add pump-7.orvik 610 910", "orvik-bench add pump-7.orvik 420 --after 2",
                "orvik-bench add ward.orvik 410 --to 1"},
               Tr("Without --to, --before and --after they are added at the end of the document.")));
  return command;
}

document::ElementPlace AddCommand::PlaceIn(const document::Document& document) const {
  if (before_) return document::ElementPlace::Before(*bench::ElementFor(document, "--before", *before_));
  if (after_) return document::ElementPlace::After(*bench::ElementFor(document, "--after", *after_));
  if (!to_) return document::ElementPlace::AtEndOf(nullptr);
  const auto sequence = bench::ElementFor(document, "--to", *to_);
  if (!orvik::As<orvik::ITestContainer>(sequence))
    throw bench::InputError(
        Tr("--to %%1: the element is not a sequence; give one, or --after %%1 to add behind it",
           {std::to_string(*to_)}));
  return document::ElementPlace::AtEndOf(sequence);
}

bench::ExitStatus AddCommand::Run(const bench::GlobalOptions& options) {
  return ChangeDocument(options, file_, [&](auto& workbench, auto& document) {
    auto place = PlaceIn(document);
    std::string list;
    for (const auto testId : tests_) {
      if (!workbench.PlugIn().CreateTest(testId))
        throw bench::InputError(
            Tr("TESTID %%1: the catalogue has no such test; \"orvik-bench tests\" prints those it has",
               {std::to_string(testId)}));
      const auto added = document.AddTest(testId, place);
      if (place.after != 0) place = document::ElementPlace::After(*added);
      list += bench::ListOf(added, *workbench.Host()->Elements());
    }
    return list;
  });
}

}  // namespace host::cli

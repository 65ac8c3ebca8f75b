#include "host/cli/commands/NewCommand.h"

#include <CLI/CLI.hpp>
#include <iostream>

#include "host/base/Tr.h"
#include "host/bench/DocumentElements.h"
#include "host/bench/InputError.h"
#include "host/cli/help/Examples.h"
#include "host/cli/options/EquipmentOptions.h"
#include "host/cli/options/NumberOption.h"
#include "host/report/DocumentView.h"

namespace host::cli {

CLI::App* NewCommand::Declare(CLI::App& program) {
  auto* command = program.add_subcommand(
      "new", Tr("Create a document of tests and print the identifiers of its elements"));
  command->add_option("FILE", file_, Tr("The document to create, such as pump-7.orvik"))->required();
  WholeNumbers(command->add_option("--add", tests_, Tr("Tests of the catalogue, in the order of testing")))
      ->type_name("TESTID");
  command
      ->add_option(
          "--from", from_,
          Tr("Copy tests, settings, limits and record-only marks from this document, without its results"))
      ->type_name("DOCUMENT");
  AddEquipmentOptions(*command, equipment_);
  command->footer(Examples(
      {"orvik-bench new pump-7.orvik --add 210 410 1010 --asset PUMP-7 --serial 2209-117",
       "orvik-bench new pump-8.orvik --from pump-7.orvik --asset PUMP-8 --serial 2209-118",
       "orvik-bench new ward.orvik --add 400"},
      Tr("A sequence, such as 400, is added with its tests. \"orvik-bench tests\" prints what can be added. "
         "With --from, the equipment's fields are not taken over: give those of the new device.")));
  return command;
}

void NewCommand::AddTests(bench::Workbench& workbench, document::Document& document) const {
  for (const auto testId : tests_) {
    if (!workbench.PlugIn().CreateTest(testId))
      throw bench::InputError(
          Tr("--add %%1: the catalogue has no such test; \"orvik-bench tests\" prints those it has",
             {std::to_string(testId)}));
    document.AddTest(testId);
  }
}

bench::ExitStatus NewCommand::Run(const bench::GlobalOptions& options) {
  if (tests_.empty() && from_.empty())
    throw bench::InputError(Tr("give the tests with --add, or a document to take them from with --from"));
  bench::Workbench workbench(options);
  const auto document = document::Document::Create(workbench.Host(), file_);
  document->equipment = equipment_;
  if (!from_.empty()) {
    const auto other = document::Document::Open(workbench.Host(), from_, document::DocumentFile::Use::kRead);
    document->AddPlanOf(*other);
  }
  AddTests(workbench, *document);
  document->Save();
  for (const auto& top : report::TopElements(*document))
    std::cout << bench::ListOf(top, *workbench.Host()->Elements());
  return bench::ExitStatus::kPassed;
}

}  // namespace host::cli

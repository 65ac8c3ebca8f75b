#include "host/app/NewCommand.h"

#include <iostream>

#include "host/app/DocumentText.h"
#include "host/app/InputError.h"
#include "host/app/NumberOption.h"
#include "host/app/TextColumns.h"
#include "host/document/Document.h"
#include "host/elements/ElementFactory.h"
#include "host/run/ElementText.h"
#include "host/run/ElementWalk.h"
#include "host/services/Tr.h"

namespace bench {

CLI::App* NewCommand::Declare(CLI::App& program) {
  auto* command =
      program.add_subcommand("new", Tr("Make a test document and print the identifiers of its elements"));
  command->add_option("FILE", file_, Tr("The document to make, such as pump-7.orvik"))->required();
  WholeNumbers(command->add_option("--add", tests_, Tr("Tests of the catalogue, in the order of testing")))
      ->required()
      ->type_name("TESTID");
  command->add_option("--asset", asset_, Tr("Asset number of the equipment under test"));
  command->add_option("--serial", serial_, Tr("Its serial number"));
  command->add_option("--maker", maker_, Tr("Its maker"));
  command->add_option("--model", model_, Tr("Its model"));
  command->footer(Tr(
      "Examples:\n"
      "  orvik-bench new pump-7.orvik --add 210 410 1010 --asset PUMP-7 --serial 2209-117\n"
      "  orvik-bench new ward.orvik --add 400\n"
      "\n"
      "A sequence, such as 400, is added with its tests. \"orvik-bench tests\" prints what can be added."));
  return command;
}

ExitStatus NewCommand::Run(const GlobalOptions& options) {
  Workbench workbench(options);
  const auto document = Document::Create(workbench.Host(), file_);
  document->equipment = {asset_, serial_, maker_, model_};
  for (const auto testId : tests_) {
    if (!workbench.PlugIn().CreateTest(testId))
      throw InputError(
          Tr("--add %%1: the catalogue has no such test; \"orvik-bench tests\" prints those it has",
             {std::to_string(testId)}));
    document->AddTest(testId);
  }
  document->Save();
  for (const auto& top : TopElements(*document)) {
    WalkElements(top, [&](const std::shared_ptr<orvik::ITestElement>& element) {
      std::cout << LeftPadded(std::to_string(element->ID()), 4) << "  "
                << LeftPadded(std::to_string(element->TestID()), 4) << "  "
                << ElementName(*element, *workbench.Host()->Elements()) << "\n";
    });
  }
  return ExitStatus::kPassed;
}

}  // namespace bench

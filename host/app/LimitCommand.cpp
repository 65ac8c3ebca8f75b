#include "host/app/LimitCommand.h"

#include <iostream>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/HostError.h"
#include "host/app/DocumentView.h"
#include "host/app/InputError.h"
#include "host/app/NumberOption.h"
#include "host/app/ProgramFiles.h"
#include "host/app/SetOfLimits.h"
#include "host/app/help/Examples.h"
#include "host/document/Document.h"
#include "host/elements/ElementFactory.h"
#include "host/run/ElementText.h"
#include "host/services/Tr.h"
#include "host/standards/LimitSets.h"

namespace bench {

CLI::App* LimitCommand::Declare(CLI::App& program) {
  auto* command = program.add_subcommand("limit", Tr("Give elements of a document limits of a standard"));
  command->add_option("FILE", file_, Tr("The document"))->required();
  WholeNumbers(command->add_option("--element", element_, Tr("Identifier of the element")))->type_name("ID");
  auto* from = command->add_option("--from", set_,
                                   Tr("Take the limits of all elements from this set; \"standards\" lists "
                                      "the sets. With --element, of that element and all below it"));
  from->type_name("SET");
  for (auto* option :
       {command->add_option("--standard", entered_.standard,
                            Tr("Name of the standard, such as \"IEC 62353\"")),
        command->add_option("--description", entered_.description,
                            Tr("What tells it from others of that name, such as \"class I, BF\"")),
        command->add_option("--low", entered_.low, Tr("Lower bound, inclusive; a number")),
        command->add_option("--high", entered_.high, Tr("Upper bound, inclusive; a number")),
        command->add_option("--unit", entered_.unit,
                            Tr("Unit of the bounds; otherwise the unit that the element is recorded in"))})
    option->excludes(from);
  command->footer(Examples(
      {"orvik-bench limit pump-7.orvik --from iec-62353-class-1-bf",
       "orvik-bench limit pump-7.orvik --element 2 --standard \"IEC 62353\" --high 300 --unit mOhm",
       "orvik-bench limit pump-7.orvik --element 3 --standard \"House rule\" --low 50 --unit MOhm"}));
  command_ = command;
  return command;
}

ExitStatus LimitCommand::Run(const GlobalOptions& options) {
  Check();
  Workbench workbench(options);
  const auto document = Document::Open(workbench.Host(), file_);
  if (set_.empty())
    ApplyOne(workbench, *document);
  else
    ApplySet(workbench, *document, options);
  return ExitStatus::kPassed;
}

void LimitCommand::Check() const {
  if (command_->count("--from") > 0) return;
  if (command_->count("--element") == 0)
    throw InputError(Tr("name the element with --element, or a set of limits for all with --from"));
  if (entered_.standard.empty()) throw InputError(Tr("--standard: give the name of the standard"));
  if (entered_.low.empty() && entered_.high.empty())
    throw InputError(Tr("neither --low nor --high was given; give at least one bound"));
}

std::shared_ptr<orvik::ITestElement> LimitCommand::ChosenElement(const Document& document) const {
  auto element = document.Find(element_);
  if (!element)
    throw InputError(Tr("--element %%1: %%2 has no such element", {std::to_string(element_), file_}));
  return element;
}

void LimitCommand::ApplyOne(Workbench& workbench, Document& document) const {
  const auto element = ChosenElement(document);
  const auto limits = element->Limits();
  if (!limits) throw InputError(Tr("--element %%1: it takes no limits", {std::to_string(element_)}));
  std::shared_ptr<orvik::ILimit> limit;
  try {
    limit = SetLimit(*limits, entered_);
  } catch (const orvik::HostError& error) {
    throw InputError(Tr("--low, --high, --unit: %%1", {error.Description()}));
  }
  document.Save();
  const auto standard = entered_.standard + (entered_.description.empty() ? "" : ", " + entered_.description);
  std::cout << Tr("element %%1 (%%2): %%3: %%4",
                  {std::to_string(element_), ElementName(*element, *workbench.Host()->Elements()), standard,
                   BoundsText(limit->LowText(), limit->HighText(), limit->Unit())})
            << "\n";
}

void LimitCommand::ApplySet(Workbench& workbench, Document& document, const GlobalOptions& options) const {
  const auto set = LimitSets(files::StandardsFolders(options.state)).Find(set_);
  const auto elements = command_->count("--element") > 0
                            ? std::vector<std::shared_ptr<orvik::ITestElement>>{ChosenElement(document)}
                            : TopElements(document);
  const auto told = ApplyLimitSet(set, elements, *workbench.Host()->Elements());
  if (told.applied.empty())
    throw InputError(Tr("--from %%1: the set knows nothing of the elements of %%2", {set_, file_}));
  document.Save();
  std::cout << set.standard << ", " << set.Description() << ":\n";
  for (const auto& line : told.applied) std::cout << "  " << line << "\n";
  if (!told.unknown.empty()) {
    std::cout << Tr("The set knows nothing of these:") << "\n";
    for (const auto& line : told.unknown) std::cout << "  " << line << "\n";
  }
}

}  // namespace bench

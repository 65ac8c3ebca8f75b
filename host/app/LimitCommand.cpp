#include "host/app/LimitCommand.h"

#include <iostream>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/HostError.h"
#include "OrvikTypeLib/ILimit.h"
#include "OrvikTypeLib/ILimitData.h"
#include "OrvikTypeLib/IStandard.h"
#include "OrvikTypeLib/IStandardColl.h"
#include "host/app/InputError.h"
#include "host/document/Document.h"
#include "host/elements/ElementFactory.h"
#include "host/run/ElementText.h"

namespace bench {

CLI::App* LimitCommand::Declare(CLI::App& program) {
  auto* command = program.add_subcommand("limit", "Give an element of a document a limit of a standard");
  command->add_option("FILE", file_, "The document")->required();
  command->add_option("--element", element_, "Identifier of the element")->required()->type_name("ID");
  command->add_option("--standard", standard_, "Name of the standard, such as \"IEC 62353\"")->required();
  command->add_option("--description", description_,
                      "What tells it from others of that name, such as \"class I, BF\"");
  command->add_option("--low", low_, "Lower bound, inclusive; a number");
  command->add_option("--high", high_, "Upper bound, inclusive; a number");
  command->add_option("--unit", unit_,
                      "Unit of the bounds; otherwise the unit that the element is recorded in");
  return command;
}

ExitStatus LimitCommand::Run(const GlobalOptions& options) {
  if (standard_.empty()) throw InputError("--standard: the name must not be empty");
  if (low_.empty() && high_.empty())
    throw InputError("neither --low nor --high was given; give at least one bound");
  Workbench workbench(options);
  const auto document = Document::Open(workbench.Host(), file_);
  const auto element = document->Find(element_);
  if (!element)
    throw InputError("--element " + std::to_string(element_) + ": " + file_ + " has no such element");
  const auto limits = element->Limits();
  if (!limits) throw InputError("--element " + std::to_string(element_) + ": it takes no limits");

  const auto standards = limits->Standards();
  auto standard = standards ? standards->Find(standard_, description_) : nullptr;
  if (!standard) standard = limits->CreateStandard(standard_, description_);
  const auto limit = orvik::Required(standard).Limit(1);
  try {
    if (unit_.empty())
      limit->SetBounds(low_, high_);
    else
      limit->Initialize(limit->Key(), unit_, low_, high_);
  } catch (const orvik::HostError& error) {
    throw InputError("--low, --high: " + error.Description());
  }
  document->Save();

  std::cout << "element " << element_ << " (" << ElementName(*element, *workbench.Host()->Elements())
            << "): " << standard_ << (description_.empty() ? "" : ", " + description_) << ":"
            << (low_.empty() ? "" : " at least " + low_) << (high_.empty() ? "" : " at most " + high_) << " "
            << limit->Unit() << "\n";
  return ExitStatus::kPassed;
}

}  // namespace bench

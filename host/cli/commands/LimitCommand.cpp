#include "host/cli/commands/LimitCommand.h"

#include <CLI/CLI.hpp>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/HostError.h"
#include "OrvikTypeLib/ILimit.h"
#include "OrvikTypeLib/ILimitData.h"
#include "OrvikTypeLib/ITestContainer.h"
#include "host/base/Tr.h"
#include "host/bench/DocumentElements.h"
#include "host/bench/InputError.h"
#include "host/bench/LimitText.h"
#include "host/bench/ProgramFiles.h"
#include "host/bench/RecordOnlyMark.h"
#include "host/bench/SetOfLimits.h"
#include "host/cli/commands/ChangeDocument.h"
#include "host/cli/help/Examples.h"
#include "host/cli/options/NumberOption.h"
#include "host/document/Document.h"
#include "host/elements/ElementFactory.h"
#include "host/report/DocumentView.h"
#include "host/standards/LimitSets.h"

namespace host::cli {

namespace {

constexpr char kElement[] = "--element";
constexpr char kFrom[] = "--from";
constexpr char kAlso[] = "--also";
constexpr char kStandard[] = "--standard";
constexpr char kDescription[] = "--description";
constexpr char kLow[] = "--low";
constexpr char kHigh[] = "--high";
constexpr char kUnit[] = "--unit";
constexpr char kRecordOnly[] = "--record-only";
constexpr char kRemove[] = "--remove";

std::shared_ptr<orvik::ILimitData> LimitsFor(orvik::ITestElement& element) {
  auto limits = element.Limits();
  if (!limits)
    throw bench::InputError(Tr("--element %%1 does not take limits", {std::to_string(element.ID())}));
  return limits;
}

}  // namespace

bool LimitCommand::Given(const std::string& option) const { return command_->count(option) > 0; }

CLI::App* LimitCommand::Declare(CLI::App& program) {
  auto* command = program.add_subcommand(
      "limit", Tr("Set limits on elements of a document, or mark elements as record-only"));
  command->add_option("FILE", file_, Tr("The document"))->required();
  WholeNumbers(command->add_option(kElement, elements_, Tr("Identifiers of the elements")))->type_name("ID");
  command
      ->add_option(kFrom, set_,
                   Tr("Set the limits of all elements from this set; \"standards\" lists the sets. With "
                      "--element, only of those elements and all below them. Replaces limits of an earlier "
                      "set of the same standard"))
      ->type_name("SET");
  command->add_flag(kAlso, also_,
                    Tr("Keep the limits of earlier sets: a reading must be within all of them"));
  command->add_option(kStandard, entered_.standard, Tr("Name of the standard, such as \"IEC 62353\""))
      ->type_name("NAME");
  command->add_option(kDescription, entered_.description,
                      Tr("Description of the standard, such as \"class I, BF\""));
  command->add_option(kLow, entered_.low, Tr("Lower bound, inclusive; a number"))->type_name("LOW");
  command->add_option(kHigh, entered_.high, Tr("Upper bound, inclusive; a number"))->type_name("HIGH");
  command->add_option(kUnit, entered_.unit,
                      Tr("Unit of the bounds; otherwise the unit that the element is recorded in"));
  command->add_flag(kRecordOnly, recordOnly_,
                    Tr("Mark the elements as record-only: their readings are recorded but not judged. "
                       "Setting a limit later "
                       "removes the mark"));
  command->add_flag(kRemove, remove_,
                    Tr("Remove the elements' limits of --standard; without it all limits, and the mark"));
  command->footer(
      Examples({"orvik-bench limit pump-7.orvik --from iec-62353-class-1-bf",
                "orvik-bench limit pump-7.orvik --element 2 --standard \"IEC 62353\" --high 300 --unit mOhm",
                "orvik-bench limit pump-7.orvik --element 3 4 --standard \"House rule\" --low 50 --unit MOhm",
                "orvik-bench limit pump-7.orvik --element 1 --record-only",
                "orvik-bench limit pump-7.orvik --element 2 --remove --standard \"IEC 62353\""},
               Tr("A reading that no limit applies to does not count as passed. Use --record-only for a "
                  "reading that is only recorded, such as the mains voltage.")));
  command_ = command;
  return command;
}

bench::ExitStatus LimitCommand::Run(const bench::GlobalOptions& options) {
  Check();
  return ChangeDocument(
      options, file_, [&](auto& workbench, auto& document) { return Change(workbench, document, options); });
}

void LimitCommand::RefuseTogether(const std::string& option, const std::vector<std::string>& others) const {
  for (const auto& other : others) {
    if (Given(option) && Given(other)) throw bench::InputError(Tr("%%1 excludes %%2", {option, other}));
  }
}

void LimitCommand::Check() const {
  RefuseTogether(kFrom, {kStandard, kDescription, kLow, kHigh, kUnit, kRecordOnly, kRemove});
  RefuseTogether(kRecordOnly, {kStandard, kDescription, kLow, kHigh, kUnit, kRemove});
  RefuseTogether(kRemove, {kLow, kHigh, kUnit});
  if (Given(kAlso) && !Given(kFrom)) throw bench::InputError(Tr("--also: give the set with --from"));
  if (Given(kFrom)) return;
  if (!Given(kElement))
    throw bench::InputError(Tr("name the element with --element, or a set of limits for all with --from"));
  if (recordOnly_ || (remove_ && !Given(kStandard) && !Given(kDescription))) return;
  if (entered_.standard.empty()) throw bench::InputError(Tr("--standard: give the name of the standard"));
  if (!remove_ && entered_.low.empty() && entered_.high.empty())
    throw bench::InputError(Tr("neither --low nor --high was given; give at least one bound"));
}

std::string LimitCommand::Change(bench::Workbench& workbench, document::Document& document,
                                 const bench::GlobalOptions& options) const {
  const auto& factory = *workbench.Host()->Elements();
  if (Given(kFrom)) return ApplySet(document, factory, options);
  const auto elements = bench::ElementsFor(document, kElement, elements_);
  if (remove_) return RemoveLimits(elements, factory);
  if (!recordOnly_) return SetLimits(elements, factory);
  std::string lines;
  for (const auto& element : elements) {
    bench::MarkRecordOnly(element, factory, true);
    lines += Tr("%%1: %%2", {bench::NameWithNumber(*element, factory), Tr("recorded, not judged")}) + "\n";
  }
  return lines;
}

std::string LimitCommand::SetLimits(const Elements& elements, const elements::ElementFactory& factory) const {
  std::string lines;
  for (const auto& element : elements) {
    const auto limits = LimitsFor(*element);
    try {
      const auto limit = standards::SetLimit(*limits, entered_);
      lines += Tr("%%1: %%2", {bench::NameWithNumber(*element, factory),
                               bench::TextOf({entered_.standard, entered_.description, limit->LowText(),
                                              limit->HighText(), limit->Unit()})});
    } catch (const orvik::HostError& error) {
      throw bench::InputError(Tr("--element %%1, --low, --high, --unit: %%2",
                                 {std::to_string(element->ID()), error.Description()}));
    }
    if (bench::IsRecordOnly(element, factory)) {
      bench::MarkRecordOnly(element, factory, false);
      lines += Tr("; no longer record-only");
    }
    lines += "\n";
  }
  return lines;
}

std::string LimitCommand::RemoveLimits(const Elements& elements,
                                       const elements::ElementFactory& factory) const {
  const bool all = !Given(kStandard);
  const auto fits = [&](const orvik::IStandard& standard) {
    return all || (standard.Name() == entered_.standard &&
                   (!Given(kDescription) || standard.Description() == entered_.description));
  };
  std::string lines;
  for (const auto& element : elements) {
    const auto name = bench::NameWithNumber(*element, factory);
    const auto limits = element->Limits();
    const auto removed =
        limits ? standards::RemoveStandards(*limits, fits) : std::vector<standards::LimitOfElement>();
    const bool marked = bench::IsRecordOnly(element, factory);
    if (removed.empty() && !all)
      throw bench::InputError(Tr("--standard \"%%1\": %%2 has no such limit",
                                 {bench::StandardText(entered_.standard, entered_.description), name}));
    if (removed.empty() && !marked)
      throw bench::InputError(Tr("--remove: %%1 has no limits and is not record-only", {name}));
    if (all && marked) bench::MarkRecordOnly(element, factory, false);
    for (const auto& limit : removed) lines += Tr("%%1: removed: %%2", {name, bench::TextOf(limit)}) + "\n";
    if (all && marked) lines += Tr("%%1: no longer record-only", {name}) + "\n";
    const bool sequence = orvik::As<orvik::ITestContainer>(element) != nullptr;
    if (!sequence && limits && standards::LimitsOf(*limits).empty())
      lines += Tr("%%1: %%2", {name, bench::NeedsALimit()}) + "\n";
  }
  return lines;
}

std::string LimitCommand::ApplySet(const document::Document& document,
                                   const elements::ElementFactory& factory,
                                   const bench::GlobalOptions& options) const {
  const auto set = standards::LimitSets(bench::files::StandardsFolders(options.state)).Find(set_);
  const auto elements =
      Given(kElement) ? bench::ElementsFor(document, kElement, elements_) : report::TopElements(document);
  const auto applied = bench::ApplyLimitSet(
      set, elements, factory, also_ ? bench::EarlierSets::kKept : bench::EarlierSets::kReplaced);
  if (applied.applied.empty())
    throw bench::InputError(Tr("--from %%1: the set covers none of these elements of %%2", {set_, file_}));
  std::string lines = bench::StandardText(set.standard, set.Description()) + ":\n";
  for (const auto& line : applied.applied) lines += "  " + line + "\n";
  if (applied.uncovered.empty()) return lines;
  lines += Tr("Not covered by this set:") + "\n";
  for (const auto& line : applied.uncovered) lines += "  " + line + "\n";
  return lines;
}

}  // namespace host::cli

#include "host/cli/commands/ArchiveCommandList.h"

#include <CLI/CLI.hpp>
#include <iostream>

#include "host/archive/IsoTime.h"
#include "host/base/TextColumns.h"
#include "host/base/Tr.h"
#include "host/base/VisibleText.h"
#include "host/bench/ArchiveEntryOf.h"
#include "host/bench/InputError.h"
#include "host/bench/OpenArchive.h"
#include "host/cli/commands/ArchiveCommandJson.h"
#include "host/cli/options/NumberOption.h"
#include "host/cli/output/DocumentJson.h"

namespace host::cli {

namespace {

using host::VisibleText;

std::vector<std::string> ListHeading() {
  return {Tr("ID"), Tr("Date"), Tr("Revision"), Tr("Outcome"), Tr("Asset"), Tr("Serial number")};
}

std::string MarksOf(const archive::ArchiveEntry& entry) {
  std::vector<std::string> marks;
  if (!entry.finished) marks.push_back(Tr("(not finished)"));
  if (entry.simulated) marks.push_back(bench::SimulatedMark(entry));
  return Joined(marks, " ");
}

std::vector<std::string> LineOf(const archive::ArchiveEntry& entry) {
  return {std::to_string(entry.id),
          VisibleText(entry.Date()),
          std::to_string(entry.revision) + "/" + std::to_string(entry.revisions),
          Tr(judge::OutcomeText(entry.outcome)),
          VisibleText(entry.asset),
          VisibleText(entry.serial),
          MarksOf(entry)};
}

}  // namespace

CLI::App* ArchiveCommandList::Declare(CLI::App& archive) {
  auto* command = archive.add_subcommand("list", Tr("List the documents of the archive, the newest first"));
  command->add_option("--asset", asset_, Tr("Only documents of this asset"));
  command->add_option("--serial", serial_, Tr("Only documents of equipment with this serial number"));
  command
      ->add_option(
          "--since", since_,
          Tr("Only documents run on this date or later, such as 2026-01-31 or 2026-01-31T08:00Z; UTC"))
      ->type_name("DATE");
  command
      ->add_option("--outcome", outcome_,
                   Tr("Only documents with this outcome: passed, failed or incomplete"))
      ->type_name("passed|failed|incomplete");
  limitOption_ = WholeNumbers(command->add_option("--limit", limit_, Tr("At most this many documents")));
  limitOption_->type_name("N");
  command->add_flag("--json", json_, Tr("Print one JSON object"));
  return command;
}

archive::Archive::Filter ArchiveCommandList::Checked() const {
  archive::Archive::Filter filter{asset_, serial_, {}, outcome_, {}};
  if (!since_.empty()) {
    const auto since = archive::UtcText(since_);
    if (!since)
      throw bench::InputError(
          Tr("--since %%1: invalid date; write it as 2026-01-31 or 2026-01-31T08:00Z", {since_}));
    filter.since = *since;
  }
  if (!outcome_.empty() && outcome_ != "passed" && outcome_ != "failed" && outcome_ != "incomplete")
    throw bench::InputError(Tr("--outcome %%1: give passed, failed or incomplete", {outcome_}));
  if (limitOption_->count() > 0) {
    if (limit_ < 1)
      throw bench::InputError(Tr("--limit %%1: give a number from 1 on", {std::to_string(limit_)}));
    filter.limit = limit_;
  }
  return filter;
}

bench::ExitStatus ArchiveCommandList::Run(const bench::GlobalOptions& options) {
  const auto filter = Checked();
  auto archive = bench::OpenArchiveToAsk(location_, options);
  const auto entries = archive.List(filter);
  if (json_) {
    nlohmann::ordered_json json;
    json["archive"] = archive.Name();
    json["documents"] = nlohmann::ordered_json::array();
    for (const auto& entry : entries) json["documents"].push_back(JsonOf(entry));
    std::cout << Indented(json) << "\n";
  } else if (entries.empty()) {
    std::cout << Tr("There are no such documents in the archive %%1.", {archive.Name()}) << "\n";
  } else {
    std::vector<std::vector<std::string>> lines = {ListHeading()};
    for (const auto& entry : entries) lines.push_back(LineOf(entry));
    std::cout << Columned(lines, {0});
  }
  return bench::ExitStatus::kPassed;
}

}  // namespace host::cli

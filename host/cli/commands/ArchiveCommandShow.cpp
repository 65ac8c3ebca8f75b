#include "host/cli/commands/ArchiveCommandShow.h"

#include <CLI/CLI.hpp>
#include <iostream>
#include <limits>

#include "host/base/Tr.h"
#include "host/base/VisibleText.h"
#include "host/bench/OpenArchive.h"
#include "host/cli/commands/ArchiveCommandJson.h"
#include "host/cli/options/NumberOption.h"
#include "host/cli/output/DocumentJson.h"
#include "host/cli/output/DocumentLines.h"

namespace host::cli {

namespace {

using host::VisibleText;

void AddLine(std::string& text, const std::string& line, const std::string& value) {
  if (!value.empty()) text += line + "\n";
}

std::string HeadOf(const archive::ArchiveEntry& entry) {
  std::string text =
      Tr("Document %%1, revision %%2 of %%3",
         {std::to_string(entry.id), std::to_string(entry.revision), std::to_string(entry.revisions)}) +
      (entry.finished ? "" : " " + Tr("(not finished)")) + "\n";
  AddLine(text, Tr("Asset: %%1", {VisibleText(entry.asset)}), entry.asset);
  AddLine(text, Tr("Serial number: %%1", {VisibleText(entry.serial)}), entry.serial);
  AddLine(text, Tr("Maker: %%1", {VisibleText(entry.maker)}), entry.maker);
  AddLine(text, Tr("Model: %%1", {VisibleText(entry.model)}), entry.model);
  AddLine(text, Tr("Run: %%1", {VisibleText(entry.runDate)}), entry.runDate);
  AddLine(text, Tr("Operator: %%1", {VisibleText(entry.operatorName)}), entry.operatorName);
  return text +
         Tr("Added: %%1, by %%2; shown as it was judged then",
            {VisibleText(entry.added), VisibleText(entry.bench)}) +
         "\n";
}

}  // namespace

CLI::App* ArchiveCommandShow::Declare(CLI::App& archive) {
  auto* command = archive.add_subcommand("show", Tr("Print a document of the archive and its results"));
  WholeNumbers(command->add_option("ID", id_, Tr("Number of the document, as \"archive list\" shows it")),
               std::numeric_limits<std::int64_t>::max())
      ->required();
  command->add_flag("--json", json_, Tr("Print one JSON object"));
  return command;
}

bench::ExitStatus ArchiveCommandShow::Run(const bench::GlobalOptions& options) {
  auto archive = bench::OpenArchiveToAsk(location_, options);
  const auto document = bench::Fetched(archive, id_);
  if (json_)
    std::cout << Indented(JsonOf(document)) << "\n";
  else
    std::cout << HeadOf(document.entry) << TextOf(ViewOf(document));
  return bench::ExitStatus::kPassed;
}

}  // namespace host::cli

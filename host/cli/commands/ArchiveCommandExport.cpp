#include "host/cli/commands/ArchiveCommandExport.h"

#include <CLI/CLI.hpp>
#include <iostream>
#include <limits>

#include "host/base/Tr.h"
#include "host/bench/ArchiveEntryOf.h"
#include "host/bench/OpenArchive.h"
#include "host/cli/options/NumberOption.h"
#include "host/document/DocumentFile.h"

namespace host::cli {

CLI::App* ArchiveCommandExport::Declare(CLI::App& archive) {
  auto* command = archive.add_subcommand("export", Tr("Write a document of the archive as the file it was"));
  WholeNumbers(command->add_option("ID", id_, Tr("Number of the document, as \"archive list\" shows it")),
               std::numeric_limits<std::int64_t>::max())
      ->required();
  command->add_option("--to", to_, Tr("The file to write, which must not exist yet"))
      ->required()
      ->type_name("FILE");
  return command;
}

bench::ExitStatus ArchiveCommandExport::Run(const bench::GlobalOptions& options) {
  auto file = document::DocumentFile::New(to_);
  auto archive = bench::OpenArchiveToAsk(location_, options);
  const auto document = bench::Fetched(archive, id_);
  file.Write(document.contents);
  const auto mark = bench::SimulatedMark(document.entry);
  std::cout << to_ << (mark.empty() ? "" : " ") << mark << "\n";
  return bench::ExitStatus::kPassed;
}

}  // namespace host::cli

#include "host/cli/commands/ArchiveCommand.h"

#include <CLI/CLI.hpp>

#include "host/archive/ArchiveError.h"
#include "host/base/FileErrors.h"
#include "host/base/Tr.h"
#include "host/bench/InputError.h"
#include "host/cli/commands/ArchiveCommandAdd.h"
#include "host/cli/commands/ArchiveCommandExport.h"
#include "host/cli/commands/ArchiveCommandList.h"
#include "host/cli/commands/ArchiveCommandShow.h"
#include "host/cli/commands/ArchiveCommandTrend.h"
#include "host/cli/help/Examples.h"

namespace host::cli {

CLI::App* ArchiveCommand::Declare(CLI::App& program) {
  auto* archive = program.add_subcommand("archive", Tr("Archive finished documents and query them later"));
  archive
      ->add_option("--archive", location_,
                   Tr("The archive: a file, or postgresql://USER@HOST/DATABASE; otherwise ORVIK_ARCHIVE, or "
                      "archive.sqlite in the state folder"))
      ->type_name("FILE|URL");
  archive->footer(
      Examples({"orvik-bench archive add pump-7.orvik", "orvik-bench archive list --asset PUMP-7",
                "orvik-bench archive trend --asset PUMP-7 --test 410 --to pump-7.svg",
                "orvik-bench archive --archive postgresql://bench@server/orvik list --since 2026-01-01"}));
  archive->require_subcommand(0, 1);
  const auto add = [&](std::unique_ptr<Command> command, const std::vector<std::string>& examples) {
    auto* declared = command->Declare(*archive);
    declared->footer(Examples(examples));
    declared->fallthrough();
    parts_.push_back({std::move(command), declared});
  };
  add(std::make_unique<ArchiveCommandAdd>(location_), {"orvik-bench archive add pump-7.orvik pump-8.orvik",
                                                       "orvik-bench archive add pump-7.orvik --incomplete",
                                                       "orvik-bench archive add practice.orvik --simulated"});
  add(std::make_unique<ArchiveCommandList>(location_),
      {"orvik-bench archive list --asset PUMP-7",
       "orvik-bench archive list --since 2026-01-01 --outcome failed"});
  add(std::make_unique<ArchiveCommandShow>(location_),
      {"orvik-bench archive show 12", "orvik-bench archive show 12 --json"});
  add(std::make_unique<ArchiveCommandTrend>(location_),
      {"orvik-bench archive trend --asset PUMP-7 --test 410",
       "orvik-bench archive trend --asset PUMP-7 --test 410 --to pump-7.svg",
       "orvik-bench archive trend --asset PRACTICE --test 410 --simulated"});
  add(std::make_unique<ArchiveCommandExport>(location_),
      {"orvik-bench archive export 12 --to pump-7-of-then.orvik"});
  return archive;
}

bench::ExitStatus ArchiveCommand::Run(const bench::GlobalOptions& options) {
  try {
    for (const auto& part : parts_)
      if (part.declared->parsed()) return part.command->Run(options);
  } catch (const archive::ArchiveError& error) {
    switch (error.Why()) {
      case archive::ArchiveError::Kind::kBadInput:
        throw bench::InputError(error.what());
      case archive::ArchiveError::Kind::kBusy:
        throw BusyError(orvik::HostError::kPathError, "orvik-bench", error.what());
      case archive::ArchiveError::Kind::kUnreachable:
        throw bench::IncompleteError(error.what());
    }
  }
  throw bench::InputError(
      Tr("archive: give a command: add, list, show, trend or export; \"orvik-bench archive --help\" "
         "explains them"));
}

}  // namespace host::cli

#include "host/cli/help/ManualCommand.h"

#include <CLI/CLI.hpp>
#include <filesystem>

#include "host/base/Files.h"
#include "host/base/Tr.h"
#include "host/cli/help/Examples.h"
#include "host/cli/help/ManPage.h"

namespace host::cli {

CLI::App* ManualCommand::Declare(CLI::App& program) {
  program_ = &program;
  auto* command = program.add_subcommand("manual", Tr("Write the pages of the manual into a folder"));
  command->group("");
  command->add_option("FOLDER", folder_, Tr("Where the pages are written"))->required();
  command->footer(Examples({"orvik-bench manual ~/.local/share/man/man1"}));
  return command;
}

bench::ExitStatus ManualCommand::Run(const bench::GlobalOptions&) {
  const std::filesystem::path folder(folder_);
  CreateFolder(folder);
  for (const auto& page : ManPages(*program_)) ReplaceFile(folder / page.name, page.text);
  return bench::ExitStatus::kPassed;
}

}  // namespace host::cli

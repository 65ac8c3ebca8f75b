#include "host/cli/commands/GuiCommand.h"

#include <CLI/CLI.hpp>

#include "host/base/Tr.h"
#include "host/bench/ProgramFiles.h"
#include "host/cli/help/Examples.h"
#include "host/cli/options/TesterOptions.h"

namespace host::cli {

CLI::App* GuiCommand::Declare(CLI::App& program) {
  auto* command =
      program.add_subcommand("gui", Tr("Open the window: plan, run and report tests on the screen"));
  command->add_option("FILE", options_.file, Tr("The document to open"));
  DeclareTimeScale(*command, options_.timeScale);
  command->footer(Examples(
      {"orvik-bench gui", "orvik-bench gui pump-7.orvik", "orvik-bench gui pump-7.orvik --time-scale 20"},
      Tr("You operate the guide on the screen. Closing the window during a run stops it first: the session "
         "with the tester is closed and the document saved. Ctrl-C in the terminal does the same without "
         "asking. Exit status 0: the window was closed, 2: a run was stopped or changes were left unsaved by "
         "a signal, or there is no screen, 3: the document cannot be read.")));
  return command;
}

bench::ExitStatus GuiCommand::Run(const bench::GlobalOptions& options) {
  options_.state = options.state;
  options_.catalogue = options.catalogue;
  options_.language = options.language;
  return bench::RunDesktopModule(options_, bench::files::DesktopModule()) ? bench::ExitStatus::kPassed
                                                                          : bench::ExitStatus::kIncomplete;
}

}  // namespace host::cli

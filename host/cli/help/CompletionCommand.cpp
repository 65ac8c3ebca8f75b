#include "host/cli/help/CompletionCommand.h"

#include <CLI/CLI.hpp>
#include <iostream>

#include "host/base/Tr.h"
#include "host/bench/InputError.h"
#include "host/cli/help/Completion.h"
#include "host/cli/help/Examples.h"

namespace host::cli {

CLI::App* CompletionCommand::Declare(CLI::App& program) {
  program_ = &program;
  auto* command =
      program.add_subcommand("completion", Tr("Print a script that completes commands and options"));
  command->add_option("SHELL", shell_, Tr("bash, zsh or fish"))->required()->type_name("bash|zsh|fish");
  command->footer(
      Examples({"orvik-bench completion bash > ~/.local/share/bash-completion/completions/orvik-bench"}));
  return command;
}

bench::ExitStatus CompletionCommand::Run(const bench::GlobalOptions&) {
  if (shell_ == "bash")
    std::cout << BashCompletion(*program_);
  else if (shell_ == "zsh")
    std::cout << ZshCompletion(*program_);
  else if (shell_ == "fish")
    std::cout << FishCompletion(*program_);
  else
    throw bench::InputError(Tr("unknown shell %%1 (bash, zsh, fish)", {shell_}));
  return bench::ExitStatus::kPassed;
}

}  // namespace host::cli

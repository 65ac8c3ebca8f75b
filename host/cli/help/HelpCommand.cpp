#include "host/cli/help/HelpCommand.h"

#include <CLI/CLI.hpp>
#include <iostream>

#include "host/base/Tr.h"
#include "host/bench/InputError.h"
#include "host/cli/help/CommandLineView.h"
#include "host/cli/help/Examples.h"
#include "host/cli/help/Suggestions.h"

namespace host::cli {

CLI::App* HelpCommand::Declare(CLI::App& program) {
  program_ = &program;
  auto* command = program.add_subcommand("help", Tr("Print the help of a command"));
  command->add_option("COMMAND", words_, Tr("The command; without one, the help of the program"));
  command->footer(Examples({"orvik-bench help run", "orvik-bench help archive add"}));
  return command;
}

bench::ExitStatus HelpCommand::Run(const bench::GlobalOptions&) {
  const auto* command = program_;
  std::string above;
  for (const auto& word : words_) {
    const auto* below = CommandNamed(*command, word);
    if (!below) throw bench::InputError(UnknownCommand(word, CommandNamesOf(*command)));
    above += (above.empty() ? "" : " ") + command->get_name();
    command = below;
  }
  if (command == program_)  // its own help would show that of this command, which was parsed
    std::cout << program_->get_formatter()->make_help(program_, program_->get_name(),
                                                      CLI::AppFormatMode::Normal);
  else
    std::cout << command->help(above);
  return bench::ExitStatus::kPassed;
}

}  // namespace host::cli

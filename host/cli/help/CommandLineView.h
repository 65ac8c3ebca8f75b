#pragma once

#include <string>
#include <vector>

namespace CLI {
class App;
class Option;
}  // namespace CLI

namespace host::cli {

/// What is declared of the command line, for manual and completion. What is hidden is left out.

/// The commands of a program.
std::vector<const CLI::App*> CommandsOf(const CLI::App& program);

/// Arguments that have no name but a place.
std::vector<const CLI::Option*> PositionalsOf(const CLI::App& command);

/// Options with names, "--help" among them.
std::vector<const CLI::Option*> OptionsOf(const CLI::App& command);

/// All spellings of an option, the short ones first: "-h", "--help".
std::vector<std::string> SpellingsOf(const CLI::Option& option);

/// The command of that name, hidden or not; null when there is none.
const CLI::App* CommandNamed(const CLI::App& program, const std::string& name);

/// The names of the commands of a program.
std::vector<std::string> CommandNamesOf(const CLI::App& command);

/// The spellings of the command's options, and of those of the commands above it: they may follow its name.
std::vector<std::string> SpellingsAt(const CLI::App& command);

/// Which options of the commands above it may follow its name, and where they are explained, a line for each
/// of those commands; empty for the program itself.
std::vector<std::string> InheritedOptions(const CLI::App& command);

/// Whether the option takes a value.
bool TakesValue(const CLI::Option& option);

}  // namespace host::cli

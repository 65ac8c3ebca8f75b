#include "host/cli/help/CommandLineView.h"

#include <CLI/CLI.hpp>
#include <algorithm>

#include "host/base/Tr.h"

namespace host::cli {

namespace {

bool Hidden(const CLI::Option& option) { return option.get_group().empty(); }

template <class Fits>
std::vector<const CLI::Option*> Options(const CLI::App& command, Fits fits) {
  std::vector<const CLI::Option*> options;
  for (const auto* option : command.get_options()) {
    if (!Hidden(*option) && fits(*option)) options.push_back(option);
  }
  return options;
}

}  // namespace

std::vector<const CLI::App*> CommandsOf(const CLI::App& program) {
  std::vector<const CLI::App*> commands;
  for (const auto* command : program.get_subcommands(std::function<bool(const CLI::App*)>())) {
    if (!command->get_group().empty()) commands.push_back(command);
  }
  return commands;
}

std::vector<const CLI::Option*> PositionalsOf(const CLI::App& command) {
  return Options(command, [](const CLI::Option& option) { return option.get_positional(); });
}

std::vector<const CLI::Option*> OptionsOf(const CLI::App& command) {
  return Options(command, [](const CLI::Option& option) { return !option.get_positional(); });
}

std::vector<std::string> SpellingsOf(const CLI::Option& option) {
  std::vector<std::string> spellings;
  for (const auto& name : option.get_snames()) spellings.push_back("-" + name);
  for (const auto& name : option.get_lnames()) spellings.push_back("--" + name);
  return spellings;
}

std::vector<std::string> InheritedOptions(const CLI::App& command) {
  std::vector<std::string> lines;
  for (const auto* above = command.get_parent(); above; above = above->get_parent()) {
    std::string names;
    for (const auto* option : OptionsOf(*above)) {
      if (!TakesValue(*option)) continue;
      names += (names.empty() ? "" : ", ") + SpellingsOf(*option).back() + " " + option->get_type_name();
    }
    const auto* top = above->get_parent();
    const auto path = (top ? top->get_name() + " " : "") + above->get_name();
    lines.push_back(Tr("Further options, which \"%%1 --help\" explains: %%2", {path, names}));
  }
  return lines;
}

const CLI::App* CommandNamed(const CLI::App& program, const std::string& name) {
  for (const auto* command : program.get_subcommands(std::function<bool(const CLI::App*)>())) {
    if (command->get_name() == name) return command;
  }
  return nullptr;
}

std::vector<std::string> CommandNamesOf(const CLI::App& command) {
  std::vector<std::string> names;
  for (const auto* below : CommandsOf(command)) names.push_back(below->get_name());
  return names;
}

std::vector<std::string> SpellingsAt(const CLI::App& command) {
  std::vector<std::string> all;
  for (const auto* at = &command; at; at = at->get_parent()) {
    for (const auto* option : OptionsOf(*at)) {
      for (const auto& spelling : SpellingsOf(*option)) {
        if (std::find(all.begin(), all.end(), spelling) == all.end()) all.push_back(spelling);
      }
    }
  }
  return all;
}

bool TakesValue(const CLI::Option& option) { return option.get_items_expected_max() > 0; }

}  // namespace host::cli

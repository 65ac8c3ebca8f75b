#include "host/cli/help/UnknownWords.h"

#include <CLI/CLI.hpp>
#include <algorithm>

#include "host/base/TextColumns.h"
#include "host/base/Tr.h"
#include "host/base/VisibleText.h"
#include "host/cli/help/CommandLineView.h"
#include "host/cli/help/Suggestions.h"

namespace host::cli {

namespace {

/// The last command of the command line that the parser knew.
const CLI::App& Innermost(const CLI::App& program) {
  const auto* command = &program;
  for (auto below = command->get_subcommands(); !below.empty(); below = command->get_subcommands())
    command = below.back();
  return *command;
}

bool IsOption(const std::string& word) { return word.size() > 1 && word.front() == '-'; }

std::string UnknownOption(const std::string& word, const CLI::App& command) {
  const auto name = word.substr(0, word.find('='));
  const auto meant = Nearest(name, SpellingsAt(command));
  return meant.empty() ? Tr("unknown option %%1", {name})
                       : Tr("unknown option %%1: did you mean %%2?", {name, meant});
}

}  // namespace

std::string UnknownWords(const CLI::App& program) {
  std::vector<std::string> words;
  for (const auto& word : program.remaining(true)) words.push_back(host::VisibleText(word));
  if (words.empty()) return {};
  const auto& command = Innermost(program);
  if (IsOption(words.front())) return UnknownOption(words.front(), command);
  if (const auto names = CommandNamesOf(command); !names.empty()) return UnknownCommand(words.front(), names);
  if (const auto option = std::find_if(words.begin(), words.end(), IsOption); option != words.end())
    return UnknownOption(*option, command);
  return words.size() == 1 ? Tr("The following argument was not expected: %%1", {words.front()})
                           : Tr("The following arguments were not expected: %%1", {Joined(words, " ")});
}

std::string CommandTyped(const CLI::App& program) {
  auto typed = program.get_name();
  const auto* command = &program;
  for (auto below = command->get_subcommands(); !below.empty(); below = command->get_subcommands()) {
    command = below.back();
    typed += " " + command->get_name();
  }
  return typed;
}

}  // namespace host::cli

#include "host/cli/help/CheckArguments.h"

#include <CLI/CLI.hpp>

#include "host/base/PlainText.h"
#include "host/base/Tr.h"
#include "host/bench/InputError.h"
#include "host/cli/help/OptionValues.h"

namespace host::cli {

namespace {

void CheckArgument(const CLI::Option& option, const std::string& text) {
  const bool isName = NamesDocument(option) || NamesFile(option) || NamesFolder(option);
  const bool mayStandAlone = option.get_items_expected_min() == 0;
  if (text.empty() && !mayStandAlone && (isName || option.get_positional()))
    throw bench::InputError(Tr("%%1: the name must not be empty", {option.get_name()}));
  if (isName) return;
  if (const auto bad = FindNotPlain(text); bad != std::string::npos)
    throw bench::InputError(
        Tr("%%1: the text has a control character, or a byte that is not UTF-8, after \"%%2\"; "
           "remove it",
           {option.get_name(), text.substr(0, bad)}));
}

}  // namespace

void CheckArguments(const CLI::App& program) {
  for (const auto* option : program.get_options()) {
    for (const auto& text : option->results()) CheckArgument(*option, text);
  }
  for (const auto* command : program.get_subcommands()) CheckArguments(*command);
}

}  // namespace host::cli

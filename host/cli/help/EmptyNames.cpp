#include "host/cli/help/EmptyNames.h"

#include <CLI/CLI.hpp>
#include <algorithm>

#include "host/base/Tr.h"
#include "host/bench/InputError.h"
#include "host/cli/help/OptionValues.h"

namespace host::cli {

namespace {

bool MustNotBeEmpty(const CLI::Option& option) {
  const bool mayStandAlone = option.get_items_expected_min() == 0;
  return !mayStandAlone &&
         (option.get_positional() || NamesDocument(option) || NamesFile(option) || NamesFolder(option));
}

}  // namespace

void RefuseEmptyNames(const CLI::App& program) {
  for (const auto* option : program.get_options()) {
    const auto& given = option->results();
    if (MustNotBeEmpty(*option) && std::find(given.begin(), given.end(), "") != given.end())
      throw bench::InputError(Tr("%%1: the name must not be empty", {option->get_name()}));
  }
  for (const auto* command : program.get_subcommands()) RefuseEmptyNames(*command);
}

}  // namespace host::cli

#include "host/cli/help/PlainWords.h"

#include <CLI/CLI.hpp>

#include "host/base/PlainText.h"
#include "host/base/Tr.h"
#include "host/bench/InputError.h"
#include "host/cli/help/OptionValues.h"

namespace host::cli {

void RefuseControlCharacters(const CLI::App& program) {
  for (const auto* option : program.get_options()) {
    if (NamesFile(*option) || NamesDocument(*option) || NamesFolder(*option)) continue;
    for (const auto& text : option->results()) {
      const auto bad = FindNotPlain(text);
      if (bad != std::string::npos)
        throw bench::InputError(
            Tr("%%1: the text has a control character, or a byte that is not UTF-8, after \"%%2\"; "
               "remove it",
               {option->get_name(), text.substr(0, bad)}));
    }
  }
  for (const auto* command : program.get_subcommands()) RefuseControlCharacters(*command);
}

}  // namespace host::cli

#pragma once

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

namespace bench {

/// What the value of an option or an argument may be, told by the name of its type: "FILE", "DIR",
/// "passed|failed".

bool NamesFile(const CLI::Option& option);
bool NamesFolder(const CLI::Option& option);
/// The words that can be given; beside files, where those can be given too.
std::vector<std::string> WordsFor(const CLI::Option& option);

}  // namespace bench

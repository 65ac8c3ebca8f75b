#pragma once

#include <CLI/CLI.hpp>
#include <string>

namespace bench {

/// What is wrong with the command line, in the language that was chosen.
std::string ParseErrorText(const CLI::ParseError& error);

}  // namespace bench

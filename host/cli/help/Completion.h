#pragma once

#include <string>

namespace CLI {
class App;
}  // namespace CLI

namespace host::cli {

/// Scripts that complete the program's command line, made from the declarations that `--help` shows:
/// commands, options, the words that an option takes, files and folders.

std::string BashCompletion(const CLI::App& program);
/// The script for bash, behind what has zsh take such scripts.
std::string ZshCompletion(const CLI::App& program);
std::string FishCompletion(const CLI::App& program);

}  // namespace host::cli

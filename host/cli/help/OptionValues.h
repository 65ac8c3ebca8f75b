#pragma once

#include <string>
#include <vector>

namespace CLI {
class Option;
}  // namespace CLI

namespace host::cli {

/// What the value of an option or argument may be, derived from the name of its type: "FILE", "DIR",
/// "passed|failed".

/// A document of tests, FILE.orvik.
bool NamesDocument(const CLI::Option& option);
/// Another file.
bool NamesFile(const CLI::Option& option);
bool NamesFolder(const CLI::Option& option);
/// An element of the document on the same command line.
bool NamesElement(const CLI::Option& option);
/// A command of the program.
bool NamesCommand(const CLI::Option& option);
/// The words that can be given; beside files, where those can be given too.
std::vector<std::string> WordsFor(const CLI::Option& option);

}  // namespace host::cli

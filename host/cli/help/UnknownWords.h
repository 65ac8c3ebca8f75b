#pragma once

#include <string>

namespace CLI {
class App;
}  // namespace CLI

namespace host::cli {

/// What the parser did not know of a command line, with what was probably meant; empty when it knew every
/// word.
/// @param program after it has parsed, also in vain
std::string UnknownWords(const CLI::App& program);

/// The command that was being parsed, as it is typed: "orvik-bench archive add".
std::string CommandTyped(const CLI::App& program);

}  // namespace host::cli

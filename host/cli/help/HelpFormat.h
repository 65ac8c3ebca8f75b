#pragma once

#include <memory>

namespace CLI {
class FormatterBase;
}  // namespace CLI

namespace host::cli {

/// The form of the help: the parser's own, in the language that was chosen, its columns counted in cells.
std::shared_ptr<CLI::FormatterBase> MakeHelpFormat();

}  // namespace host::cli

#pragma once

#include <string>
#include <vector>

namespace bench {

/// "Examples:" and below it the command lines, for the end of a command's help.
std::string Examples(const std::vector<std::string>& commandLines);

}  // namespace bench

#pragma once

#include <string>
#include <vector>

namespace host::cli {

/// "Examples:" and below it the command lines, for the end of a command's help.
/// @param remark what else is to be known, in the chosen language; wrapped
std::string Examples(const std::vector<std::string>& commandLines, const std::string& remark = {});

}  // namespace host::cli

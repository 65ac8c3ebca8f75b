#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace host::cli {

/// The candidate that was probably meant by a mistyped word, empty when none is near: letters left out,
/// doubled, exchanged or wrong, or the beginning of the candidate alone. Dashes in front and capitals do not
/// count.
std::string Nearest(std::string_view word, const std::vector<std::string>& candidates);

/// "unknown command "rnu": did you mean "run"?"
std::string UnknownCommand(const std::string& word, const std::vector<std::string>& candidates);

}  // namespace host::cli

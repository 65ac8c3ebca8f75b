#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace sim {

/// The end of every line that the tester sends.
inline constexpr std::string_view kLineEnd = "\r\n";

/// One message of the wire: a mnemonic and its parameters, each preceded by a comma.
struct Message {
  std::string mnemonic;
  std::vector<std::string> parameters;
};

/// Takes a line apart. Empty when its quotation marks do not match: a parameter in quotation marks must end
/// at a comma or at the line's end, and a mark elsewhere must be inside such a parameter, doubled.
std::optional<Message> ParseMessage(std::string_view line);

/// The mnemonic of a line, also of one whose parameters are malformed.
std::string_view MnemonicOf(std::string_view line);

/// Appends a comma and `parameter` to `line`, in quotation marks when it holds a comma or a quotation mark.
void AppendParameter(std::string& line, std::string_view parameter);

}  // namespace sim

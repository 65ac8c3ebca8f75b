#include "tester/Message.h"

#include <algorithm>
#include <utility>

namespace sim {

namespace {

/// Reads one parameter that starts at `at` and moves `at` to the comma after it or to the end.
std::optional<std::string> ReadParameter(std::string_view line, std::size_t& at) {
  if (at == line.size() || line[at] != '"') {
    const std::size_t end = std::min(line.find(',', at), line.size());
    std::string text(line.substr(at, end - at));
    at = end;
    if (text.find('"') != std::string::npos) return std::nullopt;
    return text;
  }
  std::string text;
  for (++at; at < line.size(); ++at) {
    if (line[at] != '"') {
      text.push_back(line[at]);
    } else if (at + 1 < line.size() && line[at + 1] == '"') {
      text.push_back('"');
      ++at;
    } else {
      ++at;
      if (at < line.size() && line[at] != ',') return std::nullopt;
      return text;
    }
  }
  return std::nullopt;  // the closing mark is missing
}

}  // namespace

std::optional<Message> ParseMessage(std::string_view line) {
  Message message;
  message.mnemonic = MnemonicOf(line);
  std::size_t at = message.mnemonic.size();
  while (at < line.size()) {
    ++at;  // the comma
    auto parameter = ReadParameter(line, at);
    if (!parameter) return std::nullopt;
    message.parameters.push_back(std::move(*parameter));
  }
  return message;
}

std::string_view MnemonicOf(std::string_view line) { return line.substr(0, line.find(',')); }

void AppendParameter(std::string& line, std::string_view parameter) {
  line.push_back(',');
  if (parameter.find_first_of(",\"") == std::string_view::npos) {
    line += parameter;
    return;
  }
  line.push_back('"');
  for (const char c : parameter) {
    if (c == '"') line.push_back('"');
    line.push_back(c);
  }
  line.push_back('"');
}

}  // namespace sim

#include "host/base/TextColumns.h"

#include <algorithm>
#include <charconv>

#include "host/base/TextCells.h"

namespace host {

std::string Padded(const std::string& text, std::size_t width) {
  const auto length = CellsOf(text);
  return text + std::string(length < width ? width - length + 1 : 1, ' ');
}

std::string LeftPadded(const std::string& text, std::size_t width) {
  const auto length = CellsOf(text);
  return std::string(length < width ? width - length : 0, ' ') + text;
}

std::string Columned(const std::vector<std::vector<std::string>>& lines,
                     const std::vector<std::size_t>& right, std::size_t widest) {
  std::vector<std::size_t> widths;
  for (const auto& line : lines) {
    widths.resize(std::max(widths.size(), line.size()));
    for (std::size_t i = 0; i < line.size(); ++i)
      if (const auto cells = CellsOf(line[i]); cells <= widest) widths[i] = std::max(widths[i], cells);
  }
  std::string text;
  for (const auto& line : lines) {
    for (std::size_t i = 0; i < line.size(); ++i) {
      const bool toTheRight = std::find(right.begin(), right.end(), i) != right.end();
      text += toTheRight ? LeftPadded(line[i], widths[i]) + " " : Padded(line[i], widths[i]);
      text += ' ';
    }
    text.erase(text.find_last_not_of(' ') + 1);
    text += '\n';
  }
  return text;
}

std::string Joined(const std::vector<std::string>& texts, const char* between) {
  std::string joined;
  for (const auto& text : texts) joined += (joined.empty() ? "" : between) + text;
  return joined;
}

std::string ShortNumber(double number) {
  char buffer[64];
  // Ten digits: converting ohms to milliohms leaves rounding errors in the last ones.
  const auto end = std::to_chars(buffer, buffer + sizeof buffer, number, std::chars_format::general, 10).ptr;
  return {buffer, end};
}

}  // namespace host

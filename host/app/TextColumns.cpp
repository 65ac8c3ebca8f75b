#include "host/app/TextColumns.h"

#include <charconv>

#include "host/services/TextCells.h"

namespace bench {

std::string Padded(const std::string& text, std::size_t width) {
  const auto length = CellsOf(text);
  return text + std::string(length < width ? width - length + 1 : 1, ' ');
}

std::string LeftPadded(const std::string& text, std::size_t width) {
  const auto length = CellsOf(text);
  return std::string(length < width ? width - length : 0, ' ') + text;
}

std::string Joined(const std::vector<std::string>& texts, const char* between) {
  std::string joined;
  for (const auto& text : texts) joined += (joined.empty() ? "" : between) + text;
  return joined;
}

std::string ShortNumber(double number) {
  char buffer[64];
  // Ten digits: what the tester sends in ohms and is recorded in milliohms carries rounding in the last ones.
  const auto end = std::to_chars(buffer, buffer + sizeof buffer, number, std::chars_format::general, 10).ptr;
  return {buffer, end};
}

}  // namespace bench

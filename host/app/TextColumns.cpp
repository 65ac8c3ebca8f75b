#include "host/app/TextColumns.h"

#include <algorithm>
#include <charconv>

namespace bench {

std::size_t LengthOf(const std::string& text) {
  return static_cast<std::size_t>(std::count_if(
      text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

std::string Padded(const std::string& text, std::size_t width) {
  const auto length = LengthOf(text);
  return text + std::string(length < width ? width - length + 1 : 1, ' ');
}

std::string LeftPadded(const std::string& text, std::size_t width) {
  const auto length = LengthOf(text);
  return std::string(length < width ? width - length : 0, ' ') + text;
}

std::string ShortNumber(double number) {
  char buffer[64];
  // Ten digits: what the tester sends in ohms and is recorded in milliohms carries rounding in the last ones.
  const auto end = std::to_chars(buffer, buffer + sizeof buffer, number, std::chars_format::general, 10).ptr;
  return {buffer, end};
}

}  // namespace bench

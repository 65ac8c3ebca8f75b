#include "toolkit/headless/TextSize.h"

#include <algorithm>

namespace toolkit::headless {
namespace {

constexpr int kLongestLine = 60;

bool StartsCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) != 0x80; }

}  // namespace

int ShownCharacters(std::string_view caption) {
  int shown = 0;
  for (std::size_t index = 0; index < caption.size(); ++index) {
    if (caption[index] == '&' && index + 1 < caption.size()) ++index;
    if (StartsCharacter(caption[index])) ++shown;
  }
  return shown;
}

platform::Size LineSize(std::string_view caption) {
  return {ShownCharacters(caption) * kCharacterWidth, kLineHeight};
}

platform::Size WrappedSize(std::string_view text) {
  int longest = 0;
  int lines = 0;
  while (true) {
    const auto end = text.find('\n');
    const int length = ShownCharacters(text.substr(0, end));
    longest = std::max(longest, std::min(length, kLongestLine));
    lines += std::max(1, (length + kLongestLine - 1) / kLongestLine);
    if (end == std::string_view::npos) break;
    text.remove_prefix(end + 1);
  }
  return {longest * kCharacterWidth, lines * kLineHeight};
}

int AccessKey(std::string_view caption) {
  for (std::size_t index = 0; index + 1 < caption.size(); ++index) {
    if (caption[index] != '&') continue;
    const char key = caption[++index];
    if (key >= 'a' && key <= 'z') return key - 'a' + 'A';
    if ((key >= 'A' && key <= 'Z') || (key >= '0' && key <= '9')) return key;
  }
  return 0;
}

}  // namespace toolkit::headless

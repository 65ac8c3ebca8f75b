#include "host/base/VisibleText.h"

#include <cstdio>

#include "host/base/Text.h"

namespace host {
namespace {

bool Within(char32_t letter, char32_t first, char32_t last) { return letter >= first && letter <= last; }

/// Unicode's control and format characters that act on their neighbours or cannot be seen. The joiners U+200C
/// and U+200D are letters of some scripts and stay.
bool Hidden(char32_t letter) {
  return Within(letter, 0x7F, 0x9F) || letter == 0xAD || letter == 0x61C || letter == 0x200B ||
         Within(letter, 0x200E, 0x200F) || Within(letter, 0x202A, 0x202E) || Within(letter, 0x2060, 0x206F) ||
         letter == 0xFEFF || Within(letter, 0xFFF9, 0xFFFB) || Within(letter, 0xE0000, 0xE007F);
}

bool NoCharacter(char32_t letter) { return (letter & 0xFFFE) == 0xFFFE || Within(letter, 0xFDD0, 0xFDEF); }

void AppendNumber(std::string& text, char32_t letter) {
  char number[16];
  std::snprintf(number, sizeof number, "[U+%04X]", static_cast<unsigned>(letter));
  text += number;
}

}  // namespace

std::u32string CodePoints(std::string_view text) {
  const auto valid = ValidUtf8(text);
  std::u32string letters;
  letters.reserve(valid.size());
  for (std::size_t i = 0; i < valid.size();) {
    const auto first = static_cast<unsigned char>(valid[i]);
    const std::size_t length = first < 0x80 ? 1 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
    char32_t letter = length == 1 ? first : first & (0xFFU >> (length + 1));
    for (std::size_t k = 1; k < length; ++k)
      letter = (letter << 6) | (static_cast<unsigned char>(valid[i + k]) & 0x3FU);
    letters += letter;
    i += length;
  }
  return letters;
}

void AppendUtf8(std::string& text, char32_t letter) {
  const auto byte = [&text](char32_t value) { text += static_cast<char>(static_cast<unsigned char>(value)); };
  if (letter < 0x80) {
    byte(letter);
  } else if (letter < 0x800) {
    byte(0xC0 | (letter >> 6));
    byte(0x80 | (letter & 0x3F));
  } else if (letter < 0x10000) {
    byte(0xE0 | (letter >> 12));
    byte(0x80 | ((letter >> 6) & 0x3F));
    byte(0x80 | (letter & 0x3F));
  } else {
    byte(0xF0 | (letter >> 18));
    byte(0x80 | ((letter >> 12) & 0x3F));
    byte(0x80 | ((letter >> 6) & 0x3F));
    byte(0x80 | (letter & 0x3F));
  }
}

std::string VisibleText(std::string_view text, LineEnds lineEnds) {
  std::string visible;
  visible.reserve(text.size());
  const auto letters = CodePoints(text);
  for (std::size_t i = 0; i < letters.size(); ++i) {
    const auto letter = letters[i];
    if (lineEnds == LineEnds::kKept) {
      if (letter == '\r' && i + 1 < letters.size() && letters[i + 1] == '\n') continue;
      if (letter == '\n' || letter == 0x2028 || letter == 0x2029) {
        visible += '\n';
        continue;
      }
    }
    if (letter < 0x20 || Hidden(letter) || letter == 0x2028 || letter == 0x2029)
      AppendNumber(visible, letter);
    else
      AppendUtf8(visible, NoCharacter(letter) ? 0xFFFD : letter);
  }
  return visible;
}

}  // namespace host

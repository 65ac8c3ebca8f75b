#include "host/xml/XmlReferences.h"

#include <cstdint>

namespace host::xml {
namespace {

constexpr std::string_view kBegin = "&#";

/// The value of a digit to the base, or the base when it is none.
std::uint32_t DigitOf(char letter, std::uint32_t base) {
  std::uint32_t digit = base;
  if (letter >= '0' && letter <= '9') digit = static_cast<std::uint32_t>(letter - '0');
  if (letter >= 'a' && letter <= 'f') digit = static_cast<std::uint32_t>(letter - 'a') + 10;
  if (letter >= 'A' && letter <= 'F') digit = static_cast<std::uint32_t>(letter - 'A') + 10;
  return digit < base ? digit : base;
}

// XML 1.0, production [2]; control characters apart.
bool IsCharacter(std::uint32_t number) {
  return number != 0 && number <= 0x10FFFF && !(number >= 0xD800 && number <= 0xDFFF);
}

/// Whether the text begins with a whole reference, behind its "&#", that names no character.
bool NamesNothing(std::string_view text) {
  const std::uint32_t base = text.starts_with('x') ? 16 : 10;
  if (base == 16) text.remove_prefix(1);
  std::uint32_t number = 0;
  std::size_t digits = 0;
  for (; digits < text.size() && DigitOf(text[digits], base) < base; ++digits) {
    // Kept small: the parser's own number would begin again at 0.
    if (number <= 0x10FFFF) number = number * base + DigitOf(text[digits], base);
  }
  return digits > 0 && text.substr(digits).starts_with(';') && !IsCharacter(number);
}

}  // namespace

std::size_t ReferenceToNothing(std::string_view text, std::size_t from) {
  auto at = text.find(kBegin, from);
  while (at != std::string_view::npos && !NamesNothing(text.substr(at + kBegin.size())))
    at = text.find(kBegin, at + kBegin.size());
  return at;
}

}  // namespace host::xml

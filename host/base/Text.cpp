#include "host/base/Text.h"

#include <algorithm>
#include <charconv>
#include <cstring>

namespace host {
namespace {

char Lower(char letter) {
  return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

/// The first byte at or behind `from` that is NUL or above 0x7F: nearly all of most texts lies before it.
std::size_t PastAscii(std::string_view text, std::size_t from) {
  for (std::uint64_t eight = 0; from + sizeof eight <= text.size(); from += sizeof eight) {
    std::memcpy(&eight, text.data() + from, sizeof eight);
    constexpr std::uint64_t kHighBits = 0x8080808080808080U, kOnes = 0x0101010101010101U;
    if (((eight | (eight - kOnes)) & kHighBits) != 0) break;
  }
  while (from < text.size() && text[from] != 0 && static_cast<unsigned char>(text[from]) < 0x80) ++from;
  return from;
}

/// Length of the valid UTF-8 sequence at the start of the text; 0 when there is none.
std::size_t SequenceLength(std::string_view text) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const unsigned char lead = byte(0);
  if (lead == 0) return 0;
  if (lead < 0x80) return 1;
  const std::size_t length = lead >= 0xC2 && lead <= 0xDF   ? 2
                             : lead >= 0xE0 && lead <= 0xEF ? 3
                             : lead >= 0xF0 && lead <= 0xF4 ? 4
                                                            : 0;
  if (length == 0 || text.size() < length) return 0;
  for (std::size_t i = 1; i < length; ++i) {
    if ((byte(i) & 0xC0) != 0x80) return 0;
  }
  // Overlong forms, surrogates and code points beyond U+10FFFF.
  if (lead == 0xE0 && byte(1) < 0xA0) return 0;
  if (lead == 0xED && byte(1) > 0x9F) return 0;
  if (lead == 0xF0 && byte(1) < 0x90) return 0;
  if (lead == 0xF4 && byte(1) > 0x8F) return 0;
  return length;
}

}  // namespace

std::string LowerAscii(std::string_view text) {
  std::string lower(text);
  for (char& letter : lower) letter = Lower(letter);
  return lower;
}

std::optional<std::int32_t> WholeNumber(std::string_view text) {
  if (text.size() > 1 && text[0] == '+' && text[1] != '-') text.remove_prefix(1);
  std::int32_t value = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
  if (result.ec != std::errc{} || result.ptr != text.data() + text.size()) return {};
  return value;
}

std::string ExactNumberText(double value) {
  char buffer[40];
  const auto result = std::to_chars(buffer, buffer + sizeof buffer, value);
  return {buffer, result.ptr};
}

std::string ValidUtf8(std::string_view text) {
  std::string valid;
  valid.reserve(text.size());
  while (!text.empty()) {
    const auto good = text.substr(0, InvalidUtf8(text));
    valid += good;
    text.remove_prefix(good.size());
    if (text.empty()) break;
    valid += "\xEF\xBF\xBD";
    text.remove_prefix(1);
  }
  return valid;
}

bool SameApartFromCase(std::string_view one, std::string_view other) {
  if (one == other) return true;
  return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                    [](char left, char right) { return Lower(left) == Lower(right); });
}

// Class identifiers differ in their ends: eight letters distinguish them well enough.
std::size_t HashApartFromCase::operator()(std::string_view text) const {
  std::uint64_t hash = 0xCBF29CE484222325U ^ text.size();  // FNV-1a
  for (const char letter : text.substr(text.size() - std::min<std::size_t>(text.size(), 8)))
    hash = (hash ^ static_cast<unsigned char>(Lower(letter))) * 0x100000001B3U;
  return hash;
}

std::size_t InvalidUtf8(std::string_view text, std::size_t from) {
  while (from < text.size()) {
    from = PastAscii(text, from);
    if (from == text.size()) break;
    const std::size_t length = SequenceLength(text.substr(from));
    if (length == 0) return from;
    from += length;
  }
  return std::string_view::npos;
}

}  // namespace host

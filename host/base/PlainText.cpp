#include "host/base/PlainText.h"

#include "host/base/Text.h"

namespace host {
namespace {

bool At(std::string_view text, std::size_t place, std::string_view expected) {
  return text.substr(place, expected.size()) == expected;
}

/// The length of what is not plain at this place of valid UTF-8; 0 when it is.
std::size_t NotPlainAt(std::string_view text, std::size_t place) {
  const auto letter = static_cast<unsigned char>(text[place]);
  if (letter < 0x20 || letter == 0x7F) return 1;
  if (letter == 0xC2 && static_cast<unsigned char>(text[place + 1]) < 0xA0) return 2;  // U+0080 to U+009F
  if (At(text, place, "\xEF\xBF\xBE") || At(text, place, "\xEF\xBF\xBF")) return 3;    // U+FFFE, U+FFFF
  return 0;
}

}  // namespace

std::size_t FindNotPlain(std::string_view text) {
  const auto valid = InvalidUtf8(text);
  const auto end = valid == std::string_view::npos ? text.size() : valid;
  for (std::size_t place = 0; place < end; ++place) {
    if (NotPlainAt(text, place) > 0) return place;
  }
  return valid;
}

std::string PlainTextOf(std::string_view text) {
  std::string plain;
  for (auto bad = FindNotPlain(text); bad != std::string_view::npos; bad = FindNotPlain(text)) {
    plain += text.substr(0, bad);
    const bool valid = InvalidUtf8(text.substr(0, bad + 3)) != bad;
    text.remove_prefix(bad + (valid ? NotPlainAt(text, bad) : 1));
  }
  return plain += text;
}

}  // namespace host

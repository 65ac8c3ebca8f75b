#include "host/serial/Latin1.h"

namespace host::serial {

namespace {

void AppendLetter(std::string& text, unsigned char byte) {
  if (byte < 0x80) {
    text.push_back(static_cast<char>(byte));
  } else {
    text.push_back(static_cast<char>(0xC0 | (byte >> 6)));
    text.push_back(static_cast<char>(0x80 | (byte & 0x3F)));
  }
}

}  // namespace

std::optional<std::string> Latin1FromUtf8(std::string_view text) {
  std::string bytes;
  bytes.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto lead = static_cast<unsigned char>(text[i]);
    if (lead < 0x80) {
      bytes.push_back(text[i]);
      continue;
    }
    // Only U+0080 to U+00FF fit: two bytes, the first of them 0xC2 or 0xC3.
    if ((lead != 0xC2 && lead != 0xC3) || i + 1 == text.size()) return std::nullopt;
    const auto trail = static_cast<unsigned char>(text[++i]);
    if ((trail & 0xC0) != 0x80) return std::nullopt;
    bytes.push_back(static_cast<char>(((lead & 0x03) << 6) | (trail & 0x3F)));
  }
  return bytes;
}

std::string Utf8FromLatin1(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size());
  for (const char c : bytes) AppendLetter(text, static_cast<unsigned char>(c));
  return text;
}

std::string VisibleLatin1(std::string_view bytes) {
  static constexpr char kHex[] = "0123456789ABCDEF";
  std::string text;
  text.reserve(bytes.size());
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 0x20 || byte == 0x7F) {
      text += {'\\', 'x', kHex[byte >> 4], kHex[byte & 0x0F]};
    } else if (c == '\\') {
      text += "\\\\";
    } else {
      AppendLetter(text, byte);
    }
  }
  return text;
}

}  // namespace host::serial

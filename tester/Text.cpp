#include "tester/Text.h"

#include <algorithm>
#include <charconv>

namespace sim {

namespace {

bool IsControl(unsigned char byte) { return byte < 0x20 || byte == 0x7F; }

}  // namespace

std::optional<std::string> Utf8ToLatin1(std::string_view text) {
  std::string bytes;
  bytes.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto lead = static_cast<unsigned char>(text[i]);
    if (lead < 0x80) {
      bytes.push_back(static_cast<char>(lead));
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

std::string Latin1ToUtf8(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size());
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 0x80) {
      text.push_back(c);
    } else {
      text.push_back(static_cast<char>(0xC0 | (byte >> 6)));
      text.push_back(static_cast<char>(0x80 | (byte & 0x3F)));
    }
  }
  return text;
}

std::string ShowBytes(std::string_view bytes) {
  static constexpr char kHex[] = "0123456789ABCDEF";
  std::string text;
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    if (IsControl(byte)) {
      text += "\\x";
      text.push_back(kHex[byte >> 4]);
      text.push_back(kHex[byte & 0x0F]);
    } else if (c == '\\') {
      text += "\\\\";
    } else {
      text += Latin1ToUtf8({&c, 1});
    }
  }
  return text;
}

bool IsSendable(std::string_view utf8) {
  const auto bytes = Utf8ToLatin1(utf8);
  return bytes && std::none_of(bytes->begin(), bytes->end(),
                               [](char c) { return IsControl(static_cast<unsigned char>(c)); });
}

std::string_view Trim(std::string_view text) {
  const auto first = text.find_first_not_of(" \t");
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

std::string_view TakeWord(std::string_view& text) {
  text = Trim(text);
  const std::size_t end = std::min(text.find_first_of(" \t"), text.size());
  const std::string_view word = text.substr(0, end);
  text = Trim(text.substr(end));
  return word;
}

std::string Quoted(std::string_view text) {
  std::string quoted(1, '\'');
  quoted += text;
  quoted += '\'';
  return quoted;
}

std::optional<int> ParseNumber(std::string_view text, int highest) {
  if (text.empty() || text.front() < '0' || text.front() > '9') return std::nullopt;
  int number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size() || number > highest) return std::nullopt;
  return number;
}

}  // namespace sim

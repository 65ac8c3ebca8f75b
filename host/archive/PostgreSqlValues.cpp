#include "host/archive/PostgreSqlValues.h"

#include <charconv>

#include "host/base/Text.h"

namespace host::archive {

namespace {

/// Numbers of the server's own types, the same in every database.
enum Type : Oid { kBytes = 17, kWhole = 20, kText = 25, kReal = 701 };

int DigitOf(char c) { return c <= '9' ? c - '0' : c - 'a' + 10; }

/// "\x" and two digits for each byte.
Bytes BytesOf(std::string_view text) {
  Bytes bytes;
  bytes.data.reserve(text.size() / 2);
  for (std::size_t i = 2; i + 1 < text.size(); i += 2)
    bytes.data += static_cast<char>(DigitOf(text[i]) * 16 + DigitOf(text[i + 1]));
  return bytes;
}

}  // namespace

PostgreSqlParameters::PostgreSqlParameters(const std::vector<Value>& values) {
  numbers_.reserve(values.size());  // what points into it stays valid
  for (const auto& value : values) std::visit([this](const auto& held) { Add(held); }, value);
}

void PostgreSqlParameters::Add(std::int64_t number) {
  const auto& text = numbers_.emplace_back(std::to_string(number));
  Append(kWhole, text.c_str(), text.size(), false);
}

void PostgreSqlParameters::Add(double number) {
  const auto& text = numbers_.emplace_back(ExactNumberText(number));
  Append(kReal, text.c_str(), text.size(), false);
}

void PostgreSqlParameters::Add(const std::string& text) { Append(kText, text.c_str(), text.size(), false); }

void PostgreSqlParameters::Add(const Bytes& bytes) {
  Append(kBytes, bytes.data.data(), bytes.data.size(), true);
}

void PostgreSqlParameters::Append(Oid type, const char* text, std::size_t length, bool binary) {
  types_.push_back(type);
  texts_.push_back(text);
  lengths_.push_back(static_cast<int>(length));
  formats_.push_back(binary ? 1 : 0);
}

Value PostgreSqlValue(std::string_view text, Oid type) {
  switch (type) {
    case kWhole: {
      std::int64_t number = 0;
      std::from_chars(text.data(), text.data() + text.size(), number);
      return number;
    }
    case kReal: {
      double number = 0;
      std::from_chars(text.data(), text.data() + text.size(), number);
      return number;
    }
    case kBytes:
      return BytesOf(text);
    default:
      return std::string(text);
  }
}

}  // namespace host::archive

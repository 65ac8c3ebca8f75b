#include "host/xml/XmlEncoding.h"

#include <iconv.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <optional>
#include <string_view>
#include <utility>

#include "host/base/Text.h"
#include "host/base/Tr.h"

namespace host::xml {
namespace {

using namespace std::string_view_literals;

constexpr std::string_view kBlanks = " \t\r\n";

struct Signature {
  std::string_view begin;
  std::string_view encoding;
  bool isMark;  ///< a byte order mark, not part of the text
};

/// The longer ones first: UTF-32 begins as UTF-16 does.
constexpr std::array kSignatures{
    Signature{"\0\0\xFE\xFF"sv, "UTF-32BE", true}, Signature{"\xFF\xFE\0\0"sv, "UTF-32LE", true},
    Signature{"\0\0\0<"sv, "UTF-32BE", false},     Signature{"<\0\0\0"sv, "UTF-32LE", false},
    Signature{"\xEF\xBB\xBF"sv, "UTF-8", true},    Signature{"\xFE\xFF"sv, "UTF-16BE", true},
    Signature{"\xFF\xFE"sv, "UTF-16LE", true},     Signature{"\0<"sv, "UTF-16BE", false},
    Signature{"<\0"sv, "UTF-16LE", false}};

struct Declared {
  std::string name;
  std::size_t offset = 0;
};

/// The encoding that the XML declaration names, if it has one.
std::optional<Declared> DeclaredEncoding(std::string_view text) {
  if (!text.starts_with("<?xml")) return {};
  const auto head = text.substr(0, text.find("?>"));
  const auto name = head.find("encoding");
  if (name == std::string_view::npos) return {};
  const auto equals = head.find_first_not_of(kBlanks, name + "encoding"sv.size());
  if (equals == std::string_view::npos || head[equals] != '=') return {};
  const auto quote = head.find_first_not_of(kBlanks, equals + 1);
  if (quote == std::string_view::npos || (head[quote] != '"' && head[quote] != '\'')) return {};
  const auto end = head.find(head[quote], quote + 1);
  if (end == std::string_view::npos) return {};
  return Declared{std::string(head.substr(quote + 1, end - quote - 1)), quote + 1};
}

bool IsOneOf(std::string_view name, std::initializer_list<std::string_view> names) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

/// Whether it has one byte for each character, and ASCII as ASCII: of the others none is declared in
/// practice.
bool IsOfSingleBytes(const std::string& name) {
  const auto hasNumber = [&](std::string_view begin, int lowest, int highest) {
    if (!name.starts_with(begin)) return false;
    const auto number = WholeNumber(std::string_view(name).substr(begin.size()));
    return number && *number >= lowest && *number <= highest;
  };
  return name == "latin1" || hasNumber("iso-8859-", 1, 16) || hasNumber("windows-", 1250, 1258) ||
         hasNumber("cp", 1250, 1258);
}

class Converter {
 public:
  explicit Converter(const std::string& from) : handle_(iconv_open("UTF-8", from.c_str())) {}
  Converter(const Converter&) = delete;
  Converter& operator=(const Converter&) = delete;
  ~Converter() {
    if (Known()) iconv_close(handle_);
  }

  bool Known() const { return handle_ != reinterpret_cast<iconv_t>(-1); }

  /// Appends the converted bytes; false at the first invalid ones.
  bool Append(std::string& bytes, std::size_t from, std::string& text) const {
    char* rest = bytes.data() + from;
    std::size_t left = bytes.size() - from;
    std::array<char, 64 * 1024> block{};
    while (left > 0) {
      char* end = block.data();
      std::size_t room = block.size();
      const bool converted = iconv(handle_, &rest, &left, &end, &room) != static_cast<std::size_t>(-1);
      const int error = errno;
      text.append(block.data(), block.size() - room);
      if (!converted && error != E2BIG) return false;
    }
    return true;
  }

 private:
  iconv_t handle_;
};

Fault NotUtf8(std::string_view text) {
  const auto bad = InvalidUtf8(text);
  if (bad == std::string_view::npos || text[bad] == '\0') return {};  // a NUL has a message of its own
  return {bad,
          Tr("there are bytes that are not UTF-8 text; name the file's encoding in its first line, as in "
             "<?xml version=\"1.0\" encoding=\"windows-1252\"?>, or convert it to UTF-8")};
}

Decoded AsUtf8(std::string text) {
  auto fault = NotUtf8(text);
  return {std::move(text), {}, std::move(fault)};
}

Decoded Converted(std::string bytes, std::size_t from, const std::string& encoding) {
  Decoded decoded{{}, encoding, {}};
  const Converter converter(encoding);
  if (!converter.Known())
    decoded.fault = {
        0, Tr("this system cannot convert the encoding \"%%1\"; save the file as UTF-8", {encoding})};
  else if (!converter.Append(bytes, from, decoded.text))
    decoded.fault = {
        decoded.text.size(),
        Tr("there are bytes that are not text in the encoding \"%%1\"; save the file as UTF-8", {encoding})};
  return decoded;
}

}  // namespace

Decoded Decode(std::string bytes) {
  for (const auto& signature : kSignatures) {
    if (!std::string_view(bytes).starts_with(signature.begin)) continue;
    const auto text = signature.isMark ? signature.begin.size() : 0;
    if (signature.encoding == "UTF-8") return AsUtf8(bytes.substr(text));
    return Converted(std::move(bytes), text, std::string(signature.encoding));
  }
  const auto declared = DeclaredEncoding(bytes);
  if (!declared) return AsUtf8(std::move(bytes));
  const auto name = LowerAscii(declared->name);
  if (IsOneOf(name, {"utf-8", "utf8", "us-ascii", "ascii"})) return AsUtf8(std::move(bytes));
  if (IsOfSingleBytes(name)) return Converted(std::move(bytes), 0, declared->name);
  return {
      std::move(bytes),
      declared->name,
      {declared->offset, Tr("the file is declared as \"%%1\", and cannot be read as that; save it as UTF-8",
                            {declared->name})}};
}

}  // namespace host::xml

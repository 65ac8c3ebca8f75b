#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace host::serial {

/// UTF-8 text as ISO 8859-1 bytes; empty if a letter is not in that set or the text is not UTF-8.
std::optional<std::string> Latin1FromUtf8(std::string_view text);

/// ISO 8859-1 bytes as UTF-8 text. Every byte is a letter.
std::string Utf8FromLatin1(std::string_view bytes);

/// The bytes as UTF-8 text with control bytes as "\x0D" and a backslash as "\\".
std::string VisibleLatin1(std::string_view bytes);

}  // namespace host::serial

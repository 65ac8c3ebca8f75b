#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace sim {

/// UTF-8 to ISO 8859-1, the character set of the wire. Empty when the text is not well-formed UTF-8 or holds
/// a character above U+00FF.
std::optional<std::string> Utf8ToLatin1(std::string_view text);

/// ISO 8859-1 to UTF-8. Every byte has a meaning, so this cannot fail.
std::string Latin1ToUtf8(std::string_view bytes);

/// Bytes of the wire as readable UTF-8: control bytes and the line end are shown as \xNN, a backslash is
/// doubled.
std::string ShowBytes(std::string_view bytes);

/// True when the text can be one parameter of a message: ISO 8859-1 without control characters.
bool IsSendable(std::string_view utf8);

/// The text without blanks and tabs at either end.
std::string_view Trim(std::string_view text);

/// Cuts the first word off `text`, with the blanks around it.
std::string_view TakeWord(std::string_view& text);

/// The text in single quotation marks, for messages.
std::string Quoted(std::string_view text);

/// A whole decimal number without sign in 0...`highest`, nothing before or after it; empty otherwise.
std::optional<int> ParseNumber(std::string_view text, int highest);

}  // namespace sim

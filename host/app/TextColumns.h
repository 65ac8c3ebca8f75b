#pragma once

#include <cstddef>
#include <string>

namespace bench {

/// Letters of a UTF-8 text.
std::size_t LengthOf(const std::string& text);
/// The text, filled up with blanks on the right to the width and one more.
std::string Padded(const std::string& text, std::size_t width);
/// The text, filled up with blanks on the left to the width.
std::string LeftPadded(const std::string& text, std::size_t width);
/// A number as short as it can be told, such as "123" or "0.25"; no locale has a say.
std::string ShortNumber(double number);

}  // namespace bench

#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace bench {

/// The text, filled up with blanks on the right to the width and one more; widths are cells of a terminal.
std::string Padded(const std::string& text, std::size_t width);
/// The text, filled up with blanks on the left to the width.
std::string LeftPadded(const std::string& text, std::size_t width);
/// The texts, one after the other.
std::string Joined(const std::vector<std::string>& texts, const char* between);
/// A number as short as it can be told, such as "123" or "0.25"; no locale has a say.
std::string ShortNumber(double number);

}  // namespace bench

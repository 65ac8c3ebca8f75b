#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace host {

/// The text, padded on the right to the width and one more blank; widths are cells of a terminal.
std::string Padded(const std::string& text, std::size_t width);
/// The text, padded on the left to the width.
std::string LeftPadded(const std::string& text, std::size_t width);
/// The cells in columns, with two blanks between. A column is as wide as its widest cell; a cell wider than
/// `widest` only moves the rest of its own line. Trailing blanks are removed.
/// @param right the columns that are aligned to the right
std::string Columned(const std::vector<std::vector<std::string>>& lines,
                     const std::vector<std::size_t>& right = {}, std::size_t widest = 40);
/// The texts, one after the other.
std::string Joined(const std::vector<std::string>& texts, const char* between);
/// The shortest text of a number, such as "123" or "0.25"; independent of the locale.
std::string ShortNumber(double number);

}  // namespace host

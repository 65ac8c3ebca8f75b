#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace bench {

/// The text, filled up with blanks on the right to the width and one more; widths are cells of a terminal.
std::string Padded(const std::string& text, std::size_t width);
/// The text, filled up with blanks on the left to the width.
std::string LeftPadded(const std::string& text, std::size_t width);
/// Lines of cells that stand under one another, with two blanks between; a column is as wide as its widest
/// cell, but a cell above `widest` moves what follows it in its own line alone. Blanks at an end are left
/// out.
/// @param right the columns that are aligned to the right
std::string Columned(const std::vector<std::vector<std::string>>& lines,
                     const std::vector<std::size_t>& right = {}, std::size_t widest = 40);
/// The texts, one after the other.
std::string Joined(const std::vector<std::string>& texts, const char* between);
/// A number as short as it can be told, such as "123" or "0.25"; no locale has a say.
std::string ShortNumber(double number);

}  // namespace bench

#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace host {

/// How many cells of a terminal the UTF-8 text takes: letters of Chinese, Japanese and Korean take two,
/// combining marks none (Unicode Standard Annex 11, "W" and "F"). A malformed byte counts as one.
std::size_t CellsOf(std::string_view text);
std::size_t CellsOf(char32_t letter);

/// The text as far as it fits into so many cells; no letter is cut in two.
std::string CutToCells(const std::string& text, std::size_t cells);

}  // namespace host

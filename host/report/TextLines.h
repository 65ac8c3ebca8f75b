#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Types.h"

/// Lines of plain text that line up in columns of letters of one width.
namespace host::report::text {

/// The text in lines of at most `width` columns: broken at its own line ends, at blanks, and inside words
/// that are longer than a line. At least one line.
std::vector<std::string> Wrapped(std::string_view text, std::size_t width);

/// The line, filled up with blanks to the width.
std::string Filled(const std::string& line, std::size_t width, orvik::platform::Alignment alignment);

/// Lines joined, each behind the indent.
std::string Indented(const std::vector<std::string>& lines, std::size_t indent);

}  // namespace host::report::text

#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace host {

/// Plain text is what a document holds: valid UTF-8 without control characters (line ends and tabs among
/// them) and without the two code points that XML excludes.

/// The first byte that is not part of plain text; `npos` when there is none.
std::size_t FindNotPlain(std::string_view text);

/// The text without what is not plain.
std::string PlainTextOf(std::string_view text);

}  // namespace host

#pragma once

#include <string>
#include <string_view>

namespace bench::report {

enum class LineEnds { kKept, kShown };

/// The text as it can be shown anywhere: bytes that are no UTF-8 become U+FFFD, and control characters and
/// others that nobody sees but that turn the direction of writing or hide things become their numbers, such
/// as "[U+202E]" (few fonts have pictures of them). What the tester or the operator typed is shown, never
/// obeyed.
std::string VisibleText(std::string_view text, LineEnds lineEnds = LineEnds::kShown);

/// The code points of a UTF-8 text; bytes that are no UTF-8 count as U+FFFD.
std::u32string CodePoints(std::string_view text);
/// Appends the code point in UTF-8.
void AppendUtf8(std::string& text, char32_t letter);

}  // namespace bench::report

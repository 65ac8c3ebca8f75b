#pragma once

#include <string>
#include <string_view>

namespace host {

enum class LineEnds { kKept, kShown };

/// Makes a text from the tester or the operator safe to show anywhere: invalid UTF-8 becomes U+FFFD; control
/// characters and invisible ones that change the direction of writing or hide text become their numbers, such
/// as
/// "[U+202E]", since few fonts have pictures of them.
std::string VisibleText(std::string_view text, LineEnds lineEnds = LineEnds::kShown);

/// The code points of a UTF-8 text; invalid bytes count as U+FFFD.
std::u32string CodePoints(std::string_view text);
/// Appends the code point in UTF-8.
void AppendUtf8(std::string& text, char32_t letter);

}  // namespace host

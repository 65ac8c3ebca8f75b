#pragma once

#include <string>
#include <string_view>

#include "host/report/Report.h"

/// Pieces of HTML.
namespace host::report::html {

/// The text as the content of an element or of an attribute in double quotes.
std::string Escaped(std::string_view text);

/// The same with its line ends, in an element that isolates its direction of writing from the text around it.
std::string Isolated(std::string_view text);

/// The CSS class for the colour of a standing: "passed", "failed", "open", "na".
const char* ClassOf(report::Standing standing);

/// The sign of a standing, one character.
const char* PlainSignOf(report::Standing standing);
/// The sign as an element that screen readers skip.
std::string SignOf(report::Standing standing);

/// A picture of the value between its bounds.
std::string BarOf(const report::Judgement& judgement);

/// The style of the whole page.
extern const char* const kStyle;

}  // namespace host::report::html

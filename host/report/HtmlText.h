#pragma once

#include <string>
#include <string_view>

#include "host/report/Report.h"

/// Pieces of HTML.
namespace bench::html {

/// The text as the content of an element or of an attribute in double quotes.
std::string Escaped(std::string_view text);

/// The same, apart from what stands around it whatever its direction of writing, with its line ends.
std::string Isolated(std::string_view text);

/// The CSS class of a standing, which is its colour: "passed", "failed", "open", "na".
const char* ClassOf(report::Standing standing);

/// The sign of a standing, one character.
const char* PlainSignOf(report::Standing standing);
/// The sign before a word, each standing its own; hidden from screen readers.
std::string SignOf(report::Standing standing);

/// A picture of the value between its bounds.
std::string BarOf(const report::Judgement& judgement);

/// The style of the whole page.
extern const char* const kStyle;

}  // namespace bench::html

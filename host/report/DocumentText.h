#pragma once

#include <string>
#include <vector>

#include "host/judge/Verdict.h"

namespace host::report {

/// A value with its unit as people read it, such as "123 mOhm"; "OL" for an overloaded reading, "-" without
/// one.
std::string ReadingText(const judge::JudgedElement& element);

/// Why the element counts as it does, a sentence each, in the reader's language; none for one that passed.
std::vector<std::string> ReasonTexts(const judge::JudgedElement& element);

}  // namespace host::report

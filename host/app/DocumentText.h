#pragma once

#include <string>
#include <vector>

#include "host/app/DocumentView.h"

namespace bench {

/// A value with its unit as people read it, such as "123 mOhm"; "OL" for an overloaded reading, "-" without
/// one.
std::string ReadingText(const judge::JudgedElement& element);

/// Why the element counts as it does, a sentence each, in the reader's language; none for one that passed.
std::vector<std::string> ReasonTexts(const judge::JudgedElement& element);

/// The element in one line: identifier, verdict, reading, name.
std::string LineOf(const judge::JudgedElement& element, bool coloured = false);

/// What `run` and `show` print of a document.
std::string TextOf(const DocumentView& document, bool coloured = false);

}  // namespace bench

#pragma once

#include <string>

#include "host/app/DocumentView.h"

namespace bench {

/// A value with its unit as people read it, such as "123 mOhm"; "OL" for an overloaded reading, "-" without
/// one.
std::string ReadingText(const ElementSummary& element);

/// The element in one line: identifier, verdict, reading, name.
std::string LineOf(const ElementSummary& element, bool coloured = false);

/// What `run` and `show` print of a document.
std::string TextOf(const DocumentSummary& document, bool coloured = false);

}  // namespace bench

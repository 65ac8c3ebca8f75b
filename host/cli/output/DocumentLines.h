#pragma once

#include <string>

#include "host/report/DocumentView.h"

namespace host::cli {

/// The element in one line: identifier, verdict, reading, name.
std::string LineOf(const judge::JudgedElement& element, bool coloured = false);

/// What `run` and `show` print of a document.
std::string TextOf(const report::DocumentView& document, bool coloured = false);

}  // namespace host::cli

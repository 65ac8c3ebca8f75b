#pragma once

#include <optional>
#include <string>

#include "host/report/DocumentView.h"
#include "tests/system/history/Bench.h"

namespace history {

/// Whether JSON, text and report say the same of a document as its verdict: what differs, or none.
std::optional<std::string> OutputsDiffer(const host::report::DocumentView& view,
                                         const host::document::Document& document,
                                         host::document::Host& host);

/// Whether `show`, `report`, `check` and `archive add` say the same as the verdict, on the command line.
/// @param tampered whether another program has changed the file: `check` may find that, and it passes all the
/// same
std::optional<std::string> CommandsDiffer(const host::report::DocumentView& view, Bench& program,
                                          bool tampered);

}  // namespace history

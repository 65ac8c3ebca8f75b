#pragma once

#include <optional>
#include <string>

#include "host/report/DocumentView.h"
#include "tests/system/history/Bench.h"

namespace history {

/// Whether JSON, text and report say the same of a document as its verdict: what differs, or none.
std::optional<std::string> OutputsDiffer(const bench::DocumentView& view, const bench::Document& document,
                                         bench::Host& host);

/// Whether `show`, `report`, `check` and `archive add` say the same as the verdict, on the command line.
/// @param tampered whether another program has changed the file: `check` may find that, and it passes all the
/// same
std::optional<std::string> CommandsDiffer(const bench::DocumentView& view, Bench& program, bool tampered);

}  // namespace history

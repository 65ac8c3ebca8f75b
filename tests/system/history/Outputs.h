#pragma once

#include <optional>
#include <string>

#include "host/report/DocumentView.h"
#include "tests/system/history/Bench.h"

namespace history {

/// Compares JSON, text and report of a document with its verdict; returns the difference, or none.
std::optional<std::string> OutputsDiffer(const host::report::DocumentView& view,
                                         const host::document::Document& document,
                                         host::document::Host& host);

/// Compares `show`, `report`, `check` and `archive add` on the command line with the verdict.
/// @param tampered whether another program has changed the file: `check` may report that, even if the
/// document passes
std::optional<std::string> CommandsDiffer(const host::report::DocumentView& view, Bench& program,
                                          bool tampered);

}  // namespace history

#pragma once

#include <optional>
#include <string>

#include "host/app/DocumentView.h"

namespace history {

/// Whether JSON, text and report say the same of a document as its verdict: what differs, or none.
std::optional<std::string> OutputsDiffer(const bench::DocumentView& view, const bench::Document& document,
                                         bench::Host& host);

}  // namespace history

#pragma once

#include <nlohmann/json.hpp>

#include "host/archive/ArchivedDocument.h"
#include "host/report/DocumentView.h"

namespace host::cli {

nlohmann::ordered_json JsonOf(const archive::ArchiveEntry& entry);

/// As `show --json` printed it when the document was added, and "archive" for what the archive adds.
nlohmann::ordered_json JsonOf(const archive::ArchivedDocument& document);

nlohmann::ordered_json JsonOf(const archive::Trend& trend);

/// What `show` prints of the document.
report::DocumentView ViewOf(const archive::ArchivedDocument& document);

}  // namespace host::cli

#pragma once

#include <nlohmann/json.hpp>

#include "host/archive/ArchivedDocument.h"
#include "host/report/DocumentView.h"

namespace bench {

nlohmann::ordered_json JsonOf(const ArchiveEntry& entry);

/// As `show --json` printed it when the document was added, and "archive" for what the archive adds.
nlohmann::ordered_json JsonOf(const ArchivedDocument& document);

nlohmann::ordered_json JsonOf(const Trend& trend);

/// What `show` prints of the document.
DocumentView ViewOf(const ArchivedDocument& document);

}  // namespace bench

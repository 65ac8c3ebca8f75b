#pragma once

#include <string>

#include "host/archive/ArchivedDocument.h"

namespace bench {

class Workbench;

/// Reads a document with all that the archive keeps of it; the archive itself gives identifier, revision and
/// hash. `HostError` when it cannot be read.
ArchivedDocument EntryOf(const std::string& file, Workbench& workbench);

/// Why the document is not finished, and what to do; empty when everything has a result.
std::string UnfinishedReason(const ArchivedDocument& document);

}  // namespace bench

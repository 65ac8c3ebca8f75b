#pragma once

#include <string>

#include "host/archive/Archive.h"
#include "host/archive/ArchivedDocument.h"

namespace bench {

class Workbench;

/// Reads a document with all that the archive keeps of it; the archive itself gives identifier, revision and
/// hash. `HostError` when it cannot be read.
ArchivedDocument EntryOf(const std::string& file, Workbench& workbench);

/// Why the document is not finished, and what to do; empty when everything has a result.
std::string UnfinishedReason(const ArchivedDocument& document);

/// What became of a document that was added, for people to read.
std::string ReceiptText(const std::string& file, const Archive::Receipt& receipt);

}  // namespace bench

#pragma once

#include <string>

#include "host/archive/Archive.h"
#include "host/archive/ArchivedDocument.h"

namespace host::bench {

class Workbench;

/// Reads a document with all that the archive keeps of it; the archive itself gives identifier, revision and
/// hash. `HostError` when it cannot be read.
archive::ArchivedDocument ArchiveEntryOf(const std::string& file, Workbench& workbench);

/// Why the document is not finished; empty when every element has a result of any verdict. Doubtful and not
/// judged ones are results too, though they never count as passed.
std::string UnfinishedReason(const archive::ArchivedDocument& document);

/// "(simulated: nothing was measured)" for a document of simulated runs; else empty.
std::string SimulatedMark(const archive::ArchiveEntry& entry);

/// One line on a document that was added.
std::string ReceiptText(const archive::ArchivedDocument& document, const std::string& file,
                        const archive::Archive::Receipt& receipt);

}  // namespace host::bench

#pragma once

#include <cstdint>
#include <string>

#include "host/archive/Archive.h"
#include "host/bench/Workbench.h"

namespace host::bench {

/// Opens the archive that is asked for: `location` (--archive) when it is not empty, else ORVIK_ARCHIVE, else
/// archive.sqlite in the state folder. Only `add` creates a named file; the one in the state folder is
/// always created.
archive::Archive OpenArchiveToAsk(const std::string& location, const GlobalOptions& options);
archive::Archive OpenArchiveToAdd(const std::string& location, const GlobalOptions& options);

/// The document with that identifier; throws `InputError` if it is missing.
archive::ArchivedDocument Fetched(archive::Archive& archive, std::int64_t id);

}  // namespace host::bench

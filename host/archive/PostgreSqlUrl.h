#pragma once

#include <string>

namespace bench {

/// Whether the archive named is on a server: "postgresql://..." or "postgres://...".
bool IsPostgreSqlUrl(const std::string& location);

/// The URL of a database for people to read, put together from its user, host, port and name; passwords do
/// not come into it, wherever they stand. `ArchiveError` for a URL that is not understood, which is not told
/// either.
std::string ShownUrl(const std::string& url);

}  // namespace bench

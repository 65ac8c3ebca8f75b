#pragma once

#include <string>

namespace host::archive {

/// Whether the location is a server: "postgresql://..." or "postgres://...".
bool IsPostgreSqlUrl(const std::string& location);

/// The URL of a database for messages: user, host, port and name, never a password. `ArchiveError`, without
/// the URL, for one that cannot be parsed.
std::string ShownUrl(const std::string& url);

}  // namespace host::archive

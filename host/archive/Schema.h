#pragma once

#include <cstdint>

#include "host/archive/Database.h"

namespace host::archive {

/// How an archive is laid out, the same in SQLite and PostgreSQL.
namespace schema {

/// The version that this program reads and writes.
inline constexpr std::int64_t kVersion = 3;

/// Creates the tables of a new archive, or upgrades an older one, in one transaction: other
/// programs see it as it was until then. `ArchiveError` for one that is newer, and for a database that holds
/// something else; both are left as they are.
void BringUp(Database& database);

/// Brings up to an older version only: for tests of those archives.
void BringUpTo(Database& database, std::int64_t version);

}  // namespace schema

}  // namespace host::archive

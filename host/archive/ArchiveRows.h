#pragma once

#include <cstdint>
#include <string>

#include "host/archive/ArchivedDocument.h"
#include "host/archive/Database.h"

namespace host::archive::rows {

/// Documents in the tables of `Schema.h`.

/// Writes all rows of a document with its identifier, revision and hash.
void Insert(Database& database, const ArchivedDocument& document, const std::string& key);

/// The columns of `EntryOf`, of the table orvik_documents as "d".
extern const char* const kEntryColumns;
ArchiveEntry EntryOf(RowReader& row);

/// The columns of `ElementOf`, of the tables orvik_elements as "e" and orvik_measurements as "m".
extern const char* const kElementColumns;
ArchivedElement ElementOf(RowReader& row);

/// Adds what an element has in rows of their own: limits and reasons.
void ReadDetails(Database& database, std::int64_t document, std::int64_t position, ArchivedElement& element);

}  // namespace host::archive::rows

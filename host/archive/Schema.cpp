#include "host/archive/Schema.h"

#include <array>
#include <span>

#include "host/archive/ArchiveError.h"
#include "host/base/Tr.h"

namespace host::archive::schema {

namespace {

using Kind = ArchiveError::Kind;

// Types that both databases know by these names, or (BYTEA) take from what is bound. Whole numbers are BIGINT
// everywhere, so that both answer the same type. Dates are texts in UTC, such as 2026-11-21T12:30:00Z.

constexpr const char* kFirst[] = {
    "CREATE TABLE orvik_archive_version (version BIGINT NOT NULL)",
    "INSERT INTO orvik_archive_version (version) VALUES (0)",
    // What changed under the same key (bench, path, asset, serial number) is the next revision.
    "CREATE TABLE orvik_documents ("
    " id BIGINT NOT NULL PRIMARY KEY, document_key TEXT NOT NULL, revision BIGINT NOT NULL,"
    " hash TEXT NOT NULL, bench TEXT NOT NULL, path TEXT NOT NULL, asset TEXT NOT NULL, serial TEXT NOT NULL,"
    " maker TEXT NOT NULL, model TEXT NOT NULL, outcome TEXT NOT NULL, finished BIGINT NOT NULL,"
    " run_date TEXT NOT NULL, added TEXT NOT NULL, instrument_type TEXT, instrument_serial TEXT,"
    " instrument_firmware TEXT, instrument_calibration BIGINT, UNIQUE (document_key, revision))",
    "CREATE TABLE orvik_contents ("
    " document_id BIGINT NOT NULL PRIMARY KEY REFERENCES orvik_documents (id), contents BYTEA NOT NULL)",
    "CREATE TABLE orvik_elements ("
    " document_id BIGINT NOT NULL REFERENCES orvik_documents (id), position BIGINT NOT NULL,"
    " element_id BIGINT NOT NULL, parent_id BIGINT NOT NULL, test_id BIGINT NOT NULL, sequence BIGINT NOT "
    "NULL,"
    " name TEXT NOT NULL, status BIGINT NOT NULL, mti_id BIGINT NOT NULL, service_code TEXT NOT NULL,"
    " service_value TEXT NOT NULL, PRIMARY KEY (document_id, position))",
    "CREATE TABLE orvik_measurements ("
    " document_id BIGINT NOT NULL, position BIGINT NOT NULL, value DOUBLE PRECISION, unit TEXT NOT NULL,"
    " flags TEXT NOT NULL, status BIGINT NOT NULL, PRIMARY KEY (document_id, position),"
    " FOREIGN KEY (document_id, position) REFERENCES orvik_elements (document_id, position))",
    "CREATE TABLE orvik_limits ("
    " document_id BIGINT NOT NULL, position BIGINT NOT NULL, number BIGINT NOT NULL, standard TEXT NOT NULL,"
    " description TEXT NOT NULL, unit TEXT NOT NULL, low DOUBLE PRECISION, high DOUBLE PRECISION,"
    " PRIMARY KEY (document_id, position, number),"
    " FOREIGN KEY (document_id, position) REFERENCES orvik_elements (document_id, position))",
    // kind is "doubt" or "failed" (the name of a standard that the measurement fails).
    "CREATE TABLE orvik_notes ("
    " document_id BIGINT NOT NULL, position BIGINT NOT NULL, kind TEXT NOT NULL, number BIGINT NOT NULL,"
    " text TEXT NOT NULL, PRIMARY KEY (document_id, position, kind, number),"
    " FOREIGN KEY (document_id, position) REFERENCES orvik_elements (document_id, position))",
};

constexpr const char* kSecond[] = {
    "ALTER TABLE orvik_documents ADD COLUMN operator TEXT NOT NULL DEFAULT ''",
    "ALTER TABLE orvik_elements ADD COLUMN run_date TEXT NOT NULL DEFAULT ''",
    "ALTER TABLE orvik_elements ADD COLUMN operator TEXT NOT NULL DEFAULT ''",
    "ALTER TABLE orvik_elements ADD COLUMN recorded_only BIGINT NOT NULL DEFAULT 0",
    "UPDATE orvik_elements SET recorded_only = 1 WHERE sequence = 0 AND status = 1"
    " AND EXISTS (SELECT 1 FROM orvik_measurements m WHERE m.document_id = orvik_elements.document_id"
    " AND m.position = orvik_elements.position AND m.value IS NOT NULL)"
    " AND NOT EXISTS (SELECT 1 FROM orvik_limits l WHERE l.document_id = orvik_elements.document_id"
    " AND l.position = orvik_elements.position)",
    "CREATE INDEX orvik_documents_by_hash ON orvik_documents (hash)",
    // An index row of PostgreSQL is short, an asset's name need not be.
    "CREATE INDEX orvik_documents_by_asset ON orvik_documents (substr(asset, 1, 100))",
    "CREATE INDEX orvik_elements_by_test ON orvik_elements (test_id, document_id)",
};

// Results are kept as they were judged when the document was added. Those of earlier versions were not
// recorded by a run: they are kept, but do not count, and neither do their notes.
constexpr const char* kThird[] = {
    "ALTER TABLE orvik_documents ADD COLUMN comment TEXT NOT NULL DEFAULT ''",
    "ALTER TABLE orvik_documents ADD COLUMN simulated BIGINT NOT NULL DEFAULT 0",
    "ALTER TABLE orvik_documents ADD COLUMN run BIGINT NOT NULL DEFAULT 0",
    "ALTER TABLE orvik_documents ADD COLUMN instrument_calibrated TEXT",
    "UPDATE orvik_documents SET outcome = 'incomplete', finished = 0",
    "ALTER TABLE orvik_elements RENAME COLUMN recorded_only TO record_only",
    "ALTER TABLE orvik_elements ADD COLUMN verdict TEXT NOT NULL DEFAULT 'not tested'",
    "ALTER TABLE orvik_elements ADD COLUMN judged BIGINT NOT NULL DEFAULT 0",
    "ALTER TABLE orvik_elements ADD COLUMN run BIGINT NOT NULL DEFAULT 0",
    // As the record has it; run_date is the same moment in UTC.
    "ALTER TABLE orvik_elements ADD COLUMN run_at TEXT NOT NULL DEFAULT ''",
    "ALTER TABLE orvik_elements ADD COLUMN value DOUBLE PRECISION",
    "ALTER TABLE orvik_elements ADD COLUMN unit TEXT NOT NULL DEFAULT ''",
    "UPDATE orvik_elements SET record_only = 0, run_date = '', operator = ''",
    "ALTER TABLE orvik_limits ADD COLUMN selected BIGINT NOT NULL DEFAULT 1",
    "ALTER TABLE orvik_limits ADD COLUMN verdict TEXT NOT NULL DEFAULT 'not applied'",
    "ALTER TABLE orvik_limits ADD COLUMN value DOUBLE PRECISION",
    // Argument 0 is the reason's code.
    "CREATE TABLE orvik_reasons ("
    " document_id BIGINT NOT NULL, position BIGINT NOT NULL, number BIGINT NOT NULL, argument BIGINT NOT "
    "NULL,"
    " text TEXT NOT NULL, PRIMARY KEY (document_id, position, number, argument),"
    " FOREIGN KEY (document_id, position) REFERENCES orvik_elements (document_id, position))",
    "INSERT INTO orvik_reasons (document_id, position, number, argument, text)"
    " SELECT document_id, position, 1, 0, CASE WHEN status = 0 THEN 'never-run' ELSE 'not-recorded' END"
    " FROM orvik_elements",
    "DROP TABLE orvik_notes",
};

/// The statements that upgrade an archive by one version each.
constexpr std::array<std::span<const char* const>, kVersion> kSteps = {kFirst, kSecond, kThird};

/// 0 without an archive.
std::int64_t VersionOf(Database& database) {
  if (!database.HasTable("orvik_archive_version")) {
    if (database.TakesNewArchive()) return 0;
    throw ArchiveError(Kind::kBadInput, Tr("%%1 is not an archive (name another file)", {database.Name()}));
  }
  const auto rows = database.Run("SELECT version FROM orvik_archive_version", {});
  const auto* version = rows.size() == 1 ? std::get_if<std::int64_t>(&rows[0].at(0)) : nullptr;
  if (!version || *version < 1)
    throw ArchiveError(Kind::kBadInput, Tr("the archive %%1 has no version and is damaged (restore a copy)",
                                           {database.Name()}));
  if (*version > kVersion)
    throw ArchiveError(Kind::kBadInput,
                       Tr("the archive %%1 was upgraded by a newer version of this program (archive version "
                          "%%2, this program reads %%3); use that version",
                          {database.Name(), std::to_string(*version), std::to_string(kVersion)}));
  return *version;
}

}  // namespace

void BringUpTo(Database& database, std::int64_t version) {
  if (VersionOf(database) >= version) return;
  Transaction transaction(database, Database::Use::kWrite);
  // Another program may have done it meanwhile.
  for (auto done = VersionOf(database); done < version; ++done) {
    for (const auto* statement : kSteps.at(static_cast<std::size_t>(done))) database.Run(statement, {});
    database.Run("UPDATE orvik_archive_version SET version = $1", {done + 1});
  }
  transaction.Commit();
}

void BringUp(Database& database) { BringUpTo(database, kVersion); }

}  // namespace host::archive::schema

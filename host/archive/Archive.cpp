#include "host/archive/Archive.h"

#include <cmath>
#include <utility>

#include "host/archive/ArchiveRows.h"
#include "host/archive/Schema.h"
#include "host/base/Sha256.h"

namespace host::archive {

namespace {

/// A digest, since indexed texts of PostgreSQL must be short.
std::string KeyOf(const ArchiveEntry& entry) {
  std::string key;
  for (const auto* part : {&entry.bench, &entry.path, &entry.asset, &entry.serial}) key += *part + '\0';
  return Sha256(key);
}

std::optional<Archive::Receipt> SameContents(Database& database, const std::string& hash) {
  const auto rows =
      database.Run("SELECT id, revision FROM orvik_documents WHERE hash = $1 ORDER BY id LIMIT 1", {hash});
  if (rows.empty()) return {};
  RowReader row(rows[0]);
  const auto id = row.Whole();
  return Archive::Receipt{Archive::Added::kUnchanged, id, row.Whole()};
}

std::int64_t NextId(Database& database) {
  return RowReader(database.Run("SELECT COALESCE(MAX(id), 0) + 1 FROM orvik_documents", {}).at(0)).Whole();
}

}  // namespace

Archive::Archive(std::unique_ptr<Database> database) : database_(std::move(database)) {
  schema::BringUp(*database_);
}

Archive::Receipt Archive::Add(const ArchivedDocument& document) {
  const auto key = KeyOf(document.entry);
  const auto hash = Sha256(document.contents);
  Transaction transaction(*database_, Database::Use::kWrite);
  const auto last = database_->Run(
      "SELECT id, revision, hash FROM orvik_documents WHERE document_key = $1 ORDER BY revision DESC LIMIT 1",
      {key});
  Receipt receipt{Added::kNew, NextId(*database_), 1};
  if (last.empty()) {
    if (const auto same = SameContents(*database_, hash)) return *same;
  } else {
    RowReader row(last[0]);
    const auto id = row.Whole(), revision = row.Whole();
    if (row.Text() == hash) return {Added::kUnchanged, id, revision};
    receipt.added = Added::kRevision;
    receipt.revision = revision + 1;
  }
  auto kept = document;
  kept.entry.id = receipt.id;
  kept.entry.revision = receipt.revision;
  kept.entry.hash = hash;
  rows::Insert(*database_, kept, key);
  transaction.Commit();
  return receipt;
}

}  // namespace host::archive

#include "host/archive/SqliteDatabase.h"

#include <sqlite3.h>

#include "OrvikTypeLib/HostError.h"
#include "host/archive/ArchiveError.h"
#include "host/base/Files.h"
#include "host/base/Patience.h"
#include "host/base/Tr.h"

namespace host::archive {

namespace {

using Kind = ArchiveError::Kind;

struct Finalizer {
  void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using Statement = std::unique_ptr<sqlite3_stmt, Finalizer>;

/// Binds by reference: the value outlives the statement.
struct Binder {
  sqlite3_stmt* statement;
  int index;

  int operator()(std::monostate) const { return sqlite3_bind_null(statement, index); }
  int operator()(std::int64_t number) const { return sqlite3_bind_int64(statement, index, number); }
  int operator()(double number) const { return sqlite3_bind_double(statement, index, number); }
  int operator()(const std::string& text) const {
    return sqlite3_bind_text64(statement, index, text.data(), text.size(), SQLITE_STATIC, SQLITE_UTF8);
  }
  int operator()(const Bytes& bytes) const {
    return sqlite3_bind_blob64(statement, index, bytes.data.data(), bytes.data.size(), SQLITE_STATIC);
  }
};

Value ColumnOf(sqlite3_stmt* statement, int column) {
  const auto bytes = [&](const void* data) {
    return data ? std::string(static_cast<const char*>(data),
                              static_cast<std::size_t>(sqlite3_column_bytes(statement, column)))
                : std::string();
  };
  switch (sqlite3_column_type(statement, column)) {
    case SQLITE_INTEGER:
      return std::int64_t{sqlite3_column_int64(statement, column)};
    case SQLITE_FLOAT:
      return sqlite3_column_double(statement, column);
    case SQLITE_TEXT:
      return bytes(sqlite3_column_text(statement, column));
    case SQLITE_BLOB:
      return Bytes{bytes(sqlite3_column_blob(statement, column))};
    default:
      return {};
  }
}

Row RowOf(sqlite3_stmt* statement) {
  Row row;
  const int columns = sqlite3_column_count(statement);
  row.reserve(static_cast<std::size_t>(columns));
  for (int column = 0; column < columns; ++column) row.push_back(ColumnOf(statement, column));
  return row;
}

void CreateFolderOf(const std::filesystem::path& file) {
  const auto folder = file.parent_path();
  if (folder.empty()) return;
  try {
    CreateFolder(folder);
  } catch (const orvik::HostError& error) {
    throw ArchiveError(Kind::kUnreachable, error.Description());
  }
}

}  // namespace

void SqliteDatabase::Closer::operator()(sqlite3* database) const { sqlite3_close_v2(database); }

SqliteDatabase::SqliteDatabase(const std::filesystem::path& file, Missing missing) : name_(file.string()) {
  std::error_code error;
  const bool there = std::filesystem::exists(file, error);
  if (!there && !error && missing == Missing::kRefuse)
    throw ArchiveError(Kind::kBadInput,
                       Tr("there is no archive %%1; \"orvik-bench archive add\" creates it", {name_}));
  if (!there && !error) CreateFolderOf(file);
  sqlite3* opened = nullptr;
  const int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE;
  // An absolute name, so that neither "" nor ":memory:" nor "file:" means anything else than a file.
  const auto path = std::filesystem::absolute(file).string();
  const int code = sqlite3_open_v2(path.c_str(), &opened, flags, nullptr);
  database_.reset(opened);
  if (code != SQLITE_OK) Fail(code);
  sqlite3_busy_handler(opened, &SqliteDatabase::OnBusy, this);
  // The rollback journal, not the write-ahead log: the archive is one file, which can be copied while no
  // program writes, and may be on a network drive. "extra" flushes the journal's removal to disk too.
  Run("PRAGMA synchronous = EXTRA", {});
  Run("PRAGMA foreign_keys = ON", {});
}

std::vector<Row> SqliteDatabase::Run(const std::string& statement, const std::vector<Value>& values) {
  sqlite3_stmt* compiled = nullptr;
  Check(sqlite3_prepare_v2(database_.get(), statement.data(), static_cast<int>(statement.size()), &compiled,
                           nullptr));
  const Statement prepared(compiled);
  for (std::size_t i = 0; i < values.size(); ++i) {
    const auto name = "$" + std::to_string(i + 1);
    const int index = sqlite3_bind_parameter_index(compiled, name.c_str());
    Check(std::visit(Binder{compiled, index}, values[i]));
  }
  std::vector<Row> rows;
  int code = SQLITE_OK;
  while ((code = sqlite3_step(compiled)) == SQLITE_ROW) rows.push_back(RowOf(compiled));
  if (code != SQLITE_DONE) Fail(code);
  return rows;
}

void SqliteDatabase::Begin(Use use) { Run(use == Use::kWrite ? "BEGIN IMMEDIATE" : "BEGIN", {}); }

void SqliteDatabase::Commit() { Run("COMMIT", {}); }

void SqliteDatabase::Rollback() noexcept {
  // When this fails, closing the file, or opening it the next time, undoes what was begun.
  sqlite3_exec(database_.get(), "ROLLBACK", nullptr, nullptr, nullptr);
}

bool SqliteDatabase::HasTable(const std::string& name) {
  return !Run("SELECT name FROM sqlite_master WHERE type = 'table' AND name = $1", {name}).empty();
}

bool SqliteDatabase::TakesNewArchive() { return Run("SELECT name FROM sqlite_master LIMIT 1", {}).empty(); }

/// Whether to try again what another program has kept from being done, after so many attempts.
int SqliteDatabase::OnBusy(void* database, int attempts) {
  constexpr int kPauseMilliseconds = 10;
  if (attempts >= kPatienceMilliseconds / kPauseMilliseconds)
    return Patience::WaitsFor(static_cast<const SqliteDatabase*>(database)->BusyText()) ? 1 : 0;
  sqlite3_sleep(kPauseMilliseconds);
  return 1;
}

std::string SqliteDatabase::BusyText() const {
  return Tr("the archive %%1 is in use by another program (try again when that has ended)", {name_});
}

void SqliteDatabase::Check(int code) const {
  if (code != SQLITE_OK) Fail(code);
}

void SqliteDatabase::Fail(int code) const {
  const std::string reason = database_ ? sqlite3_errmsg(database_.get()) : sqlite3_errstr(code);
  switch (code & 0xFF) {
    case SQLITE_NOTADB:
    case SQLITE_CORRUPT:
      throw ArchiveError(Kind::kBadInput,
                         Tr("%%1 is not an archive, or is damaged: %%2 (it was not changed; restore a copy, "
                            "or move it away and add the documents again)",
                            {name_, reason}));
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      throw ArchiveError(Kind::kBusy, BusyText());
    case SQLITE_CANTOPEN:
    case SQLITE_READONLY:
    case SQLITE_PERM:
      throw ArchiveError(Kind::kUnreachable, Tr("the archive %%1 cannot be opened or written: %%2 (check the "
                                                "name, and your permissions on the file and its folder)",
                                                {name_, reason}));
    case SQLITE_FULL:
    case SQLITE_IOERR:
      throw ArchiveError(Kind::kUnreachable,
                         Tr("the archive %%1 cannot be read or written: %%2 (what was there before is kept; "
                            "check the disk)",
                            {name_, reason}));
    case SQLITE_ERROR:
    case SQLITE_CONSTRAINT:
    case SQLITE_MISMATCH:
      throw ArchiveError(Kind::kBadInput, Tr("the archive %%1 lacks tables or columns: %%2 (restore a copy, "
                                             "or name another file)",
                                             {name_, reason}));
    default:
      throw ArchiveError(Kind::kUnreachable, Tr("the archive %%1 cannot be used: %%2", {name_, reason}));
  }
}

}  // namespace host::archive

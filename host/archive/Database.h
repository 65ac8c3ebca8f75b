#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace host::archive {

/// Binary contents of a column.
struct Bytes {
  std::string data;
  bool operator==(const Bytes&) const = default;
};

/// A parameter or a result of a statement; texts are valid UTF-8 without NUL.
using Value = std::variant<std::monostate, std::int64_t, double, std::string, Bytes>;
using Row = std::vector<Value>;

/// A database with SQL that SQLite and PostgreSQL both understand. Values are bound, never written into a
/// statement. All errors are `ArchiveError`.
class Database {
 public:
  /// What a transaction is for. One that reads sees one state of the archive from its first statement to its
  /// end; of those that write there is only one at a time, in all programs.
  enum class Use { kRead, kWrite };

  Database() = default;
  Database(const Database&) = delete;
  Database& operator=(const Database&) = delete;
  virtual ~Database() = default;

  /// Runs one statement with the parameters "$1", "$2", ...; returns the resulting rows.
  virtual std::vector<Row> Run(const std::string& statement, const std::vector<Value>& values = {}) = 0;

  virtual void Begin(Use use) = 0;
  virtual void Commit() = 0;
  /// Rolls the transaction back; a database that cannot be reached any more does so by itself.
  virtual void Rollback() noexcept = 0;

  virtual bool HasTable(const std::string& name) = 0;
  /// Whether an archive may be created here: the database has no tables of other programs.
  virtual bool TakesNewArchive() = 0;

  /// The file, or the URL without its password: for messages.
  virtual const std::string& Name() const = 0;
};

/// A transaction that is rolled back unless it is committed.
class Transaction {
 public:
  Transaction(Database& database, Database::Use use) : database_(database) { database_.Begin(use); }
  Transaction(const Transaction&) = delete;
  Transaction& operator=(const Transaction&) = delete;
  ~Transaction() {
    if (open_) database_.Rollback();
  }

  void Commit() {
    database_.Commit();
    open_ = false;
  }

 private:
  Database& database_;
  bool open_ = true;
};

/// Reads the columns of a row in the order of the statement.
class RowReader {
 public:
  explicit RowReader(const Row& row) : row_(row) {}

  std::string Text() { return std::get<std::string>(Next()); }
  std::int64_t Whole() { return std::get<std::int64_t>(Next()); }
  std::int32_t Small() { return static_cast<std::int32_t>(Whole()); }
  bool Flag() { return Whole() != 0; }
  const Value& Next() { return row_.at(at_++); }

 private:
  const Row& row_;
  std::size_t at_ = 0;
};

}  // namespace host::archive

#include "host/archive/PostgreSqlDatabase.h"

#include <poll.h>

#include <cerrno>
#include <chrono>
#include <string_view>

#include "host/archive/ArchiveError.h"
#include "host/archive/PostgreSqlUrl.h"
#include "host/archive/PostgreSqlValues.h"
#include "host/archive/PqLibrary.h"
#include "host/base/Patience.h"
#include "host/base/Text.h"
#include "host/base/Tr.h"

namespace host::archive {

namespace {

using Kind = ArchiveError::Kind;

/// Any fixed number does: it is the lock that writers of an archive take in turn.
constexpr char kTakeTurn[] = "SELECT pg_advisory_xact_lock(7164837165)";

/// A server's message in one line of valid text.
std::string OneLineOf(const char* message) {
  std::string text = message ? ValidUtf8(message) : "";
  while (!text.empty() && (text.back() == '\n' || text.back() == ' ')) text.pop_back();
  std::string line;
  for (const char c : text) {
    if (c != '\n' && c != '\t')
      line += c;
    else if (!line.empty() && line.back() != ' ')
      line += ' ';
  }
  return line;
}

}  // namespace

/// The connection to the server. Every wait is bounded, so that a server that hangs does not hang the
/// program.
class PostgreSqlDatabase::Connection {
 public:
  Connection(const std::string& url, const std::string& name) : pq_(PqLibrary::Get()), name_(name) {
    // The URL overrides the parameters before "dbname", and not those after it.
    const char* const keywords[] = {
        "connect_timeout",           "keepalives_idle", "keepalives_interval", "keepalives_count",
        "fallback_application_name", "dbname",          "client_encoding",     nullptr};
    const char* const values[] = {"10", "10", "5", "4", "orvik-bench", url.c_str(), "UTF8", nullptr};
    connection_ = pq_.connectdbParams(keywords, values, 1);
    if (connection_ && pq_.status(connection_) == CONNECTION_OK) {
      pq_.setNoticeProcessor(
          connection_, [](void*, const char*) {}, nullptr);
      pq_.setnonblocking(connection_, 1);
      return;
    }
    const auto reason = OneLineOf(connection_ ? pq_.errorMessage(connection_) : "out of memory");
    const bool asked = connection_ && pq_.connectionNeedsPassword(connection_) != 0;
    const bool refused = connection_ && pq_.connectionUsedPassword(connection_) != 0;
    pq_.finish(connection_);
    FailConnecting(reason, asked, refused);
  }
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;
  ~Connection() { pq_.finish(connection_); }

  std::vector<Row> Run(const std::string& statement, const std::vector<Value>& values) {
    const PostgreSqlParameters parameters(values);
    if (pq_.sendQueryParams(connection_, statement.c_str(), parameters.Count(), parameters.Types(),
                            parameters.Texts(), parameters.Lengths(), parameters.Formats(), 0) == 0)
      FailLost();
    AwaitAnswer();
    std::vector<Row> rows;
    Result failure{nullptr, pq_.clear};
    // Reads every answer, or the next statement could not be sent.
    while (Result result{pq_.getResult(connection_), pq_.clear}) {
      const auto status = pq_.resultStatus(result.get());
      if (status == PGRES_TUPLES_OK)
        rows = RowsOf(*result);
      else if (status != PGRES_COMMAND_OK)
        failure = std::move(result);
      AwaitAnswer();
    }
    if (failure) Fail(*failure);
    return rows;
  }

 private:
  using Result = std::unique_ptr<PGresult, decltype(PqLibrary::clear)>;

  void AwaitAnswer() {
    using Clock = std::chrono::steady_clock;
    const auto end = Clock::now() + std::chrono::seconds(kPatienceSeconds);
    for (;;) {
      const int unsent = pq_.flush(connection_);
      if (unsent < 0) FailLost();
      if (unsent == 0 && pq_.isBusy(connection_) == 0) return;
      const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - Clock::now()).count();
      if (left <= 0) FailSilent();
      pollfd watched{pq_.socket(connection_), static_cast<short>(unsent ? POLLIN | POLLOUT : POLLIN), 0};
      if (poll(&watched, 1, static_cast<int>(left)) < 0 && errno != EINTR) FailLost();
      if ((watched.revents & ~POLLOUT) != 0 && pq_.consumeInput(connection_) == 0) FailLost();
    }
  }

  std::vector<Row> RowsOf(const PGresult& result) const {
    std::vector<Row> rows(static_cast<std::size_t>(pq_.ntuples(&result)));
    const int columns = pq_.nfields(&result);
    for (int row = 0; row < pq_.ntuples(&result); ++row) {
      for (int column = 0; column < columns; ++column) {
        auto& values = rows[static_cast<std::size_t>(row)];
        if (pq_.getisnull(&result, row, column) != 0) {
          values.emplace_back();
          continue;
        }
        const std::string_view text(pq_.getvalue(&result, row, column),
                                    static_cast<std::size_t>(pq_.getlength(&result, row, column)));
        values.push_back(PostgreSqlValue(text, pq_.ftype(&result, column)));
      }
    }
    return rows;
  }

  [[noreturn]] void FailConnecting(const std::string& reason, bool asked, bool refused) const {
    if (asked)
      throw ArchiveError(Kind::kUnreachable,
                         Tr("the archive %%1 cannot be reached: %%2 (the server asks for a password: put it "
                            "into ~/.pgpass or the environment's PGPASSWORD)",
                            {name_, reason}));
    if (refused)
      throw ArchiveError(Kind::kUnreachable,
                         Tr("the archive %%1 cannot be reached: %%2 (check the user, the password and the "
                            "name of the database)",
                            {name_, reason}));
    throw ArchiveError(
        Kind::kUnreachable,
        Tr("the archive %%1 cannot be reached: %%2 (check the URL, and that the server runs and "
           "lets this user in)",
           {name_, reason}));
  }

  [[noreturn]] void FailLost() const {
    throw ArchiveError(Kind::kUnreachable, Tr("the connection to the archive %%1 was lost: %%2 (try again: "
                                              "nothing is added twice)",
                                              {name_, OneLineOf(pq_.errorMessage(connection_))}));
  }

  [[noreturn]] void FailSilent() const {
    throw ArchiveError(Kind::kUnreachable,
                       Tr("the archive %%1 does not answer (try again when the server does: nothing is added "
                          "twice)",
                          {name_}));
  }

  [[noreturn]] void Fail(const PGresult& result) const {
    const char* state = pq_.resultErrorField(&result, PG_DIAG_SQLSTATE);
    const std::string_view code = state ? state : "";
    const auto reason = OneLineOf(pq_.resultErrorField(&result, PG_DIAG_MESSAGE_PRIMARY));
    if (code.empty()) FailLost();
    if (code == "55P03")
      throw ArchiveError(
          Kind::kBusy,
          Tr("the archive %%1 is in use by another program (try again when that has ended)", {name_}));
    if (code == "42501")
      throw ArchiveError(Kind::kUnreachable,
                         Tr("the archive %%1 refuses: %%2 (ask the server's administrator "
                            "to permit it)",
                            {name_, reason}));
    if (code == "22P05")
      throw ArchiveError(Kind::kUnreachable,
                         Tr("the archive %%1 cannot hold every letter: %%2 (create the database with "
                            "ENCODING 'UTF8')",
                            {name_, reason}));
    if (code.starts_with("42") || code.starts_with("23"))
      throw ArchiveError(Kind::kBadInput, Tr("the archive %%1 lacks tables or columns: %%2 (name another "
                                             "database, or restore a copy)",
                                             {name_, reason}));
    throw ArchiveError(Kind::kUnreachable,
                       Tr("the archive %%1 cannot be used: %%2 (earlier documents are kept; ask the "
                          "server's administrator)",
                          {name_, reason}));
  }

  const PqLibrary& pq_;
  const std::string& name_;
  PGconn* connection_ = nullptr;
};

PostgreSqlDatabase::PostgreSqlDatabase(const std::string& url)
    : name_(ShownUrl(url)), connection_(std::make_unique<Connection>(url, name_)) {
  Run("SET lock_timeout = '5s'", {});
  Run("SET statement_timeout = '50s'", {});
}

PostgreSqlDatabase::~PostgreSqlDatabase() = default;

std::vector<Row> PostgreSqlDatabase::Run(const std::string& statement, const std::vector<Value>& values) {
  return connection_->Run(statement, values);
}

void PostgreSqlDatabase::Begin(Use use) {
  if (use == Use::kRead) {
    Run("BEGIN ISOLATION LEVEL REPEATABLE READ READ ONLY", {});
    return;
  }
  while (!TakeTurn()) continue;
}

/// False if another program writes and `Patience` allows to try again.
bool PostgreSqlDatabase::TakeTurn() {
  // Each statement sees what was committed before it, so what follows the lock sees all earlier writers.
  Run("BEGIN ISOLATION LEVEL READ COMMITTED", {});
  try {
    Run(kTakeTurn, {});
  } catch (const ArchiveError& error) {
    Rollback();
    if (error.Why() != Kind::kBusy || !Patience::WaitsFor(error.what())) throw;
    return false;
  }
  return true;
}

void PostgreSqlDatabase::Commit() { Run("COMMIT", {}); }

void PostgreSqlDatabase::Rollback() noexcept {
  try {
    Run("ROLLBACK", {});
  } catch (const ArchiveError&) {
    // The connection is lost, which ends the transaction too.
    return;
  }
}

bool PostgreSqlDatabase::HasTable(const std::string& name) {
  // Not to_regclass: that answers from a cache, which does not know yet what another program has just made.
  return !Run("SELECT 1 FROM pg_catalog.pg_class c WHERE c.relname = $1 AND c.relkind = 'r'"
              " AND pg_catalog.pg_table_is_visible(c.oid)",
              {name})
              .empty();
}

bool PostgreSqlDatabase::TakesNewArchive() { return true; }

}  // namespace host::archive

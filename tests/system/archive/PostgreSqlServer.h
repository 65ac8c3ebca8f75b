#pragma once

#include <sys/types.h>

#include <filesystem>
#include <string>

namespace archive_tests {

/// A PostgreSQL server for this test program, with its data and its socket in a temporary folder and without
/// a network port. A keeper process ends it and removes the folder after this program has ended, even if it
/// crashed.
///
/// The server refuses to run as root: then it runs as "postgres", or "nobody".
class PostgreSqlServer {
 public:
  /// The server of this program, started on the first call. Throws when that fails.
  static PostgreSqlServer& Get();

  PostgreSqlServer(const PostgreSqlServer&) = delete;
  PostgreSqlServer& operator=(const PostgreSqlServer&) = delete;

  /// The name of a new, empty database. It belongs to the user "bench", who needs no password.
  std::string NewDatabase();
  /// The URL of a database for a user: "bench", "master" (the server's own), or "keyed", who must give the
  /// password "Geheim#1".
  std::string UrlFor(const std::string& user, const std::string& database) const;
  /// Runs a statement as the server's master.
  void Administer(const std::string& database, const std::string& statement) const;

 private:
  PostgreSqlServer();
  ~PostgreSqlServer();

  void Prepare() const;
  void Start();
  void AwaitReadiness() const;

  std::filesystem::path programs_, folder_;
  int lifeline_ = -1;  ///< the keeper waits for this to close
  int databases_ = 0;
};

}  // namespace archive_tests

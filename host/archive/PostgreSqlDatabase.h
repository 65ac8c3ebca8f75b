#pragma once

#include <memory>
#include <string>
#include <vector>

#include "host/archive/Database.h"

namespace host::archive {

/// A database of a PostgreSQL server. A server that does not answer is given up after `kPatienceSeconds`.
class PostgreSqlDatabase final : public Database {
 public:
  /// How long a statement may take; connecting may take as long as the URL's "connect_timeout", or 10 s.
  static constexpr int kPatienceSeconds = 60;

  explicit PostgreSqlDatabase(const std::string& url);
  ~PostgreSqlDatabase() override;

  std::vector<Row> Run(const std::string& statement, const std::vector<Value>& values) override;
  void Begin(Use use) override;
  void Commit() override;
  void Rollback() noexcept override;
  bool HasTable(const std::string& name) override;
  bool TakesNewArchive() override;
  const std::string& Name() const override { return name_; }

 private:
  class Connection;

  bool TakeTurn();

  std::string name_;
  std::unique_ptr<Connection> connection_;
};

}  // namespace host::archive

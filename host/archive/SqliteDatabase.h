#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "host/archive/Database.h"

struct sqlite3;

namespace host::archive {

/// An SQLite file. What was committed is on the disk; a program that is killed, or a power cut, leaves the
/// state before or after a transaction. Another program that is writing is waited for, up to
/// `kPatienceMilliseconds` and then as long as this program's `Patience` lasts.
class SqliteDatabase final : public Database {
 public:
  enum class Missing { kCreate, kRefuse };

  static constexpr int kPatienceMilliseconds = 5000;

  /// @param missing what to do when the file is not there; with its folder, it is created
  SqliteDatabase(const std::filesystem::path& file, Missing missing);

  std::vector<Row> Run(const std::string& statement, const std::vector<Value>& values) override;
  void Begin(Use use) override;
  void Commit() override;
  void Rollback() noexcept override;
  bool HasTable(const std::string& name) override;
  bool TakesNewArchive() override;
  const std::string& Name() const override { return name_; }

 private:
  struct Closer {
    void operator()(sqlite3* database) const;
  };

  static int OnBusy(void* database, int attempts);
  std::string BusyText() const;
  void Check(int code) const;
  [[noreturn]] void Fail(int code) const;

  std::string name_;
  std::unique_ptr<sqlite3, Closer> database_;
};

}  // namespace host::archive

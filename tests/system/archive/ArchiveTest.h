#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>

#include "host/archive/Archive.h"
#include "host/archive/ArchiveLocation.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/system/archive/PostgreSqlServer.h"

namespace archive_tests {

enum class Kind { kSqlite, kPostgreSql };

/// A test on both databases; each test starts with an empty one of its own.
class ArchiveTest : public testing::TestWithParam<Kind> {
 protected:
  ArchiveTest()
      : location_(GetParam() == Kind::kSqlite
                      ? Path("archive.sqlite")
                      : PostgreSqlServer::Get().UrlFor("bench", PostgreSqlServer::Get().NewDatabase())) {}

  std::string Path(const std::string& name) const { return (folder_.Path() / name).string(); }

  std::unique_ptr<host::archive::Database> Database() const {
    return host::archive::OpenDatabase(location_, host::archive::SqliteDatabase::Missing::kCreate);
  }
  host::archive::Archive Open() const { return host::archive::Archive(Database()); }

  support::TemporaryFolder folder_;
  const std::string location_;
};

inline std::string NameOf(const testing::TestParamInfo<Kind>& kind) {
  return kind.param == Kind::kSqlite ? "Sqlite" : "PostgreSql";
}

/// Runs a fixture's tests on both databases.
#define ON_BOTH_DATABASES(Fixture) \
  INSTANTIATE_TEST_SUITE_P(On, Fixture, testing::Values(Kind::kSqlite, Kind::kPostgreSql), NameOf)

}  // namespace archive_tests

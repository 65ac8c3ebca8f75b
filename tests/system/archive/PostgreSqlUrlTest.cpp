#include <gmock/gmock.h>

#include "host/archive/ArchiveError.h"
#include "host/archive/PostgreSqlUrl.h"

namespace archive_tests {
namespace {

using bench::ShownUrl;

TEST(ShownUrl, OmitsThePassword) {
  EXPECT_EQ(ShownUrl("postgresql://u:geheim@h:5433/db"), "postgresql://u@h:5433/db");
  EXPECT_EQ(ShownUrl("postgres://h/db?user=u&password=geheim"), "postgresql://u@h/db");
  EXPECT_EQ(ShownUrl("postgresql://u:ge%40heim@/db?host=/run/pg"), "postgresql://u@/db?host=/run/pg");
  EXPECT_EQ(ShownUrl("postgresql://u@%2Frun%2Fpg/db"), "postgresql://u@/db?host=/run/pg");
}

TEST(ShownUrl, RefusesAmbiguousUrlsWithoutQuotingThem) {
  for (const char* url : {"postgresql://u:ge@heim@h/db", "postgresql://u:ge/heim@h/db",
                          "postgresql://u:geheim", "postgresql://u:ge%heim@h/db",
                          "postgresql://u:geheim@h/db?unknown=1", "postgresql://u:geheim@[h/db"}) {
    try {
      ADD_FAILURE() << url << " was taken: " << ShownUrl(url);
    } catch (const bench::ArchiveError& error) {
      EXPECT_EQ(error.Why(), bench::ArchiveError::Kind::kBadInput);
      EXPECT_THAT(error.what(), testing::Not(testing::HasSubstr("heim"))) << url;
    }
  }
}

TEST(IsPostgreSqlUrl, DistinguishesUrlsFromFiles) {
  EXPECT_TRUE(bench::IsPostgreSqlUrl("postgresql://h/db"));
  EXPECT_TRUE(bench::IsPostgreSqlUrl("postgres://h/db"));
  EXPECT_FALSE(bench::IsPostgreSqlUrl("postgresql.sqlite"));
  EXPECT_FALSE(bench::IsPostgreSqlUrl("/d/archive.sqlite"));
}

}  // namespace
}  // namespace archive_tests

#include <gmock/gmock.h>

#include "host/archive/ArchiveError.h"
#include "host/archive/PostgreSqlUrl.h"

namespace archive_tests {
namespace {

using host::archive::ShownUrl;

TEST(ShownUrl, OmitsThePassword) {
  EXPECT_EQ(host::archive::ShownUrl("postgresql://u:geheim@h:5433/db"), "postgresql://u@h:5433/db");
  EXPECT_EQ(host::archive::ShownUrl("postgres://h/db?user=u&password=geheim"), "postgresql://u@h/db");
  EXPECT_EQ(host::archive::ShownUrl("postgresql://u:ge%40heim@/db?host=/run/pg"),
            "postgresql://u@/db?host=/run/pg");
  EXPECT_EQ(host::archive::ShownUrl("postgresql://u@%2Frun%2Fpg/db"), "postgresql://u@/db?host=/run/pg");
}

TEST(ShownUrl, RefusesAmbiguousUrlsWithoutQuotingThem) {
  for (const char* url : {"postgresql://u:ge@heim@h/db", "postgresql://u:ge/heim@h/db",
                          "postgresql://u:geheim", "postgresql://u:ge%heim@h/db",
                          "postgresql://u:geheim@h/db?unknown=1", "postgresql://u:geheim@[h/db"}) {
    try {
      ADD_FAILURE() << url << " was taken: " << host::archive::ShownUrl(url);
    } catch (const host::archive::ArchiveError& error) {
      EXPECT_EQ(error.Why(), host::archive::ArchiveError::Kind::kBadInput);
      EXPECT_THAT(error.what(), testing::Not(testing::HasSubstr("heim"))) << url;
    }
  }
}

TEST(IsPostgreSqlUrl, DistinguishesUrlsFromFiles) {
  EXPECT_TRUE(host::archive::IsPostgreSqlUrl("postgresql://h/db"));
  EXPECT_TRUE(host::archive::IsPostgreSqlUrl("postgres://h/db"));
  EXPECT_FALSE(host::archive::IsPostgreSqlUrl("postgresql.sqlite"));
  EXPECT_FALSE(host::archive::IsPostgreSqlUrl("/d/archive.sqlite"));
}

}  // namespace
}  // namespace archive_tests

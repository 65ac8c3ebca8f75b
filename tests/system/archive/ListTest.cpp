#include <gmock/gmock.h>

#include "tests/system/archive/ArchiveTest.h"
#include "tests/system/archive/Documents.h"

namespace archive_tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ListTest : public ArchiveTest {
 protected:
  ListTest() : archive_(Open()) {
    archive_.Add(Measured("/d/1", "P-7", 120, "2026-03-01T09:30:00Z"));
    archive_.Add(Measured("/d/2", "P-8", 400, "2026-01-01T00:00:00Z"));
    auto late = Measured("/d/3", "P-7", 130, "");  // sorted by the date of adding
    late.entry.serial = "S-2";
    late.entry.outcome = host::judge::Outcome::kIncomplete;
    late.entry.finished = false;
    archive_.Add(late);
  }

  std::vector<std::int64_t> Listed(const host::archive::Archive::Filter& filter) {
    std::vector<std::int64_t> ids;
    for (const auto& entry : archive_.List(filter)) ids.push_back(entry.id);
    return ids;
  }

  host::archive::Archive archive_;
};

TEST_P(ListTest, ListsTheNewestFirst) { EXPECT_THAT(Listed({}), ElementsAre(3, 1, 2)); }

TEST_P(ListTest, ListsByFilter) {
  EXPECT_THAT(Listed({.asset = "P-7"}), ElementsAre(3, 1));
  EXPECT_THAT(Listed({.serial = "S-2"}), ElementsAre(3));
  EXPECT_THAT(Listed({.since = "2026-03-01T09:30:00Z"}), ElementsAre(3, 1));
  EXPECT_THAT(Listed({.since = "2026-03-01T09:30:01Z"}), ElementsAre(3));
  EXPECT_THAT(Listed({.outcome = "failed"}), ElementsAre(2));
  EXPECT_THAT(Listed({.limit = 2}), ElementsAre(3, 1));
  EXPECT_THAT(Listed({.asset = "P-7", .outcome = "passed", .limit = 5}), ElementsAre(1));
  EXPECT_THAT(Listed({.asset = "P-%"}), IsEmpty());
}

TEST_P(ListTest, MarksUnfinishedDocuments) {
  EXPECT_FALSE(archive_.List({}).at(0).finished);
  EXPECT_TRUE(archive_.List({}).at(1).finished);
}

ON_BOTH_DATABASES(ListTest);

}  // namespace
}  // namespace archive_tests

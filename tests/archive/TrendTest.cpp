#include <gmock/gmock.h>

#include "tests/archive/ArchiveTest.h"
#include "tests/archive/Documents.h"

namespace archive_tests {
namespace {

using testing::ElementsAre;

class TrendTest : public ArchiveTest {
 protected:
  static std::vector<double> ValuesOf(const bench::Trend& trend) {
    std::vector<double> values;
    for (const auto& point : trend.points)
      values.push_back(point.element.summary.measurement->value.value_or(-1));
    return values;
  }

  bench::Archive archive_ = Open();
};

TEST_P(TrendTest, TellsTheReadingsInTheOrderOfTheirDates) {
  archive_.Add(Measured("/d/1", "P-7", 130, "2026-03-01T09:30:00Z"));
  archive_.Add(Measured("/d/2", "P-7", 120, "2025-03-01T09:30:00Z"));
  archive_.Add(Measured("/d/3", "P-8", 999, "2025-03-01T09:30:00Z"));
  const auto trend = archive_.TrendOf("P-7", 410);
  EXPECT_THAT(ValuesOf(trend), ElementsAre(120, 130));
  EXPECT_EQ(trend.points[0].date, "2025-03-01T09:30:00Z");
  EXPECT_TRUE(trend.points[0].dated);
  EXPECT_EQ(trend.points[0].element.limits.at(0).high, 300.0);
  EXPECT_TRUE(archive_.TrendOf("P-7", 420).points.empty());
}

TEST_P(TrendTest, CountsACorrectedDocumentOnceAndOneThatWasRunAgainTwice) {
  archive_.Add(Measured("/d/1", "P-7", 120, "2025-03-01T09:30:00Z"));
  archive_.Add(Measured("/d/1", "P-7", 125, "2025-03-01T09:30:00Z"));
  archive_.Add(Measured("/d/1", "P-7", 140, "2026-03-01T09:30:00Z"));
  EXPECT_THAT(ValuesOf(archive_.TrendOf("P-7", 410)), ElementsAre(125, 140));
}

TEST_P(TrendTest, TakesTheDateOfAddingWhenTheDocumentTellsNone) {
  archive_.Add(Measured("/d/1", "P-7", 120, ""));
  archive_.Add(Measured("/d/1", "P-7", 125, ""));
  const auto trend = archive_.TrendOf("P-7", 410);
  EXPECT_THAT(ValuesOf(trend), ElementsAre(125));
  EXPECT_FALSE(trend.points[0].dated);
  EXPECT_EQ(trend.points[0].date, "2026-11-21T12:00:00Z");
}

TEST_P(TrendTest, LeavesOutWhatWasNotTested) {
  auto document = Measured("/d/1", "P-7", 120);
  document.elements[0].summary.status = 0;
  document.elements[0].summary.measurement.reset();
  archive_.Add(document);
  EXPECT_TRUE(archive_.TrendOf("P-7", 410).points.empty());
}

ON_BOTH_DATABASES(TrendTest);

}  // namespace
}  // namespace archive_tests

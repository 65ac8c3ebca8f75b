#include <gmock/gmock.h>

#include "tests/system/archive/ArchiveTest.h"
#include "tests/system/archive/Documents.h"

namespace archive_tests {
namespace {

using testing::ElementsAre;

class TrendTest : public ArchiveTest {
 protected:
  static std::vector<double> ValuesOf(const host::archive::Trend& trend) {
    std::vector<double> values;
    for (const auto& point : trend.points) values.push_back(point.Value().value_or(-1));
    return values;
  }

  host::archive::Archive archive_ = Open();
};

TEST_P(TrendTest, OrdersReadingsByDate) {
  archive_.Add(Measured("/d/1", "P-7", 130, "2026-03-01T09:30:00Z"));
  archive_.Add(Measured("/d/2", "P-7", 120, "2025-03-01T09:30:00Z"));
  archive_.Add(Measured("/d/3", "P-8", 999, "2025-03-01T09:30:00Z"));
  const auto trend = archive_.TrendOf("P-7", 410);
  EXPECT_THAT(ValuesOf(trend), ElementsAre(120, 130));
  EXPECT_EQ(trend.points[0].date, "2025-03-01T09:30:00Z");
  EXPECT_TRUE(trend.points[0].dated);
  EXPECT_EQ(trend.points[0].element.result.limits.at(0).high, 300.0);
  EXPECT_TRUE(archive_.TrendOf("P-7", 420).points.empty());
}

TEST_P(TrendTest, ShowsEachRunOnce_LastRevision) {
  archive_.Add(Measured("/d/1", "P-7", 120, "2025-03-01T09:30:00Z"));
  archive_.Add(Measured("/d/1", "P-7", 125, "2025-03-01T09:30:00Z"));
  auto again = Measured("/d/1", "P-7", 140, "2025-03-01T09:30:00Z");  // within the same second
  again.elements[0].result.run = 2;
  archive_.Add(again);
  EXPECT_THAT(ValuesOf(archive_.TrendOf("P-7", 410)), ElementsAre(125, 140));
}

TEST_P(TrendTest, UsesTheDateOfAdding_UndatedRecord) {
  archive_.Add(Measured("/d/1", "P-7", 120, ""));
  archive_.Add(Measured("/d/1", "P-7", 125, ""));
  const auto trend = archive_.TrendOf("P-7", 410);
  EXPECT_THAT(ValuesOf(trend), ElementsAre(125));
  EXPECT_FALSE(trend.points[0].dated);
  EXPECT_EQ(trend.points[0].date, "2026-11-21T12:00:00Z");
  EXPECT_EQ(trend.points[0].added, "2026-11-21T12:00:00Z");
}

TEST_P(TrendTest, OmitsUntestedElements) {
  auto document = Measured("/d/1", "P-7", 120);
  document.elements[0].result = {};
  document.elements[0].result.id = 1;
  document.elements[0].result.testId = 410;
  archive_.Add(document);
  const auto trend = archive_.TrendOf("P-7", 410);
  EXPECT_TRUE(trend.points.empty());
  EXPECT_EQ(trend.notCurrent, 0U);
}

TEST_P(TrendTest, OmitsAndCountsResultsNotCurrent) {
  for (const double value : {120.0, 121.0}) {  // of the same document: it counts once
    auto document = Measured("/d/1", "P-7", value);
    document.elements[0].result.run = 0;
    document.elements[0].result.verdict = host::judge::Verdict::kNotTested;
    document.elements[0].result.reasons = {{"other-equipment", {"1", "asset", "P-6", "P-7"}}};
    document.elements[0].runDate.clear();
    archive_.Add(document);
  }
  const auto trend = archive_.TrendOf("P-7", 410);
  EXPECT_TRUE(trend.points.empty());
  EXPECT_EQ(trend.notCurrent, 1U);
}

TEST_P(TrendTest, NeverMixesSimulatedAndRealReadings) {
  archive_.Add(Measured("/d/1", "P-7", 120));
  archive_.Add(Simulated(Measured("/d/2", "P-7", 99)));
  archive_.Add(Simulated(Measured("/d/3", "P-7", 98)));
  const auto real = archive_.TrendOf("P-7", 410);
  EXPECT_THAT(ValuesOf(real), ElementsAre(120));
  EXPECT_FALSE(real.simulated);
  EXPECT_EQ(real.otherKind, 2U);
  const auto simulated = archive_.TrendOf("P-7", 410, true);
  EXPECT_THAT(ValuesOf(simulated), ElementsAre(99, 98));
  EXPECT_TRUE(simulated.simulated);
  EXPECT_EQ(simulated.otherKind, 1U);
}

ON_BOTH_DATABASES(TrendTest);

}  // namespace
}  // namespace archive_tests

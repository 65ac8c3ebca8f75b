#include <gmock/gmock.h>

#include <cmath>
#include <random>

#include "host/archive/Ticks.h"
#include "tests/support/Seed.h"

namespace archive_tests {
namespace {

using host::archive::Seconds;
using testing::ElementsAre;

template <class Position>
std::vector<std::string> Labels(const std::vector<host::archive::Tick<Position>>& ticks) {
  std::vector<std::string> labels;
  for (const auto& tick : ticks) labels.push_back(tick.label);
  return labels;
}

std::vector<std::string> DateLabels(const char* from, const char* to) {
  return Labels(host::archive::DateTicks(*host::archive::IsoMoment(from), *host::archive::IsoMoment(to)));
}

TEST(NumberTicks, AreRoundAndEncloseTheRange) {
  EXPECT_THAT(Labels(host::archive::NumberTicks(0, 300)), ElementsAre("0", "100", "200", "300"));
  EXPECT_THAT(Labels(host::archive::NumberTicks(0, 0.25)),
              ElementsAre("0", "0.05", "0.1", "0.15", "0.2", "0.25"));
  EXPECT_THAT(Labels(host::archive::NumberTicks(-3, 4)), ElementsAre("-4", "-2", "0", "2", "4"));
  EXPECT_THAT(Labels(host::archive::NumberTicks(0, 0)), ElementsAre("0", "0.2", "0.4", "0.6", "0.8", "1"));
}

TEST(NumberTicks, AreFewAndInOrder_RandomRanges) {
  std::mt19937 random(support::Seed());
  std::uniform_real_distribution<double> exponent(-12, 15), sign(-1, 1);
  for (int i = 0; i < 2000; ++i) {
    double low = sign(random) * std::pow(10, exponent(random)),
           high = sign(random) * std::pow(10, exponent(random));
    if (low > high) std::swap(low, high);
    const auto ticks = host::archive::NumberTicks(low, high);
    const double slack = 1e-9 * (std::abs(low) + std::abs(high));
    ASSERT_GE(ticks.size(), 2U);
    ASSERT_LE(ticks.size(), 8U) << low << " " << high;
    ASSERT_LE(ticks.front().at, low + slack);
    ASSERT_GE(ticks.back().at, high - slack);
    for (std::size_t t = 1; t < ticks.size(); ++t) ASSERT_LT(ticks[t - 1].at, ticks[t].at);
  }
}

TEST(DateTicks, AreRoundInEverySpan) {
  EXPECT_THAT(DateLabels("2026-03-01T10:00:10Z", "2026-03-01T10:00:50Z"),
              ElementsAre("10:00:15", "10:00:30", "10:00:45"));
  EXPECT_THAT(DateLabels("2026-03-01T10:20Z", "2026-03-01T12:10Z"),
              ElementsAre("03-01 10:30", "03-01 10:45", "03-01 11:00", "03-01 11:15", "03-01 11:30",
                          "03-01 11:45", "03-01 12:00"));
  EXPECT_THAT(DateLabels("2026-03-01T10:20Z", "2026-03-06T12:10Z"),
              ElementsAre("2026-03-02", "2026-03-03", "2026-03-04", "2026-03-05", "2026-03-06"));
  EXPECT_THAT(DateLabels("2026-03-05", "2026-07-05"),
              ElementsAre("2026-04", "2026-05", "2026-06", "2026-07"));
  EXPECT_THAT(DateLabels("2019-03-05", "2025-07-05"),
              ElementsAre("2020", "2021", "2022", "2023", "2024", "2025"));
  EXPECT_THAT(DateLabels("0001-01-01", "9999-12-31"),
              testing::SizeIs(testing::AllOf(testing::Ge(2U), testing::Le(7U))));
}

TEST(NumberText, IsShort) {
  EXPECT_EQ(host::archive::NumberText(0.1 + 0.2), "0.3");
  EXPECT_EQ(host::archive::NumberText(412.125), "412.125");
}

}  // namespace
}  // namespace archive_tests

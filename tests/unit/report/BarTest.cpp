#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "host/report/Bar.h"
#include "tests/support/Seed.h"

namespace host::report {
namespace {

using Place = Bar::Place;

TEST(Bar, IsEmptyWithoutBounds) { EXPECT_FALSE(MakeBar({}, {}, 5)); }

TEST(Bar, IsEmptyForNonFiniteNumbers) {
  EXPECT_FALSE(MakeBar(1, 2, std::nan("")));
  EXPECT_FALSE(MakeBar({}, 2, std::numeric_limits<double>::infinity()));
}

TEST(Bar, PlacesAnAllowedValueOnItsBound) {
  const auto high = MakeBar({}, 300, 300);
  ASSERT_TRUE(high);
  EXPECT_EQ(high->place, Place::kAtHigh);
  EXPECT_DOUBLE_EQ(high->value, *high->high);
  EXPECT_FALSE(high->low);
  const auto low = MakeBar(2, {}, 2);
  ASSERT_TRUE(low);
  EXPECT_EQ(low->place, Place::kAtLow);
  EXPECT_DOUBLE_EQ(low->value, *low->low);
}

TEST(Bar, ComparesInSinglePrecisionAsLimitsDo) {
  EXPECT_EQ(MakeBar({}, 0.3, static_cast<double>(0.3F))->place, Place::kAtHigh);
}

TEST(Bar, ShowsASmallExcessVisibly) {
  const auto above = MakeBar({}, 300, 300.001);
  EXPECT_EQ(above->place, Place::kAbove);
  EXPECT_GT(above->value, *above->high + 0.02);
  const auto below = MakeBar(207, 253, 206.9);
  EXPECT_EQ(below->place, Place::kBelow);
  EXPECT_LT(below->value, *below->low - 0.02);
}

TEST(Bar, PlacesAValueInProportion) {
  const auto bar = MakeBar(207, 253, 230);
  EXPECT_EQ(bar->place, Place::kWithin);
  EXPECT_NEAR(bar->value, (*bar->low + *bar->high) / 2, 1e-9);
  EXPECT_FALSE(bar->beyond);
}

TEST(Bar, StartsAtZeroWithAnUpperBoundOnly) {
  const auto bar = MakeBar({}, 300, 150);
  EXPECT_NEAR(bar->value, *bar->high / 2, 1e-9);
}

TEST(Bar, KeepsTheBoundsVisible_FarValue) {
  const auto bar = MakeBar({}, 300, 1e9);
  EXPECT_TRUE(bar->beyond);
  EXPECT_EQ(bar->value, 1);
  EXPECT_GT(*bar->high, 0.2);
  EXPECT_TRUE(MakeBar(-1, 1, -1e300)->beyond);
  EXPECT_EQ(MakeBar(-1, 1, -1e300)->value, 0);
}

TEST(Bar, PlacesRandomValuesOnTheirSide) {
  std::mt19937 random(support::Seed());
  const auto number = [&random] {
    const double digits = static_cast<double>(random() % 2000) - 1000;
    return digits * std::pow(10.0, static_cast<double>(random() % 600) - 300);
  };
  for (int round = 0; round < 20000; ++round) {
    std::optional<double> low, high;
    if (random() % 3) low = number();
    if (random() % 3) high = number();
    if (low && high && *low > *high) std::swap(*low, *high);
    const double value = random() % 5 ? number() : low.value_or(high.value_or(0));
    const auto bar = MakeBar(low, high, value);
    if (!bar) {
      EXPECT_TRUE(!low && !high);
      continue;
    }
    SCOPED_TRACE(std::to_string(round));
    for (const auto at : {std::optional(bar->value), bar->low, bar->high})
      ASSERT_TRUE(!at || (*at >= 0 && *at <= 1));
    ASSERT_TRUE(bar->place != Place::kBelow || bar->value < *bar->low)
        << bar->value << " below " << *bar->low;
    ASSERT_TRUE(bar->place != Place::kAbove || bar->value > *bar->high)
        << bar->value << " above " << *bar->high;
  }
}

}  // namespace
}  // namespace host::report

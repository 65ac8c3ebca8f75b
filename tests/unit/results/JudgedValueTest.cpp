#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "results/JudgedValue.h"

namespace {

using keld::results::JudgedValue;
using orvik::Variant;

TEST(JudgedValueTest, NumbersAreInSinglePrecision) {
  EXPECT_EQ(keld::results::JudgedValue(Variant(0.1)), 0.1F);
  EXPECT_EQ(keld::results::JudgedValue(Variant(std::int32_t{16777217})), 16777216.0F);
  EXPECT_EQ(keld::results::JudgedValue(Variant(std::string(" -12.5 "))), -12.5F);
}

TEST(JudgedValueTest, NumbersOutOfRangeAreClamped) {
  EXPECT_EQ(keld::results::JudgedValue(Variant(1e300)), std::numeric_limits<float>::max());
  EXPECT_EQ(keld::results::JudgedValue(Variant(-1e300)), -std::numeric_limits<float>::max());
}

TEST(JudgedValueTest, OtherValuesAreNotJudged) {
  EXPECT_FALSE(keld::results::JudgedValue(Variant()));
  EXPECT_FALSE(keld::results::JudgedValue(Variant(std::string())));
  EXPECT_FALSE(keld::results::JudgedValue(Variant(std::string("OL"))));
  EXPECT_FALSE(keld::results::JudgedValue(Variant(std::string("1e999"))));
  EXPECT_FALSE(keld::results::JudgedValue(Variant(std::numeric_limits<double>::infinity())));
  EXPECT_FALSE(keld::results::JudgedValue(Variant(std::numeric_limits<double>::quiet_NaN())));
}

}  // namespace

#include <gtest/gtest.h>

#include "instrument/Number.h"

namespace instrument_test {
namespace {

using orvik::Variant;

TEST(NumberTest, TextMustBeEntirelyANumber) {
  const std::pair<std::string, std::optional<double>> cases[] = {
      {"0", 0.0},
      {"12.5", 12.5},
      {" 12.5 ", 12.5},
      {"+3", 3.0},
      {"-3", -3.0},
      {".5", 0.5},
      {"1e3", 1000.0},
      {"", std::nullopt},
      {" ", std::nullopt},
      {"12,5", std::nullopt},
      {"12 5", std::nullopt},
      {"12x", std::nullopt},
      {"x12", std::nullopt},
      {"+-3", std::nullopt},
      {"--3", std::nullopt},
      {"-", std::nullopt},
      {"inf", std::nullopt},
      {"-inf", std::nullopt},
      {"nan", std::nullopt},
      {"0x10", std::nullopt},
      {"1e999", std::nullopt},
      {"NO VALUE", std::nullopt},
  };
  for (const auto& [text, number] : cases) EXPECT_EQ(keld::instrument::NumberIn(text), number) << text;
  EXPECT_EQ(keld::instrument::NumberIn(7), 7.0);
  EXPECT_EQ(keld::instrument::NumberIn(7.5), 7.5);
  EXPECT_EQ(keld::instrument::NumberIn(Variant{}), std::nullopt);
  EXPECT_EQ(keld::instrument::NumberIn(std::vector<std::string>{"1"}), std::nullopt);
}

TEST(NumberTest, IntegersAreRoundedAndRangeChecked) {
  EXPECT_EQ(keld::instrument::IntegerIn(std::string("125.5"), INT32_MIN, INT32_MAX), 126);
  EXPECT_EQ(keld::instrument::IntegerIn(std::string("124.5"), INT32_MIN, INT32_MAX), 124);
  EXPECT_EQ(keld::instrument::IntegerIn(std::string("2147483647"), INT32_MIN, INT32_MAX), INT32_MAX);
  EXPECT_EQ(keld::instrument::IntegerIn(std::string("-32768"), INT16_MIN, INT16_MAX), INT16_MIN);
  for (const std::string text : {"32768", "32767.5", "-32769", "1e20", "-1e20", "x", ""})
    EXPECT_THROW(keld::instrument::IntegerIn(text, INT16_MIN, INT16_MAX), orvik::HostError) << text;
  EXPECT_THROW(keld::instrument::IntegerIn(2147483648.0, INT32_MIN, INT32_MAX), orvik::HostError);
  EXPECT_THROW(keld::instrument::IntegerIn(std::nan(""), INT32_MIN, INT32_MAX), orvik::HostError);
}

}  // namespace
}  // namespace instrument_test

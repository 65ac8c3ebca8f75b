#include <gtest/gtest.h>

#include <charconv>
#include <clocale>
#include <cstdint>
#include <limits>
#include <locale>
#include <string>
#include <vector>

#include "OrvikTypeLib/Conversions.h"

namespace orvik {
namespace {

constexpr std::int32_t kLowest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kHighest = std::numeric_limits<std::int32_t>::max();

TEST(Trim, RemovesBlanksAtBothEndsOnly) {
  EXPECT_EQ(Trim(""), "");
  EXPECT_EQ(Trim("   "), "");
  EXPECT_EQ(Trim("a"), "a");
  EXPECT_EQ(Trim("  a b "), "a b");
  EXPECT_EQ(Trim("\ta\n"), "\ta\n");
}

TEST(LeadingNumber, ReadsTheNumberAtTheStart) {
  const std::vector<std::pair<std::string, double>> table = {
      {"", 0},       {"   ", 0},       {"5", 5},        {" 5.3", 5.3}, {"\t\r\n7", 7}, {"-2.5", -2.5},
      {"+2.5", 2.5}, {"5.3 Ohm", 5.3}, {"12abc", 12},   {"abc", 0},    {".5", 0.5},    {"-.5", -0.5},
      {"5.", 5},     {"1e3", 1000},    {"1E-2x", 0.01}, {"0,5", 0},    {"1,5", 1},     {"--5", 0},
      {"+-5", -5},   {"-", 0},         {"+", 0},        {"inf", 0},    {"-inf", 0},    {"INFINITY", 0},
      {"nan", 0},    {"-NaN", 0},      {"NO VALUE", 0}, {"O", 0},      {"0x10", 0},    {"1.2.3", 1.2},
      {"00042", 42}, {"- 5", 0},
  };
  for (const auto& [text, value] : table) EXPECT_DOUBLE_EQ(LeadingNumber(text), value) << '"' << text << '"';
}

TEST(LeadingNumber, TooLargeIsTheLargestAndTooSmallIsZero) {
  constexpr double kLargest = std::numeric_limits<double>::max();
  EXPECT_EQ(LeadingNumber("1e999 Ohm"), kLargest);
  EXPECT_EQ(LeadingNumber("-1e999"), -kLargest);
  EXPECT_EQ(LeadingNumber("1e-999"), 0);
  EXPECT_EQ(LeadingNumber("-1E-999"), 0);
}

TEST(LeadingNumber, DistinguishesTooLargeFromTooSmall) {
  constexpr double kLargest = std::numeric_limits<double>::max();
  const std::string zeros(400, '0');
  const std::vector<std::pair<std::string, double>> table = {
      {"0." + zeros + "1", 0},
      {"-0." + zeros + "1", 0},
      {"." + zeros + "1 V", 0},
      {zeros + "." + zeros + "1", 0},
      {"0." + zeros + "1e50", 0},
      {"0." + zeros + "1E+50", 0},
      {"1e-99999999999999999999999", 0},
      {"1" + zeros, kLargest},
      {"-1" + zeros, -kLargest},
      {"1" + zeros + "e-5", kLargest},
      {"+1" + zeros + ".5E-5 V", kLargest},
      {zeros + "1" + zeros, kLargest},
      {"1e99999999999999999999999", kLargest},
      // In range once the exponent is counted.
      {"0." + zeros + "1e401", 1},
      {"1" + zeros + "e-400", 1},
      {"0" + zeros + "e999", 0},
  };
  for (const auto& [text, value] : table) EXPECT_EQ(LeadingNumber(text), value) << text;
}

TEST(RoundToInteger, RoundsHalvesToTheEvenNeighbour) {
  const std::vector<std::pair<double, std::int32_t>> table = {
      {0, 0},    {0.4, 0},   {0.5, 0},   {0.6, 1},   {1.5, 2},   {2.5, 2},   {3.5, 4},
      {-0.5, 0}, {-1.5, -2}, {-2.5, -2}, {-0.6, -1}, {41.9, 42}, {123, 123},
  };
  for (const auto& [value, rounded] : table) EXPECT_EQ(RoundToInteger(value), rounded) << value;
}

TEST(RoundToInteger, StaysWithinItsRange) {
  EXPECT_EQ(RoundToInteger(1e12), kHighest);
  EXPECT_EQ(RoundToInteger(-1e12), kLowest);
  EXPECT_EQ(RoundToInteger(std::numeric_limits<double>::infinity()), kHighest);
  EXPECT_EQ(RoundToInteger(std::numeric_limits<double>::quiet_NaN()), 0);
  EXPECT_EQ(RoundToInteger(kHighest), kHighest);
  EXPECT_EQ(RoundToInteger(kLowest), kLowest);
}

TEST(NumberText, ShowsFifteenDigitsAtMost) {
  const std::vector<std::pair<double, std::string>> table = {
      {0, "0"},       {-0.0, "0"},      {5, "5"},           {5.3, "5.3"}, {0.1 + 0.2, "0.3"},
      {-2.5, "-2.5"}, {0.123, "0.123"}, {123456, "123456"}, {125, "125"}, {1000, "1000"},
  };
  for (const auto& [value, text] : table) EXPECT_EQ(NumberText(value), text);
}

TEST(NumberText, IsTheSameForWholeNumbersOfAnySize) {
  for (const double size : {1.0, 7.0, 10.0, 123.0, 99999.0, 100000.0, 1e6, 123456789.0, 999999999.0, 1e9,
                            1000000001.0, 2147483648.0, 1e14, 1e15}) {
    for (const double value : {size, -size, size + 0.5, -size - 0.25}) {
      char expected[40];
      const auto end =
          std::to_chars(expected, expected + sizeof expected, value, std::chars_format::general, 15).ptr;
      EXPECT_EQ(NumberText(value), std::string(expected, end));
    }
  }
  EXPECT_EQ(NumberText(-0.0), "0");
}

TEST(SignedNumberText, HasABlankForTheSign) {
  EXPECT_EQ(SignedNumberText(5.3), " 5.3");
  EXPECT_EQ(SignedNumberText(0), " 0");
  EXPECT_EQ(SignedNumberText(-5.3), "-5.3");
}

TEST(WholeNumberText, RoundsHalvesAwayFromZero) {
  const std::vector<std::pair<double, std::string>> table = {
      {0, "0"},    {0.5, "1"},   {0.49, "0"},  {1.5, "2"},       {2.5, "3"},
      {-0.4, "0"}, {-0.5, "-1"}, {-2.5, "-3"}, {1234.6, "1235"}, {1e15, "1000000000000000"},
  };
  for (const auto& [value, text] : table) EXPECT_EQ(WholeNumberText(value), text) << value;
  EXPECT_EQ(WholeNumberText(std::numeric_limits<double>::max()).size(), 309U);
}

TEST(NumericValue, ReadsNumbersAndLeadingNumbers) {
  EXPECT_EQ(NumericValue(Variant{}), 0);
  EXPECT_EQ(NumericValue(std::int32_t{7}), 7);
  EXPECT_EQ(NumericValue(0.25), 0.25);
  EXPECT_EQ(NumericValue(std::string("5.3 mA")), 5.3);
  EXPECT_EQ(NumericValue(std::vector<std::string>{"5"}), 0);
}

TEST(TextOf, ShowsEveryKindOfValue) {
  EXPECT_EQ(TextOf(Variant{}), "");
  EXPECT_EQ(TextOf(std::int32_t{-7}), "-7");
  EXPECT_EQ(TextOf(0.25), "0.25");
  EXPECT_EQ(TextOf(std::string(" as it is ")), " as it is ");
  EXPECT_EQ(TextOf(std::vector<std::string>{"a"}), "");
}

TEST(FormatValue, SupportsTheWholeNumberFormatOnly) {
  EXPECT_EQ(FormatValue(0.5, "0"), "1");
  EXPECT_EQ(FormatValue(std::string("12.7 mA"), "0"), "13");
  EXPECT_EQ(FormatValue(0.5, ""), "0.5");
  EXPECT_EQ(FormatValue(0.5, "0.00"), "0.5");
  EXPECT_EQ(FormatValue(Variant{}, "0"), "");
  EXPECT_EQ(FormatValue(std::string(), "0"), "");
}

TEST(Narrow16, DropsTheHighBits) {
  EXPECT_EQ(Narrow16(410), 410);
  EXPECT_EQ(Narrow16(32767), 32767);
  EXPECT_EQ(Narrow16(32768), -32768);
  EXPECT_EQ(Narrow16(65536 + 5), 5);
  EXPECT_EQ(Narrow16(-1), -1);
}

/// Numbers with a decimal comma and groups of thousands.
class CommaNumbers : public std::numpunct<char> {
 protected:
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

/// Sets a comma locale for C++, and for C where the system has one.
class CommaLocale {
 public:
  CommaLocale() : before_(std::locale::global(std::locale(std::locale::classic(), new CommaNumbers))) {
    for (const char* name : {"de_DE.UTF-8", "da_DK.UTF-8", "fr_FR.UTF-8"}) {
      if (std::setlocale(LC_NUMERIC, name)) break;
    }
  }
  ~CommaLocale() {
    std::locale::global(before_);
    std::setlocale(LC_ALL, "C");
  }

 private:
  std::locale before_;
};

TEST(Conversions, DoNotDependOnTheLocale) {
  const CommaLocale comma;
  EXPECT_EQ(LeadingNumber("1234.5"), 1234.5);
  EXPECT_EQ(LeadingNumber("1,5"), 1);
  EXPECT_EQ(NumberText(1234.5), "1234.5");
  EXPECT_EQ(SignedNumberText(0.5), " 0.5");
  EXPECT_EQ(WholeNumberText(1234567), "1234567");
  EXPECT_EQ(TextOf(std::int32_t{1234567}), "1234567");
}

}  // namespace
}  // namespace orvik

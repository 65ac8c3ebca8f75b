#include <gtest/gtest.h>

#include <limits>

#include "host/base/Text.h"

namespace host {
namespace {

TEST(Text, WholeNumbersMustBeTheWholeText) {
  EXPECT_EQ(WholeNumber("410"), 410);
  EXPECT_EQ(WholeNumber("-7"), -7);
  EXPECT_EQ(WholeNumber("+7"), 7);
  EXPECT_EQ(WholeNumber("2147483647"), std::numeric_limits<std::int32_t>::max());
  EXPECT_EQ(WholeNumber("-2147483648"), std::numeric_limits<std::int32_t>::min());
  for (const auto* text :
       {"", " 1", "1 ", "1.0", "0x10", "2147483648", "-2147483649", "abc", "1a", "+-1", "+"})
    EXPECT_FALSE(WholeNumber(text)) << text;
}

TEST(Text, FiniteNumbersMayHaveBlanksAroundThem) {
  EXPECT_EQ(FiniteNumber(" 0.3 "), 0.3);
  EXPECT_EQ(FiniteNumber("-1e3"), -1000.0);
  EXPECT_EQ(FiniteNumber("+2.5"), 2.5);
  for (const auto* text : {"", " ", "inf", "-inf", "nan", "1e999", "0,3", "1 2", "0.3V", "."})
    EXPECT_FALSE(FiniteNumber(text)) << text;
}

TEST(Text, ExactNumberTextReadsBackAsTheSameNumber) {
  for (const double value : {0.1, 1.0 / 3, 1e300, -2.5, 5e-324, 123456789.123456789})
    EXPECT_EQ(FiniteNumber(ExactNumberText(value)), value);
}

TEST(Text, LowerCaseLeavesOtherBytesAlone) {
  EXPECT_EQ(LowerAscii("OrvikKELD.\xC3\x84[Z"), "orvikkeld.\xC3\x84[z");
}

TEST(Text, IgnoresTheCaseOfAsciiLettersOnly) {
  EXPECT_TRUE(SameApartFromCase("OrvikTypeLib.Limit", "orviktypelib.LIMIT"));
  EXPECT_FALSE(SameApartFromCase("Limit", "Limits"));
  EXPECT_FALSE(SameApartFromCase("Ä", "ä"));
  EXPECT_FALSE(SameApartFromCase("[", "{"));
  EXPECT_EQ(HashApartFromCase()("aZ[Ä"), HashApartFromCase()("Az[Ä"));
  EXPECT_NE(HashApartFromCase()("limit"), HashApartFromCase()("limits"));
}

TEST(Text, FindsTheFirstInvalidUtf8Byte) {
  EXPECT_EQ(InvalidUtf8(""), std::string_view::npos);
  EXPECT_EQ(InvalidUtf8("5 µA ≤ 10 µA"), std::string_view::npos);
  EXPECT_EQ(InvalidUtf8("abc\xFF"), 3U);
  EXPECT_EQ(InvalidUtf8("µ\xFFµ\xFF"), 2U);
  EXPECT_EQ(InvalidUtf8("µ\xFFµ\xFF", 3), 5U);
  EXPECT_EQ(InvalidUtf8(std::string_view("a\0b", 3)), 1U);
}

TEST(Text, DoesNotChangeValidUtf8) {
  const std::string text = "a\xC3\xB8\xE2\x84\xA6\xF0\x9F\x94\x8C";
  EXPECT_EQ(ValidUtf8(text), text);
}

TEST(Text, ReplacesInvalidUtf8) {
  const std::string mark = "\xEF\xBF\xBD";
  EXPECT_EQ(ValidUtf8("a\xFFz"), "a" + mark + "z");
  EXPECT_EQ(ValidUtf8(std::string("a\0z", 3)), "a" + mark + "z");
  EXPECT_EQ(ValidUtf8("\xC3"), mark);
  EXPECT_EQ(ValidUtf8("\xC0\x80"), mark + mark);             // overlong
  EXPECT_EQ(ValidUtf8("\xED\xA0\x80"), mark + mark + mark);  // surrogate
  EXPECT_EQ(ValidUtf8("\xF5\x80\x80\x80"), mark + mark + mark + mark);
}

}  // namespace
}  // namespace host

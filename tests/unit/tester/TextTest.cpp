#include <gtest/gtest.h>

#include "tester/Text.h"

namespace sim {
namespace {

TEST(TextTest, SendsTheMicroSignAsOneByte) {
  EXPECT_EQ(Utf8ToLatin1("µA"),
            "\xB5"
            "A");
  EXPECT_EQ(Latin1ToUtf8("\xB5"
                         "A"),
            "µA");
}

TEST(TextTest, ConvertsEveryByteBackAndForth) {
  for (int byte = 0; byte < 256; ++byte) {
    const std::string bytes(1, static_cast<char>(byte));
    EXPECT_EQ(Utf8ToLatin1(Latin1ToUtf8(bytes)), bytes) << byte;
  }
}

TEST(TextTest, RefusesOtherCharactersAndBrokenUtf8) {
  EXPECT_EQ(Utf8ToLatin1("Ω"), std::nullopt);
  EXPECT_EQ(Utf8ToLatin1("\xC2"), std::nullopt);
  EXPECT_EQ(Utf8ToLatin1("\xC2z"), std::nullopt);
  EXPECT_EQ(Utf8ToLatin1("\x80"), std::nullopt);
  EXPECT_EQ(Utf8ToLatin1("\xC0\xAF"), std::nullopt) << "overlong";
}

TEST(TextTest, ShowsControlBytesAsHex) { EXPECT_EQ(ShowBytes("a\x1B\\\xB5\x7F"), "a\\x1B\\\\µ\\x7F"); }

TEST(TextTest, SendsPrintableLatin1Only) {
  EXPECT_TRUE(IsSendable(""));
  EXPECT_TRUE(IsSendable("a,\"b\" µ"));
  EXPECT_FALSE(IsSendable("a\tb"));
  EXPECT_FALSE(IsSendable("a\x7F"));
  EXPECT_FALSE(IsSendable("Ω"));
}

TEST(TextTest, ParseNumberAcceptsDecimalNumbersInRange) {
  EXPECT_EQ(ParseNumber("0", 10), 0);
  EXPECT_EQ(ParseNumber("10", 10), 10);
  EXPECT_EQ(ParseNumber("32767", 32767), 32767);
  for (const char* bad : {"", "11", "-1", "+1", " 1", "1 ", "1.0", "0x1", "x", "99999999999999999999"}) {
    EXPECT_EQ(ParseNumber(bad, 10), std::nullopt) << bad;
  }
}

}  // namespace
}  // namespace sim

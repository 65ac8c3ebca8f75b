#include <gtest/gtest.h>

#include "host/serial/Latin1.h"

namespace host {
namespace {

TEST(Latin1, ConvertsEachByteToUtf8AndBack) {
  for (int byte = 0; byte < 256; ++byte) {
    const std::string bytes(1, static_cast<char>(byte));
    EXPECT_EQ(serial::Latin1FromUtf8(serial::Utf8FromLatin1(bytes)), bytes) << byte;
  }
}

TEST(Latin1, ConvertsTheMicroSignToOneByte) {
  EXPECT_EQ(serial::Latin1FromUtf8("\u00B5A"),
            "\xB5"
            "A");
  EXPECT_EQ(serial::Utf8FromLatin1("\xB5"
                                   "A"),
            "\u00B5A");
}

TEST(Latin1, RejectsLettersOutsideTheSet) {
  EXPECT_EQ(serial::Latin1FromUtf8("\u03A9"), std::nullopt);  // capital omega
  EXPECT_EQ(serial::Latin1FromUtf8("\u03BC"), std::nullopt);  // Greek mu, which looks like the micro sign
  EXPECT_EQ(serial::Latin1FromUtf8("\u20AC"), std::nullopt);  // euro sign
  EXPECT_EQ(serial::Latin1FromUtf8("\U0001F600"), std::nullopt);
}

TEST(Latin1, RejectsInvalidUtf8) {
  EXPECT_EQ(serial::Latin1FromUtf8("\xC2"), std::nullopt);
  EXPECT_EQ(serial::Latin1FromUtf8("\xC2"
                                   "A"),
            std::nullopt);
  EXPECT_EQ(serial::Latin1FromUtf8("\xB5"), std::nullopt);
  EXPECT_EQ(serial::Latin1FromUtf8("\xC0\x80"), std::nullopt);  // an overlong form
}

TEST(Latin1, ShowsControlBytesAsEscapes) {
  EXPECT_EQ(serial::VisibleLatin1("a\r\n\x7F\\b\xB5"), "a\\x0D\\x0A\\x7F\\\\b\u00B5");
  EXPECT_EQ(serial::VisibleLatin1(std::string_view("\0x", 2)), "\\x00x");
}

}  // namespace
}  // namespace host

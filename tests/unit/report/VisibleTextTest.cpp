#include <gtest/gtest.h>

#include "host/base/VisibleText.h"

namespace host::report {
namespace {

TEST(VisibleText, KeepsOrdinaryTextOfAnyScript) {
  for (const char* text : {"", "VENT-0042", "300 m\u03A9, 12 \u00B5A \u2264 5",
                           "\u4EBA\u5DE5\u547C\u5438\u5668", "\u05DE\u05DB\u05E9\u05D9\u05E8", "\U0001F50C"})
    EXPECT_EQ(VisibleText(text), text);
}

TEST(VisibleText, ControlCharactersBecomeTheirNumbers) {
  EXPECT_EQ(VisibleText(std::string("a\x1B[31m\x07\x7F\t", 9)), "a[U+001B][31m[U+0007][U+007F][U+0009]");
  EXPECT_EQ(VisibleText("\u0085"), "[U+0085]");
}

TEST(VisibleText, ShowsDirectionMarksAsNumbers) {
  EXPECT_EQ(VisibleText("1\u202E23\u202C"), "1[U+202E]23[U+202C]");
  EXPECT_EQ(VisibleText("\u200F\u2066\uFEFF\u00AD"), "[U+200F][U+2066][U+FEFF][U+00AD]");
}

TEST(VisibleText, LineEndsAreShownOrKept) {
  EXPECT_EQ(VisibleText("a\r\nb"), "a[U+000D][U+000A]b");
  EXPECT_EQ(VisibleText("a\r\nb\u2028c", LineEnds::kKept), "a\nb\nc");
}

TEST(VisibleText, ReplacesInvalidUtf8) {
  EXPECT_EQ(VisibleText("a\xFFz"), "a\uFFFDz");
  EXPECT_EQ(VisibleText("\xEF\xBF\xBF"), "\uFFFD");
}

TEST(VisibleText, CodePointsRoundTrip) {
  const std::string text = "a\u00B5\u4EBA\U0001F50C";
  std::string again;
  for (const auto letter : CodePoints(text)) AppendUtf8(again, letter);
  EXPECT_EQ(again, text);
  EXPECT_EQ(CodePoints(text).size(), 4U);
}

}  // namespace
}  // namespace host::report

#include <gtest/gtest.h>

#include "host/base/TextCells.h"

namespace host {
namespace {

TEST(TextCells, CountsLettersAndNotBytes) {
  EXPECT_EQ(CellsOf(""), 0U);
  EXPECT_EQ(CellsOf("abc"), 3U);
  EXPECT_EQ(CellsOf("Prüfgerät"), 9U);
  EXPECT_EQ(CellsOf("µA"), 2U);
}

TEST(TextCells, WideLettersTakeTwo) {
  EXPECT_EQ(CellsOf("合格"), 4U);
  EXPECT_EQ(CellsOf("（SFC）：中"), 11U);
  EXPECT_EQ(CellsOf("\xF0\xA0\x80\x80"), 2U);
}

TEST(TextCells, CombiningMarksTakeNone) { EXPECT_EQ(CellsOf("a\xCC\x88"), 1U); }

TEST(TextCells, MalformedBytesTakeOneEach) {
  EXPECT_EQ(CellsOf("\xFF\x80"), 2U);
  EXPECT_EQ(CellsOf("\xE5\x90"), 2U) << "cut off in the middle of a letter";
}

TEST(TextCells, CutsBetweenLetters) {
  EXPECT_EQ(CutToCells("合格品", 4), "合格");
  EXPECT_EQ(CutToCells("合格品", 5), "合格");
  EXPECT_EQ(CutToCells("Prüf", 3), "Prü");
  EXPECT_EQ(CutToCells("abc", 9), "abc");
  EXPECT_EQ(CutToCells("abc", 0), "");
}

}  // namespace
}  // namespace host

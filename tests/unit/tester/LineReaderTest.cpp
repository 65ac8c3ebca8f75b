#include <gtest/gtest.h>

#include <vector>

#include "tester/LineReader.h"

namespace sim {
namespace {

class LineReaderTest : public testing::Test {
 protected:
  void Feed(std::string_view bytes) {
    reader_.Feed(
        bytes, [&](std::string_view line) { lines_.emplace_back(line); },
        [&](std::string_view seen) { droppedLines_.emplace_back(seen); });
  }

  LineReader reader_;
  std::vector<std::string> lines_;
  std::vector<std::string> droppedLines_;
};

using Lines = std::vector<std::string>;

TEST_F(LineReaderTest, EndsALineAtCrLfOrBoth) {
  Feed("one\rtwo\nthree\r\nfour\n\r");
  EXPECT_EQ(lines_, (Lines{"one", "two", "three", "four"}));
}

TEST_F(LineReaderTest, IgnoresEmptyLines) {
  Feed("\r\n\r\n\n\rIREM\r\n\r\n");
  EXPECT_EQ(lines_, (Lines{"IREM"}));
  EXPECT_EQ(reader_.Dropped(), 0u);
}

TEST_F(LineReaderTest, DeliversALine_WhenItsEndArrived) {
  Feed("STST,41");
  EXPECT_TRUE(lines_.empty());
  Feed("0,0");
  EXPECT_TRUE(lines_.empty());
  Feed("\r");
  EXPECT_EQ(lines_, (Lines{"STST,410,0"}));
}

TEST_F(LineReaderTest, TreatsASplitCrLfAsOneEnd) {
  Feed("a\r");
  Feed("\nb\r\n");
  EXPECT_EQ(lines_, (Lines{"a", "b"}));
}

TEST_F(LineReaderTest, DropsLinesAbove1024Bytes) {
  Feed(std::string(1024, 'a') + "\r\n");
  ASSERT_EQ(lines_.size(), 1u);
  EXPECT_EQ(lines_[0].size(), 1024u);
  Feed(std::string(1025, 'b') + "\r\nIREM\r\n");
  EXPECT_EQ(lines_.size(), 2u);
  EXPECT_EQ(lines_[1], "IREM");
  EXPECT_EQ(reader_.Dropped(), 1u);
}

TEST_F(LineReaderTest, BoundsAnEndlessLine) {
  for (int i = 0; i < 1000; ++i) Feed(std::string(1000, 'x'));
  Feed("\nQMTI\n");
  EXPECT_EQ(lines_, (Lines{"QMTI"}));
  ASSERT_EQ(droppedLines_.size(), 1u);
  EXPECT_EQ(droppedLines_[0].size(), LineReader::kMaxLine);
}

TEST_F(LineReaderTest, DropsALineWithAControlByte) {
  for (int byte = 0; byte < 256; ++byte) {
    if (byte == '\r' || byte == '\n') continue;
    lines_.clear();
    const auto before = reader_.Dropped();
    Feed("a" + std::string(1, static_cast<char>(byte)) + "b\r\nnext\r\n");
    const bool bad = byte < 0x20 || byte == 0x7F;
    EXPECT_EQ(reader_.Dropped() - before, bad ? 1u : 0u) << byte;
    EXPECT_EQ(lines_.size(), bad ? 1u : 2u) << byte;
    EXPECT_EQ(lines_.back(), "next") << byte;
  }
}

}  // namespace
}  // namespace sim

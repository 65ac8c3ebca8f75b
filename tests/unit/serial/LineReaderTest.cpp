#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "host/serial/LineReader.h"
#include "tests/support/Seed.h"

namespace host {
namespace {

struct Line {
  std::string text;
  bool good;
  bool operator==(const Line&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Line& line) {
  return out << (line.good ? "good " : "bad ") << testing::PrintToString(line.text);
}

std::vector<Line> Feed(serial::LineReader& reader, std::string_view bytes) {
  std::vector<Line> lines;
  reader.Feed(bytes, [&](std::string_view text, bool good) { lines.push_back({std::string(text), good}); });
  return lines;
}

std::vector<Line> Read(std::string_view bytes) {
  serial::LineReader reader;
  return Feed(reader, bytes);
}

TEST(LineReader, AcceptsEveryLineEnding) {
  const std::vector<Line> expected{{"a", true}, {"b", true}, {"c", true}};
  EXPECT_EQ(Read("a\r\nb\r\nc\r\n"), expected);
  EXPECT_EQ(Read("a\rb\rc\r"), expected);
  EXPECT_EQ(Read("a\nb\nc\n"), expected);
  EXPECT_EQ(Read("\n\r\r\na\n\rb\r\r\nc\r"), expected);
}

TEST(LineReader, ReturnsALineOnlyAtItsEnd) {
  serial::LineReader reader;
  EXPECT_FALSE(reader.InLine());
  EXPECT_TRUE(Feed(reader, "gres,410").empty());
  EXPECT_TRUE(reader.InLine());
  EXPECT_TRUE(Feed(reader, ",0").empty());
  EXPECT_EQ(Feed(reader, "\r"), (std::vector<Line>{{"gres,410,0", true}}));
  EXPECT_FALSE(reader.InLine());
  EXPECT_TRUE(Feed(reader, "\n").empty());
}

TEST(LineReader, AcceptsLinesUpToTheMaximumLength) {
  const std::string full(serial::LineReader::kMaxLine, 'x');
  EXPECT_EQ(Read(full + "\r\n"), (std::vector<Line>{{full, true}}));
  EXPECT_EQ(Read(full + "y\r\nok\n"), (std::vector<Line>{{full, false}, {"ok", true}}));
}

TEST(LineReader, LimitsTheMemoryOfAnEndlessLine) {
  serial::LineReader reader;
  for (int i = 0; i < 1000; ++i) EXPECT_TRUE(Feed(reader, std::string(1000, 'x')).empty());
  const auto lines = Feed(reader, "\n");
  ASSERT_EQ(lines.size(), 1u);
  EXPECT_FALSE(lines[0].good);
  EXPECT_EQ(lines[0].text.size(), serial::LineReader::kMaxLine);
}

TEST(LineReader, RejectsLinesWithAControlByte) {
  for (int byte = 0; byte < 256; ++byte) {
    if (byte == '\r' || byte == '\n') continue;
    const std::string text = std::string("a") + static_cast<char>(byte) + "b";
    const bool good = byte >= 0x20 && byte != 0x7F;
    EXPECT_EQ(Read(text + "\nnext\n"), (std::vector<Line>{{text, good}, {"next", true}})) << byte;
  }
}

TEST(LineReader, RejectsALineOfOneZeroByte) {
  EXPECT_EQ(Read(std::string_view("\0\n", 2)), (std::vector<Line>{{std::string(1, '\0'), false}}));
}

// However the bytes are cut into pieces, the lines are those of the whole.
TEST(LineReader, ReadsTheSameLinesFromPieces) {
  std::mt19937 random(support::Seed());
  const std::string alphabet("ab,\"\r\n\r\n\x01\x7F\xB5", 11);
  for (int round = 0; round < 300; ++round) {
    std::string bytes;
    const auto length = random() % 3000;
    const bool longLines = random() % 4 == 0;
    for (std::size_t i = 0; i < length; ++i)
      bytes.push_back(longLines && random() % 1500 != 0 ? 'x' : alphabet[random() % alphabet.size()]);
    serial::LineReader reader;
    std::vector<Line> pieces;
    for (std::size_t at = 0; at < bytes.size();) {
      const auto size = std::min<std::size_t>(1 + random() % 700, bytes.size() - at);
      for (auto& line : Feed(reader, std::string_view(bytes).substr(at, size))) pieces.push_back(line);
      at += size;
    }
    EXPECT_EQ(pieces, Read(bytes));
  }
}

}  // namespace
}  // namespace host

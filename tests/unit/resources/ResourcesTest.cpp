#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <vector>

#include "resources/Resources.h"
#include "tests/support/TemporaryFolder.h"

namespace {

struct Expected {
  const char* key;
  int width;
  int height;
  int depth;
};

constexpr std::array<Expected, 19> kExpected = {{{"KELD(16X16)", 16, 16, 8},
                                                 {"KELD(32X32)", 32, 32, 8},
                                                 {"TE:SEQ(32X16)", 32, 16, 8},
                                                 {"TE:SEQ(32X16)_WHT", 32, 16, 8},
                                                 {"TE:GROUP(16X16)", 16, 16, 8},
                                                 {"TE:GROUP(16X16)_WHT", 16, 16, 8},
                                                 {"TE:ITEM(16X16)", 16, 16, 8},
                                                 {"TE:ITEM(16X16)_WHT", 16, 16, 8},
                                                 {"TE:MV(32X16)", 32, 16, 8},
                                                 {"TE:PE(32X16)", 32, 16, 8},
                                                 {"TE:PE(32X16)_WHT", 32, 16, 8},
                                                 {"TE:ELC(32X16)", 32, 16, 8},
                                                 {"TE:ENC(32X16)", 32, 16, 8},
                                                 {"TE:ALC(32X16)", 32, 16, 8},
                                                 {"TE:CUR(32X16)", 32, 16, 8},
                                                 {"TE:PLC(32X16)", 32, 16, 8},
                                                 {"TE:PLC(32X16)_WHT", 32, 16, 8},
                                                 {"TE:ISO(32X16)", 32, 16, 8},
                                                 {"TAB:MTIDATA", 32, 34, 24}}};

std::string Text(std::string_view key) {
  std::string text;
  for (const std::byte byte : keld::FindResource(key)) text.push_back(static_cast<char>(byte));
  return text;
}

std::uint32_t Number(const std::string& bytes, std::size_t at, int count) {
  std::uint32_t value = 0;
  for (int i = count - 1; i >= 0; --i) {
    value = value << 8 | static_cast<unsigned char>(bytes.at(at + static_cast<std::size_t>(i)));
  }
  return value;
}

// The colours as they are shown, upper row first, read by the rules of the file format.
std::vector<std::uint32_t> Pixels(const std::string& bmp) {
  const std::uint32_t start = Number(bmp, 10, 4);
  const std::uint32_t width = Number(bmp, 18, 4);
  const std::uint32_t height = Number(bmp, 22, 4);
  const std::uint32_t depth = Number(bmp, 28, 2);
  const std::uint32_t rowSize = (width * depth + 31) / 32 * 4;
  std::vector<std::uint32_t> pixels;
  for (std::uint32_t y = 0; y < height; ++y) {
    for (std::uint32_t x = 0; x < width; ++x) {
      const std::uint32_t at = start + (height - 1 - y) * rowSize + x * depth / 8;
      pixels.push_back(depth == 24 ? Number(bmp, at, 3) : Number(bmp, 54 + 4 * Number(bmp, at, 1), 3));
    }
  }
  return pixels;
}

std::string Read(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

// The file of a key: "TE:PE(32X16)_WHT" is kept as TE_PE_32X16_WHT.bmp.
std::string FileName(std::string key) {
  std::erase(key, ')');
  std::replace_if(
      key.begin(), key.end(), [](char c) { return c == ':' || c == '('; }, '_');
  return key + ".bmp";
}

TEST(ResourcesTest, EveryKeyGivesAWholeBitmapOfItsSize) {
  for (const Expected& expected : kExpected) {
    SCOPED_TRACE(expected.key);
    const std::string bmp = Text(expected.key);
    ASSERT_GT(bmp.size(), 54U);
    EXPECT_EQ(bmp.substr(0, 2), "BM");
    EXPECT_EQ(Number(bmp, 2, 4), bmp.size());
    EXPECT_EQ(Number(bmp, 14, 4), 40U);
    EXPECT_EQ(Number(bmp, 26, 2), 1U);
    EXPECT_EQ(Number(bmp, 30, 4), 0U) << "compressed";
    const std::uint32_t colours = expected.depth == 8 ? Number(bmp, 46, 4) : 0;
    EXPECT_EQ(Number(bmp, 10, 4), 54 + 4 * colours);
    EXPECT_EQ(Number(bmp, 34, 4), bmp.size() - 54 - 4 * colours);
    EXPECT_EQ(Number(bmp, 18, 4), static_cast<std::uint32_t>(expected.width));
    EXPECT_EQ(Number(bmp, 22, 4), static_cast<std::uint32_t>(expected.height));
    EXPECT_EQ(Number(bmp, 28, 2), static_cast<std::uint32_t>(expected.depth));
    EXPECT_EQ(Pixels(bmp).size(), static_cast<std::size_t>(expected.width * expected.height));
  }
}

TEST(ResourcesTest, KeysAreNotCaseSensitive) {
  for (const Expected& expected : kExpected) {
    SCOPED_TRACE(expected.key);
    std::string lower = expected.key;
    for (char& letter : lower) letter = static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
    EXPECT_NE(lower, expected.key);
    ASSERT_FALSE(keld::FindResource(lower).empty());
    EXPECT_EQ(keld::FindResource(lower).data(), keld::FindResource(expected.key).data());
  }
  EXPECT_EQ(Text("tab:MtiData"), Text("TAB:MTIDATA"));
  EXPECT_EQ(Text("TE:GROUP(16x16)"), Text("TE:GROUP(16X16)"));
  EXPECT_EQ(Text("KELD(16x16)"), Text("KELD(16X16)"));
}

TEST(ResourcesTest, UnknownKeyGivesNothing) {
  for (const char* key : {"", " ", "TE:", "TE:MV", "TE:MV(32X16", "TE:MV(32X16) ", "TE:MV(32X16)_WHT",
                          "TE:XYZ(32X16)", "TE_MV_32X16.bmp"}) {
    EXPECT_TRUE(keld::FindResource(key).empty()) << '"' << key << '"';
  }
  EXPECT_TRUE(keld::FindResource(std::string_view("TE:MV(32X16)\0", 13)).empty());
}

TEST(ResourcesTest, NoTwoPicturesLookTheSame) {
  std::set<std::vector<std::uint32_t>> seen;
  for (const Expected& expected : kExpected) {
    EXPECT_TRUE(seen.insert(Pixels(Text(expected.key))).second) << expected.key;
  }
}

TEST(ResourcesTest, TestPicturesDifferInAQuarterOfTheirPixels) {
  // A technician distinguishes them at a glance.
  const std::array<const char*, 9> keys = {"TE:SEQ(32X16)", "TE:MV(32X16)",  "TE:PE(32X16)",
                                           "TE:ELC(32X16)", "TE:ENC(32X16)", "TE:ALC(32X16)",
                                           "TE:CUR(32X16)", "TE:PLC(32X16)", "TE:ISO(32X16)"};
  for (std::size_t i = 0; i < keys.size(); ++i) {
    for (std::size_t j = i + 1; j < keys.size(); ++j) {
      const std::vector<std::uint32_t> one = Pixels(Text(keys[i]));
      const std::vector<std::uint32_t> other = Pixels(Text(keys[j]));
      ASSERT_EQ(one.size(), other.size());
      std::size_t different = 0;
      for (std::size_t at = 0; at < one.size(); ++at) different += one[at] != other[at] ? 1U : 0U;
      EXPECT_GE(different, one.size() / 4) << keys[i] << " and " << keys[j];
    }
  }
}

TEST(ResourcesTest, SecondFormsAreWhiteAndOthersGrey) {
  constexpr std::uint32_t kButtonGrey = 0xC0C0C0;
  constexpr std::uint32_t kWhite = 0xFFFFFF;
  for (const Expected& expected : kExpected) {
    const bool isSecondForm = std::string(expected.key).ends_with("_WHT");
    const std::vector<std::uint32_t> pixels = Pixels(Text(expected.key));
    const auto grey = std::count(pixels.begin(), pixels.end(), kButtonGrey);
    EXPECT_EQ(grey > 0, !isSecondForm) << expected.key;
    EXPECT_TRUE(!isSecondForm || std::count(pixels.begin(), pixels.end(), kWhite) > 0) << expected.key;
  }
}

std::string Quoted(const std::filesystem::path& path) { return "\"" + path.string() + "\""; }

TEST(ResourcesTest, BitmapFilesAreUpToDate) {
  const support::TemporaryFolder scratch;
  const std::filesystem::path folder = scratch.Path() / "made by the program";
  const std::string command = Quoted(DRAW_BITMAPS_PATH) + " " + Quoted(folder);
  ASSERT_EQ(std::system(command.c_str()), 0) << command;
  std::set<std::string> drawn;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    drawn.insert(entry.path().filename().string());
  }
  std::set<std::string> kept;
  for (const Expected& expected : kExpected) {
    const std::string file = FileName(expected.key);
    kept.insert(file);
    // EXPECT_TRUE instead of EXPECT_EQ, which would print the bytes.
    EXPECT_TRUE(Read(folder / file) == Text(expected.key)) << file << ": build the target redraw-bitmaps";
  }
  EXPECT_EQ(drawn, kept);
}

TEST(ResourcesTest, DrawingProgramReportsBadArguments) {
  const support::TemporaryFolder scratch;
  const std::filesystem::path message = scratch.Path() / "message.txt";
  const std::string program = Quoted(DRAW_BITMAPS_PATH);
  EXPECT_NE(std::system((program + " 2>" + Quoted(message)).c_str()), 0);
  EXPECT_NE(Read(message).find("usage:"), std::string::npos);

  const std::filesystem::path file = scratch.Path() / "not-a-folder";
  std::ofstream(file) << "a file";
  EXPECT_NE(std::system((program + " " + Quoted(file) + " 2>" + Quoted(message)).c_str()), 0);
  EXPECT_NE(Read(message).find(file.string()), std::string::npos) << Read(message);
}

}  // namespace

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

#include "plugin/IdentifierTable.h"

namespace {

constexpr char kItem[] = "TE:ITEM(16x16)";
constexpr char kWhiteItem[] = "TE:ITEM(16X16)_WHT";

std::string Key(int id, int style) {
  return std::string(keld::plugin::IconKey(static_cast<std::int16_t>(id), static_cast<std::int16_t>(style)));
}

TEST(IconKey, MatchesTheTableForBothStyles) {
  struct Row {
    const char* name;
    const char* wide;
    const char* small;
    std::vector<int> ids;
  };
  const std::vector<Row> rows = {
      {"plain groups",
       "TE:SEQ(32X16)",
       "TE:GROUP(16x16)",
       {100, 200, 300, 500, 600, 700, 800, 900, 1100, 1600, 1800, 32700, -100, -400, -32700}},
      {"white groups", "TE:SEQ(32X16)_WHT", "TE:GROUP(16X16)_WHT", {400, 1000, 1200, 1300, 1400, 1500, 1700}},
      {"mains voltage", "TE:MV(32X16)", kItem, {210}},
      {"protective earth", "TE:PE(32X16)", kItem, {410}},
      {"protective earth, second form", "TE:PE(32X16)_WHT", kWhiteItem, {420}},
      {"insulation", "TE:ISO(32X16)", kItem, {1010, 1020}},
      {"all leads", "TE:ALC(32X16)", kWhiteItem, {1210, 1220}},
      {"current", "TE:CUR(32X16)", kWhiteItem, {1230, 1235, 1240, 1245}},
      {"earth leakage", "TE:ELC(32X16)", kItem, {610, 615, 620, 630, 640}},
      {"earth leakage, compared as text", "TE:ELC(32X16)", kItem, {62, 63, 64, 625, 6150, 6101, 6399}},
      {"enclosure leakage", "TE:ENC(32X16)", kItem, {710, 715, 720, 730, 740, 750, 760}},
      {"enclosure leakage, compared as text", "TE:ENC(32X16)", kItem, {72, 75, 76, 7101, 7599}},
      {"patient leakage",
       "TE:PLC(32X16)",
       kItem,
       {910, 911, 920, 930, 940, 950, 960, 964, 1110, 1111, 1120, 1130, 1140, 1150, 1160, 1164}},
      {"patient leakage, compared as text",
       "TE:PLC(32X16)",
       kItem,
       {92, 96, 9101, 9144, 9649, 112, 113, 116, 11101, 11649}},
      {"patient leakage, second form",
       "TE:PLC(32X16)_WHT",
       kWhiteItem,
       {915, 925, 935, 945, 955, 965, 1115, 1125, 1135, 1145, 1155, 1165}},
      {"ends in 5, in a range as text only", "", kItem, {95, 9145, 9105, 115, 11115, 11645}},
      {"beside a range", "", kItem, {609, 641, 645, 709, 761, 765, 909, 966, 1109, 1166}},
      {"beside a range as text",
       "",
       kItem,
       {6, 7, 9, 11, 61, 6401, 71, 7601, 91, 9651, 111, 11651, 11660, -610, -620, 1, 99, 1211, 32767}},
  };
  for (const Row& row : rows)
    for (const int id : row.ids) {
      EXPECT_EQ(Key(id, 1), row.wide) << row.name << " " << id;
      EXPECT_EQ(Key(id, 0), row.small) << row.name << " " << id;
    }
}

TEST(IconKey, OfOtherStylesIsSmallOrEmpty) {
  for (const int style : {2, -1, 3, 16, 32767, -32768}) {
    EXPECT_EQ(Key(100, style), "TE:GROUP(16x16)") << style;
    EXPECT_EQ(Key(1700, style), "TE:GROUP(16X16)_WHT") << style;
    for (const int id : {210, 420, 620, 910, 915, 1210, 77, 6150}) EXPECT_EQ(Key(id, style), "") << id;
  }
  for (const int style : {0, 1, 2, -1, 32767}) EXPECT_EQ(Key(0, style), "KELD(16x16)") << style;
}

TEST(IconKey, ExistsForEveryGroupAndSmallTest) {
  using Limits = std::numeric_limits<std::int16_t>;
  for (int id = Limits::min(); id <= Limits::max(); ++id) {
    EXPECT_FALSE(Key(id, 0).empty()) << id;
    EXPECT_TRUE(id % 100 != 0 || !Key(id, 1).empty()) << id;
  }
}

}  // namespace

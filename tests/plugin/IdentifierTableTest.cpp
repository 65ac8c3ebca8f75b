#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>
#include <vector>

#include "plugin/IdentifierTable.h"

namespace {

struct Row {
  std::int16_t id;
  const char* wide;
  const char* small;
};

std::string Key(int id, int style) {
  return std::string(keld::IconKey(static_cast<std::int16_t>(id), static_cast<std::int16_t>(style)));
}

void ExpectRow(int id, const std::string& wide, const std::string& small) {
  EXPECT_EQ(Key(id, 1), wide) << id;
  EXPECT_EQ(Key(id, 0), small) << id;
}

TEST(IconKey, OfThePlugInIsItsSmallPictureInEveryStyle) {
  for (const int style : {0, 1, 2, -1, 32767}) EXPECT_EQ(Key(0, style), "KELD(16x16)") << style;
}

TEST(IconKey, OfPlainGroups) {
  for (const int id : {100, 200, 300, 500, 600, 700, 800, 900, 1100, 1600, 1800, 32700, -100, -400, -32700}) {
    ExpectRow(id, "TE:SEQ(32X16)", "TE:GROUP(16x16)");
  }
}

TEST(IconKey, OfWhiteGroups) {
  for (const int id : {400, 1000, 1200, 1300, 1400, 1500, 1700}) {
    ExpectRow(id, "TE:SEQ(32X16)_WHT", "TE:GROUP(16X16)_WHT");
  }
}

TEST(IconKey, OfAGroupIsTheSmallOneInEveryStyleButWide) {
  for (const int style : {2, -1, 16, 32767, -32768}) {
    EXPECT_EQ(Key(100, style), "TE:GROUP(16x16)") << style;
    EXPECT_EQ(Key(1700, style), "TE:GROUP(16X16)_WHT") << style;
  }
}

TEST(IconKey, OfEveryRowOfSingleTests) {
  const std::vector<Row> rows = {
      {210, "TE:MV(32X16)", "TE:ITEM(16x16)"},         {410, "TE:PE(32X16)", "TE:ITEM(16x16)"},
      {420, "TE:PE(32X16)_WHT", "TE:ITEM(16X16)_WHT"}, {1010, "TE:ISO(32X16)", "TE:ITEM(16x16)"},
      {1020, "TE:ISO(32X16)", "TE:ITEM(16x16)"},       {1210, "TE:ALC(32X16)", "TE:ITEM(16X16)_WHT"},
      {1220, "TE:ALC(32X16)", "TE:ITEM(16X16)_WHT"},   {1230, "TE:CUR(32X16)", "TE:ITEM(16X16)_WHT"},
      {1235, "TE:CUR(32X16)", "TE:ITEM(16X16)_WHT"},   {1240, "TE:CUR(32X16)", "TE:ITEM(16X16)_WHT"},
      {1245, "TE:CUR(32X16)", "TE:ITEM(16X16)_WHT"},
  };
  for (const Row& row : rows) ExpectRow(row.id, row.wide, row.small);
}

TEST(IconKey, OfEarthLeakage) {
  for (const int id : {610, 615, 620, 630, 640}) ExpectRow(id, "TE:ELC(32X16)", "TE:ITEM(16x16)");
  for (const int id : {609, 641, 645}) ExpectRow(id, "", "TE:ITEM(16x16)");
}

TEST(IconKey, OfEnclosureLeakage) {
  for (const int id : {710, 715, 720, 730, 740, 750, 760}) ExpectRow(id, "TE:ENC(32X16)", "TE:ITEM(16x16)");
  for (const int id : {709, 761, 765}) ExpectRow(id, "", "TE:ITEM(16x16)");
}

TEST(IconKey, OfPatientLeakage) {
  for (const int id : {910, 911, 920, 930, 940, 950, 960, 964})
    ExpectRow(id, "TE:PLC(32X16)", "TE:ITEM(16x16)");
  for (const int id : {1110, 1111, 1120, 1130, 1140, 1150, 1160, 1164}) {
    ExpectRow(id, "TE:PLC(32X16)", "TE:ITEM(16x16)");
  }
  for (const int id : {909, 966, 1109, 1166}) ExpectRow(id, "", "TE:ITEM(16x16)");
}

TEST(IconKey, OfPatientLeakageInItsSecondForm) {
  for (const int id : {915, 925, 935, 945, 955, 965, 1115, 1125, 1135, 1145, 1155, 1165}) {
    ExpectRow(id, "TE:PLC(32X16)_WHT", "TE:ITEM(16X16)_WHT");
  }
}

TEST(IconKey, ComparesRangesAsTexts) {
  for (const int id : {62, 63, 64, 625, 6150, 6101, 6399}) ExpectRow(id, "TE:ELC(32X16)", "TE:ITEM(16x16)");
  for (const int id : {72, 75, 76, 7101, 7599}) ExpectRow(id, "TE:ENC(32X16)", "TE:ITEM(16x16)");
  for (const int id : {92, 96, 9101, 9144, 9649}) ExpectRow(id, "TE:PLC(32X16)", "TE:ITEM(16x16)");
  for (const int id : {112, 113, 116, 11101, 11649}) ExpectRow(id, "TE:PLC(32X16)", "TE:ITEM(16x16)");
}

TEST(IconKey, LeavesTextsOutsideTheRangesWithoutAWidePicture) {
  // "61" stands before "610", "6401" after "640", and so on.
  for (const int id :
       {6, 7, 9, 11, 61, 6401, 71, 7601, 91, 9651, 111, 11651, 11660, -610, -620, 1, 99, 1211, 32767}) {
    ExpectRow(id, "", "TE:ITEM(16x16)");
  }
}

TEST(IconKey, GivesIdentifiersEndingInFiveThatOnlyTheTextRangeHoldsNoWidePicture) {
  for (const int id : {95, 9145, 9105, 115, 11115, 11645}) ExpectRow(id, "", "TE:ITEM(16x16)");
}

TEST(IconKey, OfASingleTestIsEmptyInEveryOtherStyle) {
  for (const int style : {2, -1, 3, 16, 32767, -32768}) {
    for (const int id : {210, 420, 620, 910, 915, 1210, 77, 6150}) EXPECT_EQ(Key(id, style), "") << id;
  }
}

TEST(IconKey, AnswersForEveryIdentifierAndStyle) {
  for (int id = std::numeric_limits<std::int16_t>::min(); id <= std::numeric_limits<std::int16_t>::max();
       ++id) {
    const bool group = id % 100 == 0;
    EXPECT_FALSE(Key(id, 0).empty()) << id;
    if (group) {
      EXPECT_FALSE(Key(id, 1).empty()) << id;
    }
  }
}

}  // namespace

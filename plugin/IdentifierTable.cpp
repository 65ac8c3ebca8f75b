#include "plugin/IdentifierTable.h"

#include <algorithm>
#include <iterator>
#include <string>

namespace keld::plugin {
namespace {

constexpr std::int16_t kSmall = 0;
constexpr std::int16_t kWide = 1;

constexpr std::string_view kPlugIn = "KELD(16x16)";
constexpr std::string_view kGroup = "TE:GROUP(16x16)";
constexpr std::string_view kGroupWhite = "TE:GROUP(16X16)_WHT";
constexpr std::string_view kSequence = "TE:SEQ(32X16)";
constexpr std::string_view kSequenceWhite = "TE:SEQ(32X16)_WHT";
constexpr std::string_view kItem = "TE:ITEM(16x16)";
constexpr std::string_view kItemWhite = "TE:ITEM(16X16)_WHT";

constexpr std::int16_t kWhiteGroups[] = {400, 1000, 1200, 1300, 1400, 1500, 1700};

/// Tests by identifier. The small icons of 1210 to 1245 are white although their wide ones are not, on
/// purpose.
struct Single {
  std::int16_t iTestID;
  std::string_view sWide;
  std::string_view sSmall;
};

constexpr Single kSingles[] = {
    {210, "TE:MV(32X16)", kItem},
    {410, "TE:PE(32X16)", kItem},
    {420, "TE:PE(32X16)_WHT", kItemWhite},
    {915, "TE:PLC(32X16)_WHT", kItemWhite},
    {925, "TE:PLC(32X16)_WHT", kItemWhite},
    {935, "TE:PLC(32X16)_WHT", kItemWhite},
    {945, "TE:PLC(32X16)_WHT", kItemWhite},
    {955, "TE:PLC(32X16)_WHT", kItemWhite},
    {965, "TE:PLC(32X16)_WHT", kItemWhite},
    {1010, "TE:ISO(32X16)", kItem},
    {1020, "TE:ISO(32X16)", kItem},
    {1115, "TE:PLC(32X16)_WHT", kItemWhite},
    {1125, "TE:PLC(32X16)_WHT", kItemWhite},
    {1135, "TE:PLC(32X16)_WHT", kItemWhite},
    {1145, "TE:PLC(32X16)_WHT", kItemWhite},
    {1155, "TE:PLC(32X16)_WHT", kItemWhite},
    {1165, "TE:PLC(32X16)_WHT", kItemWhite},
    {1210, "TE:ALC(32X16)", kItemWhite},
    {1220, "TE:ALC(32X16)", kItemWhite},
    {1230, "TE:CUR(32X16)", kItemWhite},
    {1235, "TE:CUR(32X16)", kItemWhite},
    {1240, "TE:CUR(32X16)", kItemWhite},
    {1245, "TE:CUR(32X16)", kItemWhite},
};

/// Tests by range. The bounds are compared as texts, on purpose: 62, 625 and 6150 are all between "610" and
/// "640".
struct TextRange {
  std::string_view sFirst;
  std::string_view sLast;
  bool fLastDigitFive;  ///< whether it includes identifiers that end in 5
  std::string_view sWide;
};

constexpr TextRange kRanges[] = {
    {"610", "640", true, "TE:ELC(32X16)"},
    {"710", "760", true, "TE:ENC(32X16)"},
    {"910", "965", false, "TE:PLC(32X16)"},
    {"1110", "1165", false, "TE:PLC(32X16)"},
};

std::string_view GroupKey(std::int16_t iTestID, std::int16_t iStyle) {
  const bool fWhite =
      std::find(std::begin(kWhiteGroups), std::end(kWhiteGroups), iTestID) != std::end(kWhiteGroups);
  if (iStyle == kWide) return fWhite ? kSequenceWhite : kSequence;
  return fWhite ? kGroupWhite : kGroup;
}

std::string_view WideKeyByRange(std::int16_t iTestID) {
  const std::string sTestID = std::to_string(iTestID);
  for (const TextRange& range : kRanges) {
    if (sTestID < range.sFirst || sTestID > range.sLast) continue;
    if (range.fLastDigitFive || sTestID.back() != '5') return range.sWide;
  }
  return {};
}

std::string_view TestKey(std::int16_t iTestID, std::int16_t iStyle) {
  if (iStyle != kSmall && iStyle != kWide) return {};
  const auto* Found = std::find_if(std::begin(kSingles), std::end(kSingles),
                                   [&](const Single& single) { return single.iTestID == iTestID; });
  if (Found != std::end(kSingles)) return iStyle == kWide ? Found->sWide : Found->sSmall;
  return iStyle == kWide ? WideKeyByRange(iTestID) : kItem;
}

}  // namespace

std::string_view IconKey(std::int16_t iTestID, std::int16_t iStyle) {
  if (iTestID == 0) return kPlugIn;
  return iTestID % 100 == 0 ? GroupKey(iTestID, iStyle) : TestKey(iTestID, iStyle);
}

}  // namespace keld::plugin

#include <gmock/gmock.h>

#include "host/archive/TrendLimits.h"
#include "tests/system/archive/Documents.h"

namespace archive_tests {
namespace {

using host::archive::LimitsOf;
using host::archive::LimitStretch;
using host::archive::LimitText;
using testing::ElementsAre;
using testing::IsEmpty;

host::archive::TrendPoint At(const std::string& date, const std::vector<host::judge::JudgedLimit>& limits) {
  host::archive::TrendPoint point;
  point.date = date;
  point.element = Measured("/d", "P", 100, date).elements[0];
  point.element.result.limits = limits;
  return point;
}

host::judge::JudgedLimit Limit(const std::string& standard, const std::string& description,
                               const std::string& unit, std::optional<double> low,
                               std::optional<double> high) {
  return {standard, description, unit, low, high, "", "", true, {}, {}};
}

const auto kIec = Limit("IEC 62353", "", "mOhm", {}, 300.0);
const auto kAami = Limit("AAMI", "class I", "Ohm", 0.1, 0.5);

TEST(TrendLimits, ContinueWhileTheyAreTheSame) {
  const auto limits = host::archive::LimitsOf(
      {At("2024-01-01T00:00:00Z", {kIec}), At("2025-01-01T00:00:00Z", {kIec})}, "mOhm");
  EXPECT_THAT(limits.standards, ElementsAre("IEC 62353"));
  EXPECT_THAT(limits.stretches, ElementsAre(LimitStretch{0, {}, {}, {}, 300.0}));
}

TEST(TrendLimits, ChangeWithTheReadingsLimits) {
  auto tighter = kIec;
  tighter.high = 200;
  const auto limits =
      host::archive::LimitsOf({At("2024-01-01T00:00:00Z", {kIec}), At("2025-01-01T00:00:00Z", {tighter}),
                               At("2026-01-01T00:00:00Z", {})},
                              "mOhm");
  EXPECT_THAT(limits.stretches,
              ElementsAre(LimitStretch{0, {}, "2025-01-01T00:00:00Z", {}, 300.0},
                          LimitStretch{0, "2025-01-01T00:00:00Z", "2026-01-01T00:00:00Z", {}, 200.0}));
}

TEST(TrendLimits, ChangeWithTheLowerBoundAlone) {
  auto wider = kAami;
  wider.low = 0.05;
  const auto limits = host::archive::LimitsOf(
      {At("2024-01-01T00:00:00Z", {kAami}), At("2025-01-01T00:00:00Z", {wider})}, "mOhm");
  EXPECT_THAT(limits.stretches, ElementsAre(LimitStretch{0, {}, "2025-01-01T00:00:00Z", 100.0, 500.0},
                                            LimitStretch{0, "2025-01-01T00:00:00Z", {}, 50.0, 500.0}));
}

TEST(TrendLimits, OmitUnselectedStandards) {
  auto other = kAami;
  other.selected = false;
  EXPECT_THAT(host::archive::LimitsOf({At("2024-01-01T00:00:00Z", {kIec, other})}, "mOhm").standards,
              ElementsAre("IEC 62353"));
}

TEST(TrendLimits, ConvertSeveralStandardsToOneUnit) {
  const auto limits = host::archive::LimitsOf({At("2024-01-01T00:00:00Z", {kIec, kAami})}, "mOhm");
  EXPECT_THAT(limits.standards, ElementsAre("IEC 62353", "AAMI, class I"));
  EXPECT_THAT(limits.stretches,
              ElementsAre(LimitStretch{0, {}, {}, {}, 300.0}, LimitStretch{1, {}, {}, 100.0, 500.0}));
}

TEST(TrendLimits, OmitUnitsOfAnotherQuantity) {
  auto volts = kIec;
  volts.unit = "V";
  EXPECT_THAT(host::archive::LimitsOf({At("2024-01-01T00:00:00Z", {volts})}, "mOhm").stretches, IsEmpty());
}

TEST(LimitText, NamesTheBounds) {
  EXPECT_EQ(host::archive::LimitText(kIec), "IEC 62353: at most 300 mOhm");
  EXPECT_EQ(host::archive::LimitText(kAami), "AAMI, class I: 0.1 to 0.5 Ohm");
  EXPECT_EQ(host::archive::LimitText(Limit("S", "", "V", 207.0, {})), "S: at least 207 V");
}

}  // namespace
}  // namespace archive_tests

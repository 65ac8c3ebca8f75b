#include <gmock/gmock.h>

#include "host/archive/TrendLimits.h"
#include "tests/archive/Documents.h"

namespace archive_tests {
namespace {

using bench::LimitsOf;
using bench::LimitStretch;
using bench::LimitText;
using testing::ElementsAre;
using testing::IsEmpty;

bench::TrendPoint At(const std::string& date, const std::vector<bench::StandardLimit>& limits) {
  bench::TrendPoint point;
  point.date = date;
  point.element = Measured("/d", "P", 100, date).elements[0];
  point.element.limits = limits;
  return point;
}

const bench::StandardLimit kIec{"IEC 62353", "", "mOhm", {}, 300.0};
const bench::StandardLimit kAami{"AAMI", "class I", "Ohm", 0.1, 0.5};

TEST(TrendLimits, GoOnAsLongAsTheyAreTheSame) {
  const auto limits =
      LimitsOf({At("2024-01-01T00:00:00Z", {kIec}), At("2025-01-01T00:00:00Z", {kIec})}, "mOhm");
  EXPECT_THAT(limits.standards, ElementsAre("IEC 62353"));
  EXPECT_THAT(limits.stretches, ElementsAre(LimitStretch{0, {}, {}, {}, 300.0}));
}

TEST(TrendLimits, ChangeWhereAReadingWasJudgedByOthers) {
  auto tighter = kIec;
  tighter.high = 200;
  const auto limits = LimitsOf({At("2024-01-01T00:00:00Z", {kIec}), At("2025-01-01T00:00:00Z", {tighter}),
                                At("2026-01-01T00:00:00Z", {})},
                               "mOhm");
  EXPECT_THAT(limits.stretches,
              ElementsAre(LimitStretch{0, {}, "2025-01-01T00:00:00Z", {}, 300.0},
                          LimitStretch{0, "2025-01-01T00:00:00Z", "2026-01-01T00:00:00Z", {}, 200.0}));
}

TEST(TrendLimits, OfSeveralStandardsStandSideBySideInTheUnitOfTheDrawing) {
  const auto limits = LimitsOf({At("2024-01-01T00:00:00Z", {kIec, kAami})}, "mOhm");
  EXPECT_THAT(limits.standards, ElementsAre("IEC 62353", "AAMI, class I"));
  EXPECT_THAT(limits.stretches,
              ElementsAre(LimitStretch{0, {}, {}, {}, 300.0}, LimitStretch{1, {}, {}, 100.0, 500.0}));
}

TEST(TrendLimits, InAnUnitOfAnotherQuantityAreLeftOut) {
  auto volts = kIec;
  volts.unit = "V";
  EXPECT_THAT(LimitsOf({At("2024-01-01T00:00:00Z", {volts})}, "mOhm").stretches, IsEmpty());
}

TEST(LimitText, ReadsAsPeopleSayIt) {
  EXPECT_EQ(LimitText(kIec), "IEC 62353: at most 300 mOhm");
  EXPECT_EQ(LimitText(kAami), "AAMI, class I: 0.1 to 0.5 Ohm");
  EXPECT_EQ(LimitText({"S", "", "V", 207.0, {}}), "S: at least 207 V");
}

}  // namespace
}  // namespace archive_tests

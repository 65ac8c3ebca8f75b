#include <gtest/gtest.h>

#include "host/base/WallClock.h"

namespace host {
namespace {

TEST(WallClock, ParsesAMoment) {
  const auto moment = MomentOf("2026-11-21T14:03:22+01:00");
  ASSERT_TRUE(moment);
  EXPECT_EQ(moment->utc, 1795266202);
  EXPECT_EQ(moment->day, "2026-11-21");
  EXPECT_EQ(moment->minute, "14:03");
  EXPECT_EQ(moment->zone, "+01:00");
}

TEST(WallClock, ComparesMomentsAcrossZones) {
  EXPECT_EQ(MomentOf("2026-11-21T14:03:22+01:00")->utc, MomentOf("2026-11-21T08:33:22-04:30")->utc);
}

TEST(WallClock, RejectsOtherTexts) {
  for (const char* text :
       {"", "yesterday", "2026-11-21", "2026-11-21T14:03:22Z", "2026-13-21T14:03:22+01:00",
        "2026-11-31T14:03:22+01:00", "2026-11-21T24:03:22+01:00", "2026-11-21T14:60:22+01:00",
        "2026-11-21 14:03:22+01:00", "2026-11-21T14:03:22+01:00 "})
    EXPECT_FALSE(MomentOf(text)) << text;
}

TEST(WallClock, LocalTimeIsAMoment) { EXPECT_TRUE(MomentOf(LocalTimeText())); }

}  // namespace
}  // namespace host

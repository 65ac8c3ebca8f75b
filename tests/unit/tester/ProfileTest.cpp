#include <gtest/gtest.h>

#include <stdexcept>

#include "tester/Profile.h"

namespace sim {
namespace {

Reading Of(const char* value) { return {value, "µA", false, std::chrono::milliseconds(1)}; }

TEST(ProfileTest, LeadWithoutReading_ReadsAsTheTest) {
  Profile profile("p");
  profile.Set(910, 0, Of("9"));
  profile.Set(910, 3, Of("3"));
  EXPECT_EQ(profile.Find(910, 3)->value, "3");
  EXPECT_EQ(profile.Find(910, 4)->value, "9");
  EXPECT_EQ(profile.Find(911, 0), nullptr);
}

TEST(ProfileTest, KeepsNeighbouringTestsApart) {
  Profile profile("p");
  profile.Set(910, 10, Of("ten"));
  EXPECT_EQ(profile.Find(911, 0), nullptr);
  EXPECT_EQ(profile.Find(910, 0), nullptr);
}

TEST(ProfileTest, RemovesLeadsWithTheTest) {
  Profile profile("p");
  for (int setting = 0; setting <= 10; ++setting) profile.Set(910, setting, Of("1"));
  profile.Set(915, 0, Of("2"));
  profile.Remove(910);
  for (int setting = 0; setting <= 10; ++setting) EXPECT_EQ(profile.Find(910, setting), nullptr);
  EXPECT_NE(profile.Find(915, 0), nullptr);
}

TEST(ProfileTest, RefusesUnsendableText) {
  Profile profile("p");
  EXPECT_THROW(profile.Set(410, 0, Of("1\r\n2")), std::invalid_argument);
  EXPECT_THROW(profile.Set(410, 0, Reading{"1", "Ω", false, {}}), std::invalid_argument);
  EXPECT_THROW(profile.Set(0, 0, Of("1")), std::invalid_argument);
  EXPECT_THROW(profile.Set(32768, 0, Of("1")), std::invalid_argument);
  EXPECT_THROW(profile.Set(410, 11, Of("1")), std::invalid_argument);
  EXPECT_THROW(profile.Set(410, -1, Of("1")), std::invalid_argument);
  EXPECT_THROW(profile.SetIdentity({"KELD(IN)", "a\nb", "1"}), std::invalid_argument);
}

TEST(ProfileTest, GivesEachTestItsUnit) {
  EXPECT_EQ(UnitOf(210), "V");
  for (const int test : {410, 420}) EXPECT_EQ(UnitOf(test), "Ohm");
  for (const int test : {1010, 1020}) EXPECT_EQ(UnitOf(test), "MOhm");
  for (const int test : {610, 640, 710, 760, 910, 915, 965, 1110, 1165, 1210, 1235, 1245}) {
    EXPECT_EQ(UnitOf(test), "µA") << test;
  }
  for (const int test : {0, 100, 215, 430, 615, 650, 770, 912, 970, 1030, 1170, 1250, 6150}) {
    EXPECT_EQ(UnitOf(test), std::nullopt) << test;
  }
}

}  // namespace
}  // namespace sim

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "tester/BuiltInProfiles.h"

namespace sim {
namespace {

/// The strictest bound in use for each kind of test, and the widest one; see the table of readings.
struct Bounds {
  double strictest;
  double widest;
};

Bounds BoundsOf(int test) {
  if (test == 410 || test == 420) return {0.2, 0.3};
  if (test >= 610 && test <= 640) return {500, test <= 620 ? 5000.0 : 10000.0};
  if (test >= 710 && test <= 760) return {100, test <= 720 ? 100.0 : 500.0};
  if (test >= 910 && test <= 965) return {10, test <= 925 ? 100.0 : 500.0};
  if (test >= 1110 && test <= 1165) return {10, test <= 1125 ? 100.0 : 5000.0};
  if (test == 1210 || test == 1220) return {10, 5000};
  return {10, test <= 1235 ? 100.0 : 500.0};  // auxiliary current
}

bool IsMains(int test) { return test == 210; }
bool IsInsulation(int test) { return test == 1010 || test == 1020; }

bool IsSound(int test, double value) {
  if (IsMains(test)) return value > 207 && value < 253;
  if (IsInsulation(test)) return value > 70;
  return value < BoundsOf(test).strictest;
}

/// True when the reading fails even by the widest bound of its kind.
bool IsBad(int test, double value) {
  if (IsMains(test)) return !IsSound(test, value);
  if (IsInsulation(test)) return value < 2;
  return value > BoundsOf(test).widest;
}

double ValueOf(const Profile& profile, int test, int setting = 0) {
  return std::stod(profile.Find(test, setting)->value);
}

class EveryProfileTest : public testing::TestWithParam<std::string> {};

TEST_P(EveryProfileTest, HasUnitsAndTimesWithinBounds) {
  const auto profile = MakeBuiltInProfile(GetParam());
  ASSERT_TRUE(profile);
  EXPECT_EQ(profile->Name(), GetParam());
  EXPECT_EQ(profile->Who().type, "KELD(IN)");
  EXPECT_FALSE(profile->Who().serial.empty());
  for (const int test : AllTests()) {
    for (int setting = 0; setting <= Profile::kHighestSetting; ++setting) {
      const Reading* reading = profile->Find(test, setting);
      if (!reading) continue;
      EXPECT_EQ(reading->unit, UnitOf(test)) << test;
      EXPECT_GE(reading->measuringTime, std::chrono::milliseconds(300)) << test;
      EXPECT_LE(reading->measuringTime, std::chrono::milliseconds(1500)) << test;
      EXPECT_GE(std::stod(reading->value), 0) << test;
    }
  }
}

TEST_P(EveryProfileTest, ReadsNoMoreOnOneLeadThanOnAll) {
  const auto profile = MakeBuiltInProfile(GetParam());
  for (const int test : AllTests()) {
    if (!profile->Find(test, 0)) continue;
    for (int lead = 1; lead <= 10; ++lead) {
      EXPECT_LE(ValueOf(*profile, test, lead), ValueOf(*profile, test)) << test << "/" << lead;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(BuiltIn, EveryProfileTest,
                         testing::Values("sound-class-1", "sound-class-2", "broken-earth", "leaky",
                                         "overloaded"),
                         [](const auto& each) {
                           std::string name = each.param;
                           std::replace(name.begin(), name.end(), '-', '_');
                           return name;
                         });

TEST(BuiltInProfilesTest, ListsFiveProfiles) {
  std::set<std::string_view> names;
  for (const auto& profile : BuiltInProfiles()) names.insert(profile.name);
  EXPECT_EQ(names, (std::set<std::string_view>{"sound-class-1", "sound-class-2", "broken-earth", "leaky",
                                               "overloaded"}));
  EXPECT_FALSE(MakeBuiltInProfile("sound"));
  EXPECT_FALSE(MakeBuiltInProfile(""));
}

TEST(BuiltInProfilesTest, HaveEveryTest_IfComplete) {
  std::vector<int> expected = {210, 410, 420, 610, 620, 630, 640, 710, 720, 730, 740, 750, 760};
  for (int test = 910; test <= 965; test += 5) expected.push_back(test);
  expected.insert(expected.end(), {1010, 1020});
  for (int test = 1110; test <= 1165; test += 5) expected.push_back(test);
  expected.insert(expected.end(), {1210, 1220, 1230, 1235, 1240, 1245});
  EXPECT_EQ(AllTests(), expected);
  for (const char* name : {"sound-class-1", "broken-earth", "leaky", "overloaded"}) {
    for (const int test : expected)
      EXPECT_NE(MakeBuiltInProfile(name)->Find(test, 0), nullptr) << name << " " << test;
  }
}

TEST(BuiltInProfilesTest, SoundEquipment_PassesOnEveryLead) {
  for (const char* name : {"sound-class-1", "sound-class-2"}) {
    const auto profile = MakeBuiltInProfile(name);
    for (const int test : AllTests()) {
      for (int setting = 0; setting <= 10; ++setting) {
        const Reading* reading = profile->Find(test, setting);
        if (!reading) continue;
        EXPECT_TRUE(IsSound(test, std::stod(reading->value))) << name << " " << test << "/" << setting;
        EXPECT_FALSE(reading->overload) << name << " " << test;
      }
    }
  }
}

TEST(BuiltInProfilesTest, Class2_LacksTheEarthTests) {
  const auto profile = MakeBuiltInProfile("sound-class-2");
  std::vector<int> lacked;
  for (const int test : AllTests()) {
    if (!profile->Find(test, 0)) lacked.push_back(test);
  }
  EXPECT_EQ(lacked, (std::vector<int>{410, 420, 610, 620, 630, 640}));
}

TEST(BuiltInProfilesTest, BrokenEarth_FailsEarthAndLeakageOnly) {
  const auto profile = MakeBuiltInProfile("broken-earth");
  EXPECT_EQ(profile->Find(410, 0)->value, "1.85");
  for (const int test : AllTests()) {
    const double value = ValueOf(*profile, test);
    EXPECT_EQ(IsBad(test, value), test >= 410 && test <= 760) << test;
    EXPECT_EQ(IsSound(test, value), test < 410 || test > 760) << test;
  }
}

TEST(BuiltInProfilesTest, Leaky_FailsInsulationAndCurrents) {
  const auto profile = MakeBuiltInProfile("leaky");
  for (const int test : {210, 410, 420}) EXPECT_TRUE(IsSound(test, ValueOf(*profile, test))) << test;
  for (const int test : AllTests()) {
    EXPECT_EQ(IsBad(test, ValueOf(*profile, test)), test > 420) << test;
  }
}

TEST(BuiltInProfilesTest, Overloaded_ExceedsEveryBound) {
  const auto profile = MakeBuiltInProfile("overloaded");
  std::vector<int> overloaded;
  for (const int test : AllTests()) {
    const Reading& reading = *profile->Find(test, 0);
    if (reading.overload) overloaded.push_back(test);
    if (IsInsulation(test)) continue;  // beyond the range is good there
    EXPECT_EQ(IsBad(test, std::stod(reading.value)), reading.overload) << test;
    EXPECT_EQ(IsSound(test, std::stod(reading.value)), !reading.overload) << test;
  }
  EXPECT_EQ(overloaded, (std::vector<int>{410, 640, 760, 910, 965, 1020, 1130, 1210, 1245}));
  EXPECT_TRUE(profile->Find(910, 7)->overload) << "on each lead too";
}

}  // namespace
}  // namespace sim

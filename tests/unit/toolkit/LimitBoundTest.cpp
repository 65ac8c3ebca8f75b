#include <gtest/gtest.h>

#include "toolkit/controls/LimitBound.h"

namespace host {
namespace {

TEST(LimitBound, IsSplitIntoNumberAndUnit) {
  const auto expect = [](const char* text, const char* number, const char* unit) {
    const auto bound = toolkit::controls::SplitBound(text, "mA");
    EXPECT_EQ(bound.number, number) << text;
    EXPECT_EQ(bound.unit, unit) << text;
  };
  expect("", "", "mA");
  expect("0.5", "0.5", "mA");
  expect(" 0.5 ", "0.5", "mA");
  expect("110%", "110", "%");
  expect("110 %", "110", "%");
}

TEST(LimitBound, IsJoinedAgain) {
  EXPECT_EQ(toolkit::controls::JoinBound({"", "%"}), "");
  EXPECT_EQ(toolkit::controls::JoinBound({"  ", "%"}), "");
  EXPECT_EQ(toolkit::controls::JoinBound({" 0.5 ", "mA"}), "0.5");
  EXPECT_EQ(toolkit::controls::JoinBound({"110", "%"}), "110%");
  EXPECT_EQ(toolkit::controls::JoinBound({"110%", "%"}), "110%");
  EXPECT_EQ(toolkit::controls::JoinBound({"110%", "mA"}), "110%");
}

TEST(LimitBound, IsShownWithItsUnit) {
  EXPECT_EQ(toolkit::controls::BoundWithUnit("", "mA"), "");
  EXPECT_EQ(toolkit::controls::BoundWithUnit("0.5", "mA"), "0.5 mA");
  EXPECT_EQ(toolkit::controls::BoundWithUnit("110%", "mA"), "110 %");
  EXPECT_EQ(toolkit::controls::BoundWithUnit("0.5", ""), "0.5");
}

TEST(LimitBound, CanHaveTheLimitsUnitOrPercent) {
  using Units = std::vector<std::string>;
  EXPECT_EQ(toolkit::controls::UsableUnits("V;%", "V"), (Units{"V", "%"}));
  EXPECT_EQ(toolkit::controls::UsableUnits(";%", ""), (Units{"", "%"}));
  EXPECT_EQ(toolkit::controls::UsableUnits("V", "V"), (Units{"V"}));
  EXPECT_EQ(toolkit::controls::UsableUnits("", "V"), (Units{"V"}));
  EXPECT_EQ(toolkit::controls::UsableUnits("V;mV;%;%", "V"), (Units{"V", "%"}))
      << "millivolts are not converted";
}

}  // namespace
}  // namespace host

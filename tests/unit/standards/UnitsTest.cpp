#include <gtest/gtest.h>

#include "host/standards/Units.h"

namespace host {
namespace {

struct Conversion {
  const char* number;
  const char* from;
  const char* to;
  const char* result;  ///< empty when it cannot be told in the other unit
};

class UnitsTest : public testing::TestWithParam<Conversion> {};

TEST_P(UnitsTest, IsConverted) {
  const auto& [number, from, to, result] = GetParam();
  EXPECT_EQ(standards::InUnit(number, from, to).value_or(""), result)
      << number << " " << from << " in " << to;
}

INSTANTIATE_TEST_SUITE_P(
    Table, UnitsTest,
    testing::Values(Conversion{"0.3", "Ohm", "mOhm", "300"}, Conversion{"300", "mOhm", "Ohm", "0.3"},
                    Conversion{"0.1", "mA",
                               "\xC2\xB5"
                               "A",
                               "100"},
                    Conversion{"100", "uA", "mA", "0.1"},
                    Conversion{"7",
                               "\xCE\xBC"
                               "A",
                               "\xC2\xB5"
                               "A",
                               "7"},
                    Conversion{"-1.5", "kV", "V", "-1500"}, Conversion{"2000", "kOhm", "MOhm", "2"},
                    Conversion{"0.007", "GOhm", "MOhm", "7"}, Conversion{"2", "MOhm", "mOhm", "2000000000"},
                    Conversion{"1e3", "nA",
                               "\xC2\xB5"
                               "A",
                               "1"},
                    Conversion{"0.3", "\xCE\xA9", "mOhm", "300"},
                    // The same unit keeps the text as it was entered.
                    Conversion{"0.30", "mOhm", "mOhm", "0.30"}, Conversion{" 5 ", "V", "V", "5"},
                    Conversion{"5", "", "", "5"}, Conversion{"5", "Nm", "Nm", "5"},
                    // Another quantity, an unknown unit, no number.
                    Conversion{"5", "V", "mA", ""}, Conversion{"5", "mOhm", "", ""},
                    Conversion{"5", "", "mOhm", ""}, Conversion{"5", "mohm", "mOhm", ""},
                    Conversion{"5", "Nm", "V", ""}, Conversion{"5", "xA", "mA", ""},
                    Conversion{"abc", "V", "V", ""}, Conversion{"110%", "V", "mV", ""},
                    Conversion{"1e308", "MOhm", "mOhm", ""}));

TEST(UnitsTest, TreatsBothMicroSignsAlike) {
  EXPECT_TRUE(
      standards::SameUnit("\xC2\xB5"
                          "A",
                          "\xCE\xBC"
                          "A"));
  EXPECT_TRUE(standards::SameUnit("uA",
                                  "\xC2\xB5"
                                  "A"));
  EXPECT_TRUE(standards::SameUnit("N", "N"));
  EXPECT_FALSE(standards::SameUnit("mOhm", "MOhm"));
  EXPECT_FALSE(standards::SameUnit("mA", "mV"));
  EXPECT_FALSE(standards::SameUnit("N", "V"));
  EXPECT_FALSE(standards::SameUnit("", "V"));
}

}  // namespace
}  // namespace host

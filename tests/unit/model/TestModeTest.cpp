#include <gtest/gtest.h>

#include "model/TestMode.h"

namespace keld {

TEST(TestMode, NamesTheLeadOfEachOptionBit) {
  std::int32_t option = 4;
  for (std::int16_t lead = 1; lead <= 10; ++lead, option *= 2)
    EXPECT_EQ(model::ComputeTestMode(option, 910), lead);
}

TEST(TestMode, TheFirstLeadWinsWhenSeveralAreSet) {
  EXPECT_EQ(model::ComputeTestMode(4 | 4096, 910), 1);
  EXPECT_EQ(model::ComputeTestMode(8 | 2048, 910), 2);
  EXPECT_EQ(model::ComputeTestMode(2048 | 4096, 1220), 10);
}

TEST(TestMode, AllLeadsIs99) { EXPECT_EQ(model::ComputeTestMode(4096, 1220), 99); }

TEST(TestMode, WithoutLeadsTheTestDecides) {
  EXPECT_EQ(model::ComputeTestMode(0, 1220), 9999);
  for (const std::int32_t id : {1210, 1230, 1240}) EXPECT_EQ(model::ComputeTestMode(0, id), 99) << id;
  for (const std::int32_t id : {0, 210, 410, 1211, 1235, 1245, 1250})
    EXPECT_EQ(model::ComputeTestMode(0, id), 999) << id;
}

TEST(TestMode, TheBitsOfTheGuidesButtonsTakeNoPart) {
  EXPECT_EQ(model::ComputeTestMode(3, 210), 999);
  EXPECT_EQ(model::ComputeTestMode(3, 1220), 9999);
  EXPECT_EQ(model::ComputeTestMode(3 | 16, 210), 3);
}

}  // namespace keld

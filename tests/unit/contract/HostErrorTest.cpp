#include <gtest/gtest.h>

#include "OrvikTypeLib/HostError.h"

namespace orvik {
namespace {

TEST(HostError, CarriesNumberSourceAndDescription) {
  const HostError error(HostError::kNoSuchProperty, "orvik-bench",
                        "Object does not support this property: X");
  EXPECT_EQ(error.Number(), 438);
  EXPECT_EQ(error.Source(), "orvik-bench");
  EXPECT_EQ(error.Description(), "Object does not support this property: X");
  EXPECT_STREQ(error.what(), "Object does not support this property: X");
}

TEST(HostError, CanBeCaughtAsAnyError) {
  try {
    throw HostError(-2147220948, "KELD(IN)", "catalogue");
  } catch (const std::exception& error) {
    EXPECT_STREQ(error.what(), "catalogue");
  }
}

}  // namespace
}  // namespace orvik

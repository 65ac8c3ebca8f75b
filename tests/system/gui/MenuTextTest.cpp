#include <gtest/gtest.h>

#include "host/gui/MenuText.h"

namespace desktop_test {
namespace {

TEST(ButtonText, OmitsAccessKeyAndDots) {
  EXPECT_EQ(bench::desktop::ButtonText("&New..."), "New");
  EXPECT_EQ(bench::desktop::ButtonText("R&esume"), "Resume");
  EXPECT_EQ(bench::desktop::ButtonText("\u65B0\u5EFA(&N)..."), "\u65B0\u5EFA");
  EXPECT_EQ(bench::desktop::ButtonText("Limits (all)"), "Limits (all)");
}

}  // namespace
}  // namespace desktop_test

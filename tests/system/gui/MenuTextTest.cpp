#include <gtest/gtest.h>

#include "host/gui/MenuText.h"

namespace desktop_test {
namespace {

TEST(ButtonText, OmitsAccessKeyAndDots) {
  EXPECT_EQ(host::gui::ButtonText("&New..."), "New");
  EXPECT_EQ(host::gui::ButtonText("R&esume"), "Resume");
  EXPECT_EQ(host::gui::ButtonText("\u65B0\u5EFA(&N)..."), "\u65B0\u5EFA");
  EXPECT_EQ(host::gui::ButtonText("Limits (all)"), "Limits (all)");
}

}  // namespace
}  // namespace desktop_test

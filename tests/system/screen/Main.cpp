#include <gtest/gtest.h>

#include <clocale>
#include <cstdlib>

// Each test makes its own QApplication, on a display of its own.
int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  setenv("QT_QPA_PLATFORM", "xcb", 1);
  // The machine's language and looks have no say.
  setenv("LC_ALL", "C.UTF-8", 1);
  for (const auto* variable : {"ORVIK_LANG", "QT_QPA_PLATFORMTHEME", "QT_STYLE_OVERRIDE", "WAYLAND_DISPLAY"})
    unsetenv(variable);
  std::setlocale(LC_NUMERIC, "C");
  return RUN_ALL_TESTS();
}

#include <gtest/gtest.h>

#include <QApplication>
#include <clocale>

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  // The machine's language must not matter.
  qputenv("LC_ALL", "C.UTF-8");
  qunsetenv("ORVIK_LANG");
  const QApplication application(argc, argv);
  std::setlocale(LC_NUMERIC, "C");
  QApplication::setQuitOnLastWindowClosed(false);
  return RUN_ALL_TESTS();
}

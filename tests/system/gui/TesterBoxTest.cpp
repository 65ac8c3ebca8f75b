// The choice of a tester in the window.
#include <gtest/gtest.h>

#include <QApplication>
#include <QFocusEvent>
#include <QLineEdit>
#include <QTest>
#include <QWheelEvent>

#include "host/bench/InputError.h"
#include "host/gui/TesterBox.h"

namespace desktop_test {
namespace {

using host::gui::TesterBox;

TEST(TesterBoxTest, SimulatedTester_MustBeSelected) {
  TesterBox box(1.0, nullptr, [] { return std::vector<std::string>{}; });
  EXPECT_THROW(box.Choice(), host::bench::InputError);
  box.show();
  static_cast<QComboBox&>(box).showPopup();
  box.hidePopup();
  EXPECT_THROW(box.Choice(), host::bench::InputError);
}

TEST(TesterBoxTest, OffersTheFirstDevice) {
  const TesterBox box(1.0, nullptr, [] { return std::vector<std::string>{"/dev/ttyUSB0", "/dev/ttyUSB1"}; });
  EXPECT_FALSE(box.Choice().simulated);
  EXPECT_EQ(box.Choice().port, "/dev/ttyUSB0");
}

TEST(TesterBoxTest, AcceptsTypedDevices) {
  TesterBox box(1.0, nullptr, [] { return std::vector<std::string>{"/dev/ttyUSB10"}; });
  box.show();
  QFocusEvent focus(QEvent::FocusIn, Qt::TabFocusReason);
  QApplication::sendEvent(box.lineEdit(), &focus);
  box.lineEdit()->selectAll();
  QTest::keyClicks(box.lineEdit(), "/dev/ttyUSB1");
  EXPECT_EQ(box.Choice().port, "/dev/ttyUSB1");
}

TEST(TesterBoxTest, TimeScale_SelectsASimulatedTester) { EXPECT_TRUE(TesterBox(20).Choice().simulated); }

TEST(TesterBoxTest, IgnoresTheMouseWheel) {
  TesterBox box(20);
  const auto before = box.currentText();
  box.show();
  QWheelEvent wheel({5, 5}, box.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                    Qt::NoScrollPhase, false);
  QApplication::sendEvent(&box, &wheel);
  EXPECT_EQ(box.currentText(), before);
}

TEST(TesterBoxTest, KeepsTheChoice_WhenTheListOpens) {
  TesterBox box(1.0);
  box.setEditText("/dev/ttyUSB7");
  box.show();
  static_cast<QComboBox&>(box).showPopup();
  EXPECT_EQ(box.Choice().port, "/dev/ttyUSB7");
  box.hidePopup();
}

}  // namespace
}  // namespace desktop_test

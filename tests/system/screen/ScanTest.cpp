// A scanner types a number and Return, wherever the keyboard is.
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTreeWidget>

#include "tests/system/screen/ScreenTest.h"

namespace screen_test {
namespace {

/// Sees what arrives at the widgets.
class ReturnSeen final : public QObject {
 public:
  ReturnSeen() { qApp->installEventFilter(this); }
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::KeyRelease && watched->isWidgetType() &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Return)
      seen_ = true;
    return false;
  }
  bool Seen() const { return seen_; }

 private:
  bool seen_ = false;
};

class ScanTest : public ScreenTest {
 protected:
  void Open(const std::string& asset) {
    const auto file = Path("pump.orvik");
    ASSERT_EQ(Bench({"new", file, "--asset", asset, "--add", "410"}).status, 0);
    window_->Open(file);
    ChooseTester("/dev/ttyS7");
    // As at the start: the test's own typing has left nothing behind.
    window_->Open(file);
    Drive({OnTop("main"), Await("active", [this] { return window_->isActiveWindow(); })});
  }
  void Scan(const std::string& number) {
    const ReturnSeen returned;
    Drive({Do([&] {
             Display::Type(number);
             Display::Press("Return");
           }),
           Await("the scan", [&] { return returned.Seen(); })});
  }
  std::string TextOf(const char* box) { return window_->findChild<QLineEdit*>(box)->text().toStdString(); }
  std::string Tester() { return window_->findChild<QComboBox*>("tester")->currentText().toStdString(); }
};

TEST_F(ScanTest, FillsTheEmptyAssetField) {
  Open("");
  Scan("PUMP-0815");
  EXPECT_EQ(TextOf("asset"), "PUMP-0815");
  EXPECT_TRUE(Changed());
  EXPECT_EQ(QApplication::focusWidget()->objectName().toStdString(), "serial");
  Scan("SN-1");
  EXPECT_EQ(TextOf("asset"), "PUMP-0815");
  EXPECT_EQ(TextOf("serial"), "SN-1");
  EXPECT_EQ(Tester(), "/dev/ttyS7");
}

TEST_F(ScanTest, ChangesNothing_WithAKnownAsset) {
  Open("PUMP-7");
  Scan("PUMP-0815");
  EXPECT_EQ(TextOf("asset"), "PUMP-7");
  EXPECT_EQ(Tester(), "/dev/ttyS7");
  EXPECT_FALSE(Changed());
}

TEST_F(ScanTest, ChangesNothing_WithoutADocument) {
  const auto tester = Tester();
  Drive({OnTop("main"), Await("active", [this] { return window_->isActiveWindow(); })});
  Scan("PUMP-0815");
  EXPECT_EQ(Tester(), tester);
}

TEST_F(ScanTest, KeepsTheSelectedTester) {
  Open("PUMP-7");
  auto* box = window_->findChild<QComboBox*>("tester");
  Drive({Do([box] {
           Display::Click(*box, {box->width() - 8, box->height() / 2});
         }),
         Await("the list", [] { return QApplication::activePopupWidget() != nullptr; }),
         Do([] { Display::Press("Return"); }),
         Await("chosen", [] { return QApplication::activePopupWidget() == nullptr; })});
  const auto chosen = Tester();
  Scan("PUMP-0815");
  EXPECT_EQ(Tester(), chosen);
}

}  // namespace
}  // namespace screen_test

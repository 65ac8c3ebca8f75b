#include <gtest/gtest.h>

#include <QAccessible>
#include <QTreeView>

#include "host/qt/Contrast.h"
#include "host/qt/ListModel.h"
#include "tests/unit/qt/ScreenTest.h"

namespace toolkit::headless {
namespace {

constexpr double kLegible = 4.5;

QPalette LightPalette() { return {QColor(0xef, 0xef, 0xef)}; }

QPalette DarkPalette() {
  QPalette dark(QColor(0x35, 0x35, 0x35));
  dark.setColor(QPalette::Base, QColor(0x23, 0x23, 0x23));
  dark.setColor(QPalette::Text, Qt::white);
  return dark;
}

/// A list with a row that failed and one that did not, in a palette.
class ListDelegateTest : public ScreenTest, public testing::WithParamInterface<bool> {
 protected:
  ListDelegateTest() : before_(QApplication::palette()) {
    QApplication::setPalette(GetParam() ? DarkPalette() : LightPalette());
    list_ = NewForm("F").AddListView("lvwResults");
    list_->AddColumn({"NAM", "Test", 4500, platform::Alignment::kLeft});
    list_->AddColumn({"VAL", "Value", 1500, platform::Alignment::kRight});
    AddRow("1", false);
    AddRow("2", true);
    Column("F", {"lvwResults"});
  }
  ~ListDelegateTest() override { QApplication::setPalette(before_); }

  void AddRow(const std::string& key, bool failed) {
    list_->AddRow(key);
    for (const char* column : {"NAM", "VAL"}) {
      platform::ListCell cell;
      cell.text = "iiii";
      cell.bold = failed;
      cell.color = failed ? platform::kRed : platform::kWindowText;
      list_->SetCell(key, column, cell);
    }
  }
  QTreeView& View() { return WidgetOf<QTreeView>(*list_); }
  /// What is painted for a cell.
  QImage Painted(int row, int column) {
    const QRect place = View().visualRect(View().model()->index(row, column));
    return View().viewport()->grab(place).toImage().convertToFormat(QImage::Format_RGB32);
  }
  /// The colour that covers most of the cell.
  static QColor BackgroundOf(const QImage& cell) {
    std::map<QRgb, int> count;
    for (int y = 0; y < cell.height(); ++y)
      for (int x = 0; x < cell.width(); ++x) ++count[cell.pixel(x, y)];
    return {std::max_element(count.begin(), count.end(), [](const auto& one, const auto& other) {
              return one.second < other.second;
            })->first};
  }
  /// The best contrast that anything in the cell has with its background.
  static double BestContrast(const QImage& cell) {
    const QColor background = BackgroundOf(cell);
    double best = 1;
    for (int y = 0; y < cell.height(); ++y)
      for (int x = 0; x < cell.width(); ++x)
        best = std::max(best, host::qt::Contrast(QColor(cell.pixel(x, y)), background));
    return best;
  }
  static bool Reddish(const QColor& color) {
    return color.red() > 2 * color.green() && color.red() > 2 * color.blue();
  }
  static bool HasReddish(const QImage& cell) {
    for (int y = 0; y < cell.height(); ++y)
      for (int x = 0; x < cell.width(); ++x)
        if (Reddish(QColor(cell.pixel(x, y)))) return true;
    return false;
  }

  std::shared_ptr<platform::IListView> list_;

 private:
  const QPalette before_;
};

TEST_P(ListDelegateTest, FailedRowIsRedSelectedOrNot) {
  EXPECT_TRUE(HasReddish(Painted(1, 1)));
  EXPECT_FALSE(HasReddish(Painted(0, 1)));
  EXPECT_GE(BestContrast(Painted(1, 1)), kLegible);
  list_->SelectRow("2");
  Pump();
  const auto cell = Painted(1, 1);
  EXPECT_TRUE(Reddish(BackgroundOf(cell)));
  EXPECT_GE(BestContrast(cell), kLegible);
}

TEST_P(ListDelegateTest, LeavesOtherSelectedRowsToTheStyle) {
  list_->SelectRow("1");
  Pump();
  EXPECT_FALSE(HasReddish(Painted(0, 0)));
  EXPECT_FALSE(HasReddish(Painted(0, 1)));
  EXPECT_NE(BackgroundOf(Painted(0, 1)), QApplication::palette().color(QPalette::Base));
}

TEST_P(ListDelegateTest, FailedRowHasSignAndWord) {
  for (const bool selected : {false, true}) {
    if (selected) list_->SelectRow("2");
    Pump();
    // The sign is white on red, before the word.
    const auto name = Painted(1, 0);
    const auto sign = name.copy(0, 0, name.height(), name.height());
    EXPECT_TRUE(HasReddish(sign));
    EXPECT_GE(BestContrast(sign), kLegible);
  }
  const auto failed = View().model()->index(1, 0), other = View().model()->index(0, 0);
  EXPECT_EQ(failed.data(Qt::AccessibleTextRole), "failed: iiii");
  EXPECT_EQ(other.data(Qt::AccessibleTextRole), "iiii");
  EXPECT_EQ(failed.data(Qt::DisplayRole), "iiii") << "the text itself is the plug-in's";
  // The sign and the word take room of their own.
  const QAbstractItemView& view = View();
  EXPECT_GT(view.sizeHintForIndex(failed).width(),
            view.sizeHintForIndex(other).width() + View().fontMetrics().horizontalAdvance("failed: "));
}

INSTANTIATE_TEST_SUITE_P(Palettes, ListDelegateTest, testing::Bool(),
                         [](const testing::TestParamInfo<bool>& palette) {
                           return palette.param ? "Dark" : "Light";
                         });

TEST(Contrast, FollowsTheAccessibilityGuidelines) {
  EXPECT_NEAR(host::qt::Contrast(Qt::black, Qt::white), 21, 0.01);
  EXPECT_NEAR(host::qt::Contrast(Qt::white, Qt::red), 4.0, 0.01);
  EXPECT_NEAR(host::qt::Contrast(Qt::blue, Qt::blue), 1, 0.01);
}

TEST(Contrast, ChangesOnlyIllegibleColours) {
  EXPECT_EQ(host::qt::Legible(Qt::black, Qt::white), QColor(Qt::black));
  for (const QColor background : {Qt::white, Qt::black, Qt::gray, Qt::blue, Qt::yellow})
    EXPECT_GE(host::qt::Contrast(host::qt::Legible(Qt::red, background), background), kLegible);
}

}  // namespace
}  // namespace toolkit::headless

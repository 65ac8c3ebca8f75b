#include "host/qt/FontMetrics.h"

#include <QApplication>
#include <QComboBox>
#include <QFontMetrics>
#include <QGroupBox>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QStyle>
#include <QTabBar>
#include <QToolButton>
#include <algorithm>

#include "host/qt/Conversions.h"

namespace host::qt {
namespace {

using toolkit::headless::Part;
namespace platform = orvik::platform;

constexpr int kLongestLine = 60;

QFontMetrics Metrics() { return QFontMetrics(QApplication::font()); }

/// A text longer than the minimum size of any control, and the size that a control needs in addition to it.
const QString& Sample() {
  static const QString sample(40, u'n');
  return sample;
}
QSize Beyond(const QSize& whole) {
  return whole - QSize(Metrics().horizontalAdvance(Sample()), Metrics().height());
}

QSize TextBoxPadding() {
  const QSize whole = QLineEdit().sizeHint();
  return {whole.width() - QLineEdit().fontMetrics().horizontalAdvance(QString(17, u'x')),
          whole.height() - Metrics().height()};
}

QSize ComboBoxPadding() {
  QComboBox box;
  box.addItem(Sample());
  const QSize fixed = Beyond(box.sizeHint());
  box.setEditable(true);
  return fixed.expandedTo(Beyond(box.sizeHint()));
}

QSize TabPadding() {
  QTabBar bar;
  QPixmap picture(16, 16);
  bar.addTab(QIcon(picture), Sample());
  return Beyond(bar.sizeHint());
}

QSize ToolButtonPadding() {
  QMenu menu;
  QToolButton button;
  button.setText(Sample());
  // Any button may have the arrow of a menu.
  button.setMenu(&menu);
  button.setPopupMode(QToolButton::InstantPopup);
  return Beyond(button.sizeHint());
}

QSize TreeNodePadding() {
  const QStyle* style = QApplication::style();
  constexpr int kMargins = 12;
  return {style->pixelMetric(QStyle::PM_IndicatorWidth) + style->pixelMetric(QStyle::PM_ScrollBarExtent) +
              kMargins,
          4};
}

QSize PaddingOf(Part part) {
  switch (part) {
    case Part::kButton:
      return Beyond(QPushButton(Sample()).sizeHint());
    case Part::kTextBox:
      return TextBoxPadding();
    case Part::kComboBox:
      return ComboBoxPadding();
    case Part::kFrame:
      // With a line inside.
      return Beyond(QGroupBox(Sample()).minimumSizeHint()).expandedTo(QSize(24, Metrics().height() + 8));
    case Part::kTabCaption:
      return TabPadding();
    case Part::kToolButton:
      return ToolButtonPadding();
    case Part::kTreeNode:
      return TreeNodePadding();
    case Part::kListRow:
      return QSize(8, 6);
  }
  return {};
}

}  // namespace

FontMetrics::FontMetrics() {
  for (const Part part : {Part::kButton, Part::kTextBox, Part::kComboBox, Part::kFrame, Part::kTabCaption,
                          Part::kToolButton, Part::kTreeNode, Part::kListRow})
    padding_[part] = units_.Twips(PaddingOf(part).expandedTo(QSize(0, 0)));
}

platform::Size FontMetrics::Line(std::string_view caption) const {
  return units_.Twips(QSize(Metrics().horizontalAdvance(WithoutAccessKey(caption)), Metrics().height()));
}

platform::Size FontMetrics::Wrapped(std::string_view text) const {
  const QRect available(0, 0, kLongestLine * Metrics().averageCharWidth(), QWIDGETSIZE_MAX);
  const QRect needed = Metrics().boundingRect(available, Qt::TextWordWrap, WithoutAccessKey(text));
  // A label wraps slightly earlier than the width of the text.
  return units_.Twips(QSize(needed.width() + 2, std::max(needed.height(), Metrics().height())));
}

platform::Size FontMetrics::Character() const {
  return units_.Twips(QSize(Metrics().averageCharWidth(), Metrics().height()));
}

}  // namespace host::qt

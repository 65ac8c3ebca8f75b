#include "host/toolkit/qt/FontMetrics.h"

#include <QApplication>
#include <QFontMetrics>
#include <QStyle>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>
#include <QStyleOptionFrame>
#include <QStyleOptionTab>
#include <QStyleOptionToolButton>

#include "host/toolkit/qt/Texts.h"

namespace bench::qt {
namespace {

using headless::Part;
namespace platform = orvik::platform;

constexpr int kLongestLine = 60;

QFontMetrics Metrics() { return QFontMetrics(QApplication::font()); }

/// What the style puts around contents that are large enough for its smallest sizes not to count.
template <class Option>
QSize AroundContents(QStyle::ContentsType type, Option option) {
  const QSize contents(200, Metrics().height());
  option.fontMetrics = Metrics();
  const QSize whole = QApplication::style()->sizeFromContents(type, &option, contents);
  return whole - contents;
}

QSize AroundTextBox() {
  // Two pixels at either side are the text's own margins.
  QStyleOptionFrame option;
  option.lineWidth = QApplication::style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option);
  return AroundContents(QStyle::CT_LineEdit, option) + QSize(4, 2);
}

QSize AroundTab() {
  QStyleOptionTab option;
  option.shape = QTabBar::RoundedNorth;
  const QStyle* style = QApplication::style();
  // A page may have a picture beside its caption.
  const int picture = style->pixelMetric(QStyle::PM_SmallIconSize) + 4;
  return AroundContents(QStyle::CT_TabBarTab, option) +
         QSize(style->pixelMetric(QStyle::PM_TabBarTabHSpace) + picture,
               style->pixelMetric(QStyle::PM_TabBarTabVSpace) + 2);
}

QSize AroundToolButton() {
  const QStyle* style = QApplication::style();
  // Any button may have the arrow of a list.
  return AroundContents(QStyle::CT_ToolButton, QStyleOptionToolButton()) +
         QSize(style->pixelMetric(QStyle::PM_MenuButtonIndicator) + 2, 0);
}

QSize AroundTreeNode() {
  const QStyle* style = QApplication::style();
  constexpr int kMargins = 12;
  return QSize(style->pixelMetric(QStyle::PM_IndicatorWidth) +
                   style->pixelMetric(QStyle::PM_ScrollBarExtent) + kMargins,
               4);
}

QSize AroundPart(Part part) {
  switch (part) {
    case Part::kButton:
      return AroundContents(QStyle::CT_PushButton, QStyleOptionButton());
    case Part::kTextBox:
      return AroundTextBox();
    case Part::kComboBox:
      return AroundContents(QStyle::CT_ComboBox, QStyleOptionComboBox());
    case Part::kFrame:
      return QSize(24, Metrics().height() + 8);
    case Part::kTabCaption:
      return AroundTab();
    case Part::kToolButton:
      return AroundToolButton();
    case Part::kTreeNode:
      return AroundTreeNode();
    case Part::kListRow:
      return QSize(8, 6);
  }
  return {};
}

}  // namespace

platform::Size FontMetrics::Line(std::string_view caption) const {
  return units_.Twips(QSize(Metrics().horizontalAdvance(WithoutAccessKey(caption)), Metrics().height()));
}

platform::Size FontMetrics::Wrapped(std::string_view text) const {
  const QRect room(0, 0, kLongestLine * Metrics().averageCharWidth(), QWIDGETSIZE_MAX);
  const QRect needed = Metrics().boundingRect(room, Qt::TextWordWrap, WithoutAccessKey(text));
  // A label breaks lines a hair earlier than the text is wide.
  return units_.Twips(QSize(needed.width() + 2, std::max(needed.height(), Metrics().height())));
}

platform::Size FontMetrics::Character() const {
  return units_.Twips(QSize(Metrics().averageCharWidth(), Metrics().height()));
}

platform::Size FontMetrics::Around(Part part) const { return units_.Twips(AroundPart(part)); }

}  // namespace bench::qt

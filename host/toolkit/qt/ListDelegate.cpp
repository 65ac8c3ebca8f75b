#include "host/toolkit/qt/ListDelegate.h"

#include <QPainter>
#include <QPixmap>

#include "host/toolkit/qt/Contrast.h"
#include "host/toolkit/qt/ListModel.h"

namespace bench::qt {
namespace {

constexpr int kSignSize = 64;  // Qt makes it smaller where it is shown

/// A white cross on a disc of the colour.
QIcon Cross(const QColor& color) {
  QPixmap picture(kSignSize, kSignSize);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(color);
  // Its edge is seen on a background of its own colour too.
  painter.setPen(QPen(Qt::white, 5));
  painter.drawEllipse(QRectF(3, 3, 58, 58));
  painter.setPen(QPen(Qt::white, 8, Qt::SolidLine, Qt::RoundCap));
  painter.drawLine(QPointF(21, 21), QPointF(43, 43));
  painter.drawLine(QPointF(43, 21), QPointF(21, 43));
  QIcon icon(picture);
  // The style would tint it in a selected row.
  icon.addPixmap(picture, QIcon::Selected);
  return icon;
}

}  // namespace

void ListDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
  QStyledItemDelegate::initStyleOption(option, index);
  const auto own = index.data(Qt::ForegroundRole);
  if (!own.isValid()) return;
  const auto color = own.value<QColor>();
  QPalette& palette = option->palette;
  palette.setColor(QPalette::Text, Legible(color, palette.color(QPalette::Base)));
  // A selected row keeps its colour, as background: the style would paint white on blue over it.
  const QColor background = Legible(color, Qt::white);
  palette.setColor(QPalette::Highlight, background);
  palette.setColor(QPalette::HighlightedText, Qt::white);
  if (index.column() != 0 || !index.data(kFailedRole).toBool()) return;
  option->features |= QStyleOptionViewItem::HasDecoration;
  option->icon = Cross(background);
  option->text = FailedText(option->text);
}

}  // namespace bench::qt

#include "host/qt/ListDelegate.h"

#include <QPainter>
#include <QPixmap>

#include "host/qt/Contrast.h"
#include "host/qt/ListModel.h"

namespace host::qt {
namespace {

constexpr int kSignSize = 64;  // Qt scales it down

/// A white cross on a disc of the colour.
QIcon Cross(const QColor& color) {
  QPixmap picture(kSignSize, kSignSize);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(color);
  // A white edge is visible on a background of the same colour.
  painter.setPen(QPen(Qt::white, 5));
  painter.drawEllipse(QRectF(3, 3, 58, 58));
  painter.setPen(QPen(Qt::white, 8, Qt::SolidLine, Qt::RoundCap));
  painter.drawLine(QPointF(21, 21), QPointF(43, 43));
  painter.drawLine(QPointF(43, 21), QPointF(21, 43));
  QIcon icon(picture);
  // Otherwise the style tints it in a selected row.
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
  // A selected row has its colour as background, instead of the style's blue.
  const QColor background = Legible(color, Qt::white);
  palette.setColor(QPalette::Highlight, background);
  palette.setColor(QPalette::HighlightedText, Qt::white);
  if (index.column() != 0 || !index.data(kFailedRole).toBool()) return;
  option->features |= QStyleOptionViewItem::HasDecoration;
  option->icon = Cross(background);
  option->text = FailedText(option->text);
}

}  // namespace host::qt

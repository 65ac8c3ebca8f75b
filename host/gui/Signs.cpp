#include "host/gui/Signs.h"

#include <QPainter>
#include <QPixmap>

#include "host/report/drawing/DrawSign.h"
#include "host/report/drawing/PageStyle.h"

namespace host::gui {

namespace {

constexpr int kIconSize = 64;  ///< in pixels; Qt scales it down
constexpr int kSignMargin = 15;

}  // namespace

QIcon SignIcon(report::Standing standing) {
  QPixmap picture(kIconSize, kIconSize);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(report::drawing::ColourOf(standing));
  painter.drawEllipse(0, 0, kIconSize, kIconSize);
  const double side = kIconSize - 2.0 * kSignMargin;
  report::drawing::DrawSign(painter, standing, QRectF(kSignMargin, kSignMargin, side, side), Qt::white);
  return QIcon(picture);
}

QString ColourName(report::Standing standing) { return report::drawing::ColourOf(standing).name(); }

}  // namespace host::gui

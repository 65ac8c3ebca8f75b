#include "host/gui/Signs.h"

#include <QPainter>
#include <QPixmap>

#include "host/report/drawing/PdfSign.h"
#include "host/report/drawing/PdfStyle.h"

namespace bench::desktop {

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
  painter.setBrush(pdf::ColourOf(standing));
  painter.drawEllipse(0, 0, kIconSize, kIconSize);
  const double side = kIconSize - 2.0 * kSignMargin;
  pdf::DrawSign(painter, standing, QRectF(kSignMargin, kSignMargin, side, side), Qt::white);
  return QIcon(picture);
}

QString ColourName(report::Standing standing) { return pdf::ColourOf(standing).name(); }

}  // namespace bench::desktop

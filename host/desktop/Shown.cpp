#include "host/desktop/Shown.h"

#include <QPainter>
#include <QPixmap>
#include <QRegularExpression>

#include "host/pdf/PdfStyle.h"
#include "host/pdf/PdfText.h"

namespace bench::desktop {

namespace {

constexpr int kIconSize = 64;  // Qt makes it smaller where it is shown
constexpr int kSignRoom = 15;

}  // namespace

QString ButtonText(const std::string& text) {
  auto shown = Shown(text);
  shown.remove(QRegularExpression("\\(&.\\)"));
  shown.remove('&');
  if (shown.endsWith("...")) shown.chop(3);
  return shown;
}

QIcon SignIcon(report::Standing standing) {
  QPixmap picture(kIconSize, kIconSize);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(pdf::ColourOf(standing));
  painter.drawEllipse(0, 0, kIconSize, kIconSize);
  const double side = kIconSize - 2.0 * kSignRoom;
  pdf::DrawSign(painter, standing, QRectF(kSignRoom, kSignRoom, side, side), Qt::white);
  return QIcon(picture);
}

QString ColourName(report::Standing standing) { return pdf::ColourOf(standing).name(); }

}  // namespace bench::desktop

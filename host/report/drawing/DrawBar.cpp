#include "host/report/drawing/DrawBar.h"

#include <QFontMetricsF>
#include <algorithm>

#include "host/report/drawing/TextBlock.h"

namespace host::report::drawing {
namespace {

constexpr double kTop = 300, kThick = 140, kSide = 160;

/// A label over or under a place, kept within the picture.
void Label(QPainter& painter, const QRectF& place, double x, double y, const std::string& text,
           const QFont& font, const QColor& colour) {
  const QFontMetricsF metrics(font);
  const auto shown = metrics.elidedText(Text(text), Qt::ElideRight, place.width());
  const double width = metrics.horizontalAdvance(shown);
  painter.setFont(font);
  painter.setPen(colour);
  painter.drawText(QPointF(std::clamp(x - width / 2, place.left(), place.right() - width), y), shown);
}

void Pointer(QPainter& painter, double x, double top, const report::Bar& bar, const QColor& colour) {
  painter.setPen(QPen(Qt::white, 18));
  painter.setBrush(colour);
  const double middle = top + kThick / 2;
  if (bar.beyond) {
    const double back = bar.value > 0.5 ? -170 : 170;
    painter.drawPolygon(QPolygonF({{x, middle}, {x + back, middle - 130}, {x + back, middle + 130}}));
  } else {
    painter.drawPolygon(QPolygonF({{x, top + kThick + 10}, {x - 95, top - 60}, {x + 95, top - 60}}));
  }
}

}  // namespace

void DrawBar(QPainter& painter, const QRectF& place, const report::Judgement& judgement) {
  const auto& bar = *judgement.bar;
  const double line = place.width() - 2 * kSide;
  const double top = place.top() + kTop;
  const auto x = [&](double at) { return place.left() + kSide + at * line; };
  const auto fill = [&](double from, double to, const QColor& colour) {
    painter.fillRect(QRectF(x(from), top, std::max((to - from) * line, 0.0), kThick), colour);
  };
  const auto colour = ColourOf(judgement.standing);
  painter.save();
  fill(0, 1, kTrack);
  fill(bar.low.value_or(0), bar.high.value_or(1), kAllowed);
  const auto bound = [&](double at, const std::string& label) {
    painter.setPen(QPen(kInk, 24));
    painter.drawLine(QPointF(x(at), top - 60), QPointF(x(at), top + kThick + 60));
    Label(painter, place, x(at), top + kThick + 240, label, FontOf(7.5), kQuiet);
  };
  if (bar.low) bound(*bar.low, judgement.lowLabel);
  if (bar.high) bound(*bar.high, judgement.highLabel);
  Pointer(painter, x(bar.value), top, bar, colour);
  Label(painter, place, x(bar.value), top - 110, judgement.valueLabel, FontOf(8, true), colour);
  painter.restore();
}

}  // namespace host::report::drawing

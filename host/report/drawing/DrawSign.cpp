#include "host/report/drawing/DrawSign.h"

#include <QPainterPath>

namespace host::report::drawing {
namespace {

void DrawQuestionMark(QPainter& painter, const QRectF& square) {
  const auto at = [&square](double x, double y) {
    return QPointF(square.x() + x * square.width(), square.y() + y * square.height());
  };
  QPainterPath hook(at(0.25, 0.3));
  hook.cubicTo(at(0.3, 0.0), at(0.8, 0.0), at(0.75, 0.32));
  hook.cubicTo(at(0.72, 0.45), at(0.5, 0.45), at(0.5, 0.65));
  painter.drawPath(hook);
  painter.drawLine(at(0.5, 0.93), at(0.5, 0.931));
}

}  // namespace

void DrawSign(QPainter& painter, report::Standing standing, const QRectF& square, const QColor& colour) {
  const auto at = [&square](double x, double y) {
    return QPointF(square.x() + x * square.width(), square.y() + y * square.height());
  };
  painter.save();
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(colour, square.width() * 0.17, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  switch (standing) {
    case report::Standing::kPassed:
      painter.drawPolyline(QPolygonF({at(0.12, 0.55), at(0.4, 0.82), at(0.88, 0.2)}));
      break;
    case report::Standing::kFailed:
      painter.drawLine(at(0.18, 0.18), at(0.82, 0.82));
      painter.drawLine(at(0.82, 0.18), at(0.18, 0.82));
      break;
    case report::Standing::kOpen:
      painter.drawLine(at(0.5, 0.1), at(0.5, 0.58));
      painter.drawLine(at(0.5, 0.88), at(0.5, 0.881));
      break;
    case report::Standing::kDoubtful:
      DrawQuestionMark(painter, square);
      break;
    case report::Standing::kAborted:
      painter.fillRect(QRectF(at(0.15, 0.15), at(0.85, 0.85)), colour);
      break;
    case report::Standing::kNotTested:
      painter.drawEllipse(QRectF(at(0.15, 0.15), at(0.85, 0.85)));
      break;
    case report::Standing::kNotJudged:
      painter.drawPolyline(QPolygonF({at(0.1, 0.6), at(0.32, 0.42), at(0.68, 0.6), at(0.9, 0.42)}));
      break;
    case report::Standing::kRecorded:
      painter.drawLine(at(0.2, 0.36), at(0.8, 0.36));
      painter.drawLine(at(0.2, 0.66), at(0.8, 0.66));
      break;
    case report::Standing::kNotApplicable:
      painter.drawLine(at(0.2, 0.5), at(0.8, 0.5));
      break;
  }
  painter.restore();
}

}  // namespace host::report::drawing

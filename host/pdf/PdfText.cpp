#include "host/pdf/PdfText.h"

#include <QPainterPath>
#include <QTextLayout>
#include <cmath>

namespace bench::pdf {
namespace {

constexpr double kLeading = 1.16;

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

QFont FontOf(double points, bool bold, bool italic) {
  QFont font;
  // Digits of one width and all signs of the trade; scripts that they lack come from whatever else is
  // installed.
  font.setFamilies({"Liberation Sans", "DejaVu Sans", "Droid Sans Fallback", "sans-serif"});
  font.setPixelSize(static_cast<int>(std::lround(points * kPoint)));
  font.setBold(bold);
  font.setItalic(italic);
  font.setHintingPreference(QFont::PreferNoHinting);
  font.setKerning(true);
  return font;
}

QString Text(const std::string& utf8) {
  auto text = QString::fromStdString(utf8);
  text.replace('\n', QChar(QChar::LineSeparator));
  return text;
}

PdfText::PdfText(const std::string& text, double width, const TextStyle& style)
    : layout_(std::make_shared<QTextLayout>(Text(text), FontOf(style.points, style.bold))),
      colour_(style.colour) {
  Break(width, style);
}

PdfText::PdfText(const report::Cell& cell, double width, const TextStyle& style)
    : layout_(std::make_shared<QTextLayout>(Text(report::PlainText(cell)), FontOf(style.points, style.bold))),
      colour_(style.colour) {
  QList<QTextLayout::FormatRange> formats;
  int at = 0;
  for (const auto& run : cell) {
    const auto length = static_cast<int>(Text(run.text).size());
    if (run.bold || run.italic) {
      QTextCharFormat format;
      format.setFont(FontOf(style.points, run.bold, run.italic));
      formats.append({at, length, format});
    }
    at += length;
  }
  layout_->setFormats(formats);
  Break(width, style);
}

void PdfText::Break(double width, const TextStyle& style) {
  QTextOption option;
  option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  option.setAlignment(style.alignment | Qt::AlignAbsolute);
  option.setUseDesignMetrics(true);
  layout_->setTextOption(option);
  layout_->beginLayout();
  double y = 0;
  for (auto line = layout_->createLine(); line.isValid(); line = layout_->createLine()) {
    line.setLineWidth(width);
    line.setPosition({0, y});
    y += line.height() * kLeading;
  }
  layout_->endLayout();
}

std::size_t PdfText::Lines() const { return static_cast<std::size_t>(layout_->lineCount()); }

double PdfText::HeightOf(std::size_t first, std::size_t count) const {
  if (count == 0 || first >= Lines()) return 0;
  const auto top = layout_->lineAt(static_cast<int>(first));
  const auto bottom = layout_->lineAt(static_cast<int>(std::min(first + count, Lines()) - 1));
  return bottom.y() + bottom.height() * kLeading - top.y();
}

std::size_t PdfText::Fitting(std::size_t first, double height) const {
  std::size_t count = 0;
  while (first + count < Lines() && HeightOf(first, count + 1) <= height) ++count;
  return count;
}

void PdfText::Draw(QPainter& painter, QPointF at, std::size_t first, std::size_t count) const {
  if (first >= Lines()) return;
  painter.setPen(colour_);
  const double top = layout_->lineAt(static_cast<int>(first)).y();
  for (auto i = first; i < std::min(first + count, Lines()); ++i) {
    const auto line = layout_->lineAt(static_cast<int>(i));
    line.draw(&painter, {at.x(), at.y() - top});
  }
}

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

}  // namespace bench::pdf

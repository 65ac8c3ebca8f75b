#include "host/report/drawing/TextBlock.h"

#include <QTextLayout>
#include <algorithm>
#include <cmath>

namespace host::report::drawing {
namespace {

constexpr double kLeading = 1.16;

}  // namespace

QFont FontOf(double points, bool bold, bool italic) {
  QFont font;
  // Digits of one width, and the signs of units; scripts that these fonts lack come from any other one.
  font.setFamilies({"Liberation Sans", "DejaVu Sans", "Droid Sans Fallback", "sans-serif"});
  font.setPixelSize(static_cast<int>(std::lround(points * kPoint)));
  font.setBold(bold);
  font.setItalic(italic);
  font.setHintingPreference(QFont::PreferNoHinting);
  return font;
}

QString Text(const std::string& utf8) {
  return QString::fromStdString(utf8).replace('\n', QChar(QChar::LineSeparator));
}

TextBlock::TextBlock(const report::Cell& cell, double width, const TextStyle& style,
                     Qt::AlignmentFlag alignment)
    : layout_(std::make_shared<QTextLayout>(Text(report::PlainText(cell)), FontOf(style.points, style.bold))),
      colour_(style.colour) {
  QList<QTextLayout::FormatRange> formats;
  int at = 0;
  for (const auto& run : cell) {
    const auto length = static_cast<int>(Text(run.text).size());
    QTextCharFormat format;
    format.setFont(FontOf(style.points, style.bold || run.bold, run.italic));
    if (run.bold || run.italic) formats.append({at, length, format});
    at += length;
  }
  layout_->setFormats(formats);
  QTextOption option;
  option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  option.setAlignment(alignment | Qt::AlignAbsolute);
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

std::size_t TextBlock::Lines() const { return static_cast<std::size_t>(layout_->lineCount()); }

double TextBlock::HeightOf(std::size_t first, std::size_t count) const {
  double height = 0;
  for (auto i = first; i < std::min(first + count, Lines()); ++i)
    height += layout_->lineAt(static_cast<int>(i)).height() * kLeading;
  return height;
}

std::size_t TextBlock::Fitting(std::size_t first, double height) const {
  std::size_t count = first < Lines() ? 1 : 0;
  while (first + count < Lines() && HeightOf(first, count + 1) <= height) ++count;
  return count;
}

void TextBlock::Draw(QPainter& painter, QPointF at, std::size_t first, std::size_t count) const {
  painter.setPen(colour_);
  for (auto i = first; i < std::min(first + count, Lines()); ++i) {
    const auto line = layout_->lineAt(static_cast<int>(i));
    line.draw(&painter, {at.x(), at.y() - layout_->lineAt(static_cast<int>(first)).y()});
  }
}

}  // namespace host::report::drawing

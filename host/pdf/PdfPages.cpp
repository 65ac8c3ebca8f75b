#include "host/pdf/PdfPages.h"

#include <QBuffer>
#include <QFontMetricsF>
#include <QPageLayout>
#include <QPdfWriter>
#include <algorithm>
#include <stdexcept>

#include "host/pdf/PdfText.h"

namespace bench::pdf {
namespace {

constexpr double kSmall = 8;
/// What a text may be measured too short.
constexpr double kRounding = 2;

/// One line of text that ends with "..." where it would be wider.
void DrawLine(QPainter& painter, const std::string& text, const QRectF& place, const QFont& font,
              const QColor& colour, Qt::AlignmentFlag alignment) {
  painter.setFont(font);
  painter.setPen(colour);
  const auto shown = QFontMetricsF(font).elidedText(Text(text), Qt::ElideRight, place.width());
  painter.drawText(place, static_cast<int>(alignment | Qt::AlignAbsolute | Qt::AlignTop) | Qt::TextSingleLine,
                   shown);
}

/// Two texts in one line, to its left and to its right. What one leaves the other may take; when both are
/// long, each has about its half.
void DrawSharedLine(QPainter& painter, const std::string& left, const std::string& right, const QRectF& place,
                    const QFont& font, const QColor& colour) {
  const QFontMetricsF metrics(font);
  const double between = place.width() / 100, half = (place.width() - between) / 2;
  const double wanted = metrics.horizontalAdvance(Text(left)) + kRounding,
               wantedRight = metrics.horizontalAdvance(Text(right)) + kRounding;
  const double width = std::min(wanted, std::max(half, place.width() - between - wantedRight));
  const auto from = place.left() + width + between;
  DrawLine(painter, left, {place.left(), place.top(), width, place.height()}, font, colour, Qt::AlignLeft);
  DrawLine(painter, right, {from, place.top(), place.right() - from, place.height()}, font, colour,
           Qt::AlignRight);
}

void DrawHeader(QPainter& painter, const report::Report& report, std::size_t page, std::size_t pages) {
  constexpr double kNumber = 1200, kLineHeight = 230;
  const auto fact = [&](std::size_t number) {
    return Labelled(report.words, report.pageHeader[number].label, report.pageHeader[number].value);
  };
  const auto line = [](int number, double from, double to) {
    return QRectF(kMargin + from, kHeaderTop + number * kLineHeight, to - from, kLineHeight);
  };
  DrawLine(painter, fact(0), line(0, 0, kUsable - kNumber), FontOf(kSmall, true), kInk, Qt::AlignLeft);
  DrawLine(painter, std::to_string(page + 1) + " / " + std::to_string(pages),
           line(0, kUsable - kNumber, kUsable), FontOf(kSmall, true), kInk, Qt::AlignRight);
  DrawSharedLine(painter, fact(1), fact(2) + "    " + fact(3), line(1, 0, kUsable), FontOf(kSmall), kQuiet);
  if (report.partial)
    DrawLine(painter, report.partialNotice, line(2, 0, kUsable), FontOf(kSmall, true),
             ColourOf(report::Standing::kOpen), Qt::AlignLeft);
  painter.setPen(QPen(kAccent, 12));
  const double y = kHeaderTop + 3 * kLineHeight + 50;
  painter.drawLine(QPointF(kMargin, y), QPointF(kMargin + kUsable, y));
}

void DrawWatermark(QPainter& painter, const report::Report& report) {
  painter.save();
  painter.translate(kPageWidth / 2, kPageHeight / 2);
  painter.rotate(-55);
  painter.setFont(FontOf(120, true));
  painter.setPen(kFaint);
  painter.drawText(QRectF(-kPageHeight / 2, -2000, kPageHeight, 4000), Qt::AlignCenter,
                   Text(report.words.partial).toUpper());
  painter.restore();
}

}  // namespace

void PdfPages::NewPage() {
  pages_.emplace_back();
  y_ = kBodyTop;
}

void PdfPages::Ensure(double height) {
  if (height > Room() && !AtTop() && height <= FullPage()) NewPage();
}

void PdfPages::Gap(double height) {
  if (!AtTop()) y_ += height;
}

void PdfPages::Mark(const std::string& title, int level) {
  bookmarks_.push_back({title, pages_.size() - 1, (y_ - 100) / kPoint, level});
}

std::string PdfPages::Write(const report::Report& report) const {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter writer(&buffer);
  writer.setResolution(kTwipsPerInch);
  writer.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF(0, 0, 0, 0)));
  QPainter painter;
  if (!painter.begin(&writer)) throw std::runtime_error("the pages cannot be drawn");
  for (std::size_t page = 0; page < pages_.size(); ++page) {
    if (page > 0 && !writer.newPage()) throw std::runtime_error("a page cannot be added");
    if (report.partial) DrawWatermark(painter, report);
    DrawHeader(painter, report, page, pages_.size());
    for (const auto& drawing : pages_[page]) drawing(painter);
  }
  if (!painter.end()) throw std::runtime_error("the pages cannot be finished");
  return bytes.toStdString();
}

}  // namespace bench::pdf

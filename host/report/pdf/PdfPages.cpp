#include "host/report/pdf/PdfPages.h"

#include <QBuffer>
#include <QFontMetricsF>
#include <QPageLayout>
#include <QPdfWriter>
#include <algorithm>
#include <stdexcept>

#include "host/report/drawing/TextBlock.h"

namespace host::report::pdf {
namespace {

constexpr double kSmall = 8;

/// The start of a text that is longer than any line: measuring all of it on each page takes too long.
QString StartOf(const std::string& text) { return drawing::Text(text).left(400); }

/// One line of text that ends with "..." where it would be wider.
void DrawLine(QPainter& painter, const std::string& text, const QRectF& place, const QFont& font,
              const QColor& colour, Qt::AlignmentFlag alignment) {
  painter.setFont(font);
  painter.setPen(colour);
  const auto shown = QFontMetricsF(font).elidedText(StartOf(text), Qt::ElideRight, place.width());
  painter.drawText(place, static_cast<int>(alignment | Qt::AlignAbsolute | Qt::AlignTop) | Qt::TextSingleLine,
                   shown);
}

/// The lines at the top of a page, from above.
class Header {
 public:
  Header(QPainter& painter, const report::Report& report) : painter_(painter), report_(report) {}

  void Draw(std::size_t page, std::size_t pages) {
    constexpr double kNumber = 1200;
    DrawLine(painter_, Fact(0), Line(0, drawing::kUsable - kNumber), drawing::FontOf(kSmall, true),
             drawing::kInk, Qt::AlignLeft);
    DrawLine(painter_, std::to_string(page + 1) + " / " + std::to_string(pages),
             Line(drawing::kUsable - kNumber, drawing::kUsable), drawing::FontOf(kSmall, true), drawing::kInk,
             Qt::AlignRight);
    y_ += kLineHeight;
    DrawLine(painter_, Fact(1), Line(0, drawing::kUsable), drawing::FontOf(kSmall), drawing::kQuiet,
             Qt::AlignLeft);
    y_ += kLineHeight;
    const auto date = Line(0, std::min(WidthOf(Fact(2)), drawing::kUsable / 2));
    DrawLine(painter_, Fact(2), date, drawing::FontOf(kSmall), drawing::kQuiet, Qt::AlignLeft);
    DrawLine(painter_, Fact(3), Line(date.width() + kBetween, drawing::kUsable), drawing::FontOf(kSmall),
             drawing::kQuiet, Qt::AlignRight);
    y_ += kLineHeight;
    for (const auto& mark : report_.marks) Mark(mark);
    painter_.setPen(QPen(drawing::kAccent, 12));
    painter_.drawLine(QPointF(drawing::kMargin, y_ + kBelow),
                      QPointF(drawing::kMargin + drawing::kUsable, y_ + kBelow));
  }

 private:
  static constexpr double kLineHeight = 220, kStrongHeight = 270, kBelow = 50, kBetween = 100;

  std::string Fact(std::size_t number) const {
    const auto& fact = report_.pageHeader[number];
    return Labelled(report_.words, fact.label, fact.value);
  }

  static double WidthOf(const std::string& text) {
    constexpr double kRounding = 2;
    return QFontMetricsF(drawing::FontOf(kSmall)).horizontalAdvance(StartOf(text)) + kRounding;
  }

  QRectF Line(double from, double to) const { return {drawing::kMargin + from, y_, to - from, kLineHeight}; }

  void Mark(const report::PageMark& mark) {
    if (!mark.strong) {
      DrawLine(painter_, mark.text, Line(0, drawing::kUsable), drawing::FontOf(kSmall, true),
               drawing::ColourOf(report::Standing::kOpen), Qt::AlignLeft);
      y_ += kLineHeight;
      return;
    }
    painter_.fillRect(QRectF(drawing::kMargin, y_, drawing::kUsable, kStrongHeight), Qt::black);
    DrawLine(painter_, mark.text,
             QRectF(drawing::kMargin + 80, y_ + 20, drawing::kUsable - 160, kStrongHeight),
             drawing::FontOf(9.5, true), Qt::white, Qt::AlignLeft);
    y_ += kStrongHeight + 30;
  }

  QPainter& painter_;
  const report::Report& report_;
  double y_ = drawing::kHeaderTop;
};

void DrawWatermark(QPainter& painter, const report::PageMark& mark) {
  painter.save();
  painter.translate(drawing::kPageWidth / 2, drawing::kPageHeight / 2);
  painter.rotate(-55);
  painter.setFont(drawing::FontOf(120, true));
  painter.setPen(mark.strong ? drawing::kFaintStrong : drawing::kFaint);
  painter.drawText(QRectF(-drawing::kPageHeight / 2, -2000, drawing::kPageHeight, 4000), Qt::AlignCenter,
                   drawing::Text(mark.word).toUpper());
  painter.restore();
}

}  // namespace

void PdfPages::NewPage() {
  pages_.emplace_back();
  y_ = drawing::kBodyTop;
}

void PdfPages::Ensure(double height) {
  if (height > Room() && !AtTop() && height <= FullPage()) NewPage();
}

void PdfPages::Gap(double height) {
  if (!AtTop()) y_ += height;
}

void PdfPages::Line() {
  if (AtTop()) return;
  Draw([y = y_ + 200](QPainter& painter) {
    painter.setPen(QPen(drawing::kLine, 14));
    painter.drawLine(QPointF(drawing::kMargin, y), QPointF(drawing::kMargin + drawing::kUsable, y));
  });
}

void PdfPages::Mark(const std::string& title, int level) {
  bookmarks_.push_back({title, pages_.size() - 1, (y_ - 100) / drawing::kPoint, level});
}

std::string PdfPages::Write(const report::Report& report) const {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter writer(&buffer);
  writer.setTitle(drawing::Text(CaptionOf(report)));
  writer.setCreator("orvik-bench");
  writer.setResolution(drawing::kTwipsPerInch);
  writer.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF(0, 0, 0, 0)));
  QPainter painter;
  if (!painter.begin(&writer)) throw std::runtime_error("the pages cannot be drawn");
  for (std::size_t page = 0; page < pages_.size(); ++page) {
    if (page > 0 && !writer.newPage()) throw std::runtime_error("a page cannot be added");
    if (!report.marks.empty()) DrawWatermark(painter, report.marks.front());
    Header(painter, report).Draw(page, pages_.size());
    for (const auto& drawing : pages_[page]) drawing(painter);
  }
  if (!painter.end()) throw std::runtime_error("the pages cannot be finished");
  return bytes.toStdString();
}

}  // namespace host::report::pdf

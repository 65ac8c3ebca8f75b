#include "host/report/pdf/PdfTable.h"

#include <algorithm>

#include "host/report/drawing/DrawSign.h"

namespace host::report::pdf {
namespace {

constexpr double kPadding = 100, kSign = 170, kSignRoom = 260;

}  // namespace

TableCell TextCell(const std::string& text, const drawing::TextStyle& style) { return {{{text}}, style}; }

TableCell WordCell(report::Standing standing, const std::string& word) {
  return {{{word}}, {9.5, true, drawing::ColourOf(standing)}, kSignRoom, standing};
}

PdfTable::Row PdfTable::Laid(const std::vector<TableCell>& cells) const {
  Row row;
  double left = drawing::kMargin;
  for (std::size_t i = 0; i < cells.size(); ++i) {
    const auto& cell = cells[i];
    // Without a grid, the outer cells are flush with the text of the page.
    const bool grid = look_.rules == Rules::kGrid;
    const double from = left + (i > 0 || grid ? kPadding : 0) + cell.indent;
    left += columns_[i].width;
    const double to = left - (i + 1 < columns_.size() || grid ? kPadding : 0);
    drawing::TextBlock text(cell.text, to - from, cell.style, columns_[i].alignment);
    const double height = cell.draw ? cell.height : text.Height();
    row.cells.push_back({cell, text, {from, look_.above, to - from, height}});
    row.height = std::max(row.height, height + 2 * look_.above);
  }
  return row;
}

double PdfTable::Height() const {
  double height = 0;
  for (const auto* rows : {&head_, &rows_})
    for (const auto& row : *rows) height += row.height;
  return height;
}

void PdfTable::Place(PdfPages& pages) const {
  // A head needs a row below it on its page.
  double least = rows_.empty() ? 0 : std::min(rows_.front().height, PdfPages::FullPage() / 4);
  for (const auto& row : head_) least += row.height;
  pages.Ensure(least);
  PlaceHead(pages);
  for (const auto& row : rows_) PlaceRow(pages, row);
}

void PdfTable::PlaceHead(PdfPages& pages) const {
  for (const auto& row : head_) {
    std::vector<std::size_t> next(row.cells.size(), 0);
    PlaceSlice(pages, row, next);
  }
}

void PdfTable::PlaceRow(PdfPages& pages, const Row& row) const {
  constexpr double kThreeLines = 3 * 16 * drawing::kPoint;
  std::vector<std::size_t> next(row.cells.size(), 0);
  if (row.height > pages.Room() && (row.height <= PdfPages::FullPage() / 2 || pages.Room() < kThreeLines)) {
    pages.NewPage();
    PlaceHead(pages);
  }
  while (PlaceSlice(pages, row, next)) {
    pages.NewPage();
    PlaceHead(pages);
  }
}

/// Places what fits of the row from the lines `next` on; true if there is more.
bool PdfTable::PlaceSlice(PdfPages& pages, const Row& row, std::vector<std::size_t>& next) const {
  const double top = pages.Y();
  double height = 0;
  bool more = false;
  for (std::size_t i = 0; i < row.cells.size(); ++i) {
    const auto& [cell, text, place] = row.cells[i];
    const auto first = next[i];
    if (cell.draw) {
      if (first == 0)
        pages.Draw(
            [draw = cell.draw, at = place.translated(0, top)](QPainter& painter) { draw(painter, at); });
      next[i] = 1;
      height = std::max(height, first == 0 ? place.height() : 0);
      continue;
    }
    const auto count = text.Fitting(first, pages.Room() - 2 * look_.above);
    next[i] += count;
    more = more || next[i] < text.Lines();
    height = std::max(height, text.HeightOf(first, count));
    pages.Draw([text, first, count, sign = cell.sign,
                at = QPointF(place.left(), top + look_.above)](QPainter& painter) {
      if (sign && first == 0)
        drawing::DrawSign(painter, *sign, {at.x() - kSignRoom, at.y() + 22, kSign, kSign},
                          drawing::ColourOf(*sign));
      text.Draw(painter, at, first, count);
    });
  }
  DrawRules(pages, height + 2 * look_.above);
  pages.Advance(height + 2 * look_.above);
  return more;
}

void PdfTable::DrawRules(PdfPages& pages, double height) const {
  if (look_.rules == Rules::kNone) return;
  pages.Draw([y = pages.Y(), height, look = look_, columns = columns_](QPainter& painter) {
    painter.setPen(look.pen);
    painter.setBrush(Qt::NoBrush);
    double x = drawing::kMargin;
    for (const auto& column : columns) {
      if (look.rules == Rules::kGrid)
        painter.drawRect(QRectF(x, y, column.width, height));
      else
        painter.drawLine(QPointF(x, y + height), QPointF(x + column.width, y + height));
      x += column.width;
    }
  });
}

}  // namespace host::report::pdf

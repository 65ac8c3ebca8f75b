#include "host/pdf/PdfTable.h"

#include <algorithm>

namespace bench::pdf {
namespace {

constexpr double kWordSign = 170, kSignRoom = 260;

}  // namespace

TableBlock::TableBlock(std::vector<Column> columns, Rules rules, double padding, double above)
    : columns_(std::move(columns)), rules_(rules), padding_(padding), above_(above) {}

TableBlock::Row& TableBlock::AddHead() { return head_.emplace_back(Row(*this)); }
TableBlock::Row& TableBlock::AddRow() { return rows_.emplace_back(Row(*this)); }

double TableBlock::Row::NextWidth() const { return table_->InnerWidth(cells_.size()); }
Qt::AlignmentFlag TableBlock::Row::NextAlignment() const { return table_->columns_[cells_.size()].alignment; }

void TableBlock::Row::Text(const std::string& text, const TextStyle& style) {
  auto aligned = style;
  aligned.alignment = NextAlignment();
  PdfText broken(text, NextWidth(), aligned);
  cells_.push_back({{broken}, {}, broken.Height(), {}});
}

void TableBlock::Row::Text(const report::Cell& cell, const TextStyle& style) {
  auto aligned = style;
  aligned.alignment = NextAlignment();
  PdfText broken(cell, NextWidth(), aligned);
  cells_.push_back({{broken}, {}, broken.Height(), {}});
}

void TableBlock::Row::Word(report::Standing standing, const std::string& word) {
  PdfText broken(word, NextWidth() - kSignRoom, {9.5, true, ColourOf(standing)});
  cells_.push_back({{broken}, standing, broken.Height(), {}});
}

void TableBlock::Row::Drawing(double height, std::function<void(QPainter&, const QRectF&)> draw) {
  cells_.push_back({{}, {}, height, std::move(draw)});
}

double TableBlock::Row::Height() const {
  double height = 0;
  for (const auto& cell : cells_) height = std::max(height, cell.height);
  return height;
}

double TableBlock::X(std::size_t column) const {
  double x = kMargin;
  for (std::size_t i = 0; i < column; ++i) x += columns_[i].width;
  return x;
}

double TableBlock::InnerLeft(std::size_t column) const {
  return X(column) + (column > 0 || rules_ == Rules::kGrid ? padding_ : 0);
}

double TableBlock::InnerWidth(std::size_t column) const {
  const bool last = column + 1 == columns_.size() && rules_ != Rules::kGrid;
  return X(column) + columns_[column].width - (last ? 0 : padding_) - InnerLeft(column);
}

double TableBlock::Height() const {
  double height = 0;
  for (const auto* rows : {&head_, &rows_}) {
    for (const auto& row : *rows) height += row.Height() + 2 * above_;
  }
  return height;
}

void TableBlock::Place(PdfPages& pages) const {
  PlaceHead(pages);
  for (const auto& row : rows_) PlaceRow(pages, row);
  if (rules_ == Rules::kGrid) pages.Advance(20);
}

void TableBlock::PlaceHead(PdfPages& pages) const {
  if (head_.empty()) return;
  double height = 0;
  for (const auto& row : head_) height += row.Height() + 2 * above_;
  // A head alone at the bottom of a page would head nothing.
  const double first =
      rows_.empty() ? 0 : std::min(rows_.front().Height() + 2 * above_, PdfPages::FullPage() / 4);
  pages.Ensure(height + first);
  for (const auto& row : head_) {
    std::vector<std::size_t> next(row.cells_.size(), 0);
    PlaceSlice(pages, row, next);
  }
}

void TableBlock::PlaceRow(PdfPages& pages, const Row& row) const {
  const double height = row.Height() + 2 * above_;
  std::vector<std::size_t> next(row.cells_.size(), 0);
  const auto more = [&] {
    for (std::size_t i = 0; i < next.size(); ++i)
      if (!row.cells_[i].text.empty() && next[i] < row.cells_[i].text.front().Lines()) return true;
    return false;
  };
  const double usual = 12 * kPoint + 2 * above_;
  if (height > pages.Room() && (height <= PdfPages::FullPage() / 2 || pages.Room() < 3 * usual)) {
    pages.NewPage();
    PlaceHead(pages);
  }
  PlaceSlice(pages, row, next);
  while (more()) {
    pages.NewPage();
    PlaceHead(pages);
    PlaceSlice(pages, row, next);
  }
}

void TableBlock::PlaceSlice(PdfPages& pages, const Row& row, std::vector<std::size_t>& next) const {
  const double top = pages.Y() + above_;
  double height = 0;
  for (std::size_t i = 0; i < row.cells_.size(); ++i) {
    const auto& cell = row.cells_[i];
    const double left = InnerLeft(i), width = InnerWidth(i);
    if (cell.draw && next[i] == 0) {
      next[i] = 1;
      pages.Draw([draw = cell.draw, place = QRectF(left, top, width, cell.height)](QPainter& painter) {
        draw(painter, place);
      });
      height = std::max(height, cell.height);
    }
    if (cell.text.empty()) continue;
    const auto& text = cell.text.front();
    const auto first = next[i];
    // At least one line, so that a row always comes to its end.
    const auto count =
        std::max<std::size_t>(text.Fitting(first, pages.Room() - 2 * above_), first < text.Lines() ? 1 : 0);
    next[i] += count;
    height = std::max(height, text.HeightOf(first, count));
    pages.Draw([text, first, count, left, top, sign = cell.sign](QPainter& painter) {
      if (sign && first == 0)
        DrawSign(painter, *sign, {left, top + 22, kWordSign, kWordSign}, ColourOf(*sign));
      text.Draw(painter, {left + (sign ? kSignRoom : 0), top}, first, count);
    });
  }
  DrawRules(pages, height + 2 * above_);
  pages.Advance(height + 2 * above_);
}

void TableBlock::DrawRules(PdfPages& pages, double height) const {
  if (rules_ == Rules::kNone) return;
  pages.Draw([y = pages.Y(), height, left = X(0), right = X(columns_.size()), grid = rules_ == Rules::kGrid,
              columns = columns_](QPainter& painter) {
    painter.setPen(QPen(kLine, 14));
    painter.setBrush(Qt::NoBrush);
    if (!grid) {
      painter.drawLine(QPointF(left, y + height), QPointF(right, y + height));
      return;
    }
    double x = left;
    for (const auto& column : columns) {
      painter.drawRect(QRectF(x, y, column.width, height));
      x += column.width;
    }
  });
}

}  // namespace bench::pdf

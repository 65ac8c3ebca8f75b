#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "host/report/drawing/TextBlock.h"
#include "host/report/pdf/PdfPages.h"

namespace host::report::pdf {

/// What a cell shows: a text, with the sign of a standing before it, or a drawing.
struct TableCell {
  report::Cell text;
  drawing::TextStyle style = {};
  double indent = 0;
  std::optional<report::Standing> sign = {};
  double height = 0;  ///< of the drawing
  std::function<void(QPainter&, const QRectF&)> draw = {};
};

TableCell TextCell(const std::string& text, const drawing::TextStyle& style = {});
/// A sign and a word in its colour.
TableCell WordCell(report::Standing standing, const std::string& word);

/// Rows of cells; everything in the report is one. Its head is repeated on every page, and a row that is
/// higher than a page is cut between its lines.
class PdfTable {
 public:
  struct Column {
    double width = 0;
    Qt::AlignmentFlag alignment = Qt::AlignLeft;
  };

  enum class Rules {
    kNone,
    kRows,  ///< a line below each row
    kGrid   ///< boxes
  };

  struct Look {
    Rules rules = Rules::kNone;
    double above = 0;  ///< space above and below the text of a cell
    QPen pen = QPen(drawing::kLine, 14);
  };

  PdfTable(std::vector<Column> columns, Look look) : columns_(std::move(columns)), look_(std::move(look)) {}

  void AddHead(const std::vector<TableCell>& cells) { head_.push_back(Laid(cells)); }
  void AddRow(const std::vector<TableCell>& cells) { rows_.push_back(Laid(cells)); }

  /// On a page that has room for all of it.
  double Height() const;
  void Place(PdfPages& pages) const;

 private:
  struct LaidCell {
    TableCell cell;
    drawing::TextBlock text;
    QRectF place;  ///< of the text or the drawing, from the top of the row
  };
  struct Row {
    std::vector<LaidCell> cells;
    double height = 0;
  };

  Row Laid(const std::vector<TableCell>& cells) const;
  void PlaceHead(PdfPages& pages) const;
  void PlaceRow(PdfPages& pages, const Row& row) const;
  bool PlaceSlice(PdfPages& pages, const Row& row, std::vector<std::size_t>& next) const;
  void DrawRules(PdfPages& pages, double height) const;

  std::vector<Column> columns_;
  Look look_;
  std::vector<Row> head_, rows_;
};

}  // namespace host::report::pdf

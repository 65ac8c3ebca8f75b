#pragma once

#include <functional>
#include <vector>

#include "host/pdf/PdfBlocks.h"

namespace bench::pdf {

/// A table: rows of texts and drawings. Its head is repeated on every page; a row that no page has room for
/// is cut between its lines.
class TableBlock final : public Block {
 public:
  struct Column {
    double width = 0;
    Qt::AlignmentFlag alignment = Qt::AlignLeft;
  };

  enum class Rules {
    kNone,
    kRows,  ///< a thin line above each row
    kGrid   ///< boxes
  };

  /// Adds cells to a row, from the left.
  class Row {
   public:
    void Text(const std::string& text, const TextStyle& style = {});
    void Text(const report::Cell& cell, const TextStyle& style);
    /// A sign and a word.
    void Word(report::Standing standing, const std::string& word);
    void Drawing(double height, std::function<void(QPainter&, const QRectF&)> draw);

   private:
    friend class TableBlock;
    struct Cell {
      std::vector<PdfText> text;  ///< one, or none
      std::optional<report::Standing> sign;
      double height = 0;
      std::function<void(QPainter&, const QRectF&)> draw;
    };
    explicit Row(const TableBlock& table) : table_(&table) {}
    double NextWidth() const;
    Qt::AlignmentFlag NextAlignment() const;
    double Height() const;

    const TableBlock* table_;
    std::vector<Cell> cells_;
  };

  /// @param padding of the cells, left and right; the first and the last of a table without grid have none
  /// outside
  TableBlock(std::vector<Column> columns, Rules rules, double padding = 100, double above = 80);

  Row& AddHead();
  Row& AddRow();

  double Height() const override;
  void Place(PdfPages& pages) const override;

 private:
  double X(std::size_t column) const;
  double InnerLeft(std::size_t column) const;
  double InnerWidth(std::size_t column) const;
  void PlaceHead(PdfPages& pages) const;
  void PlaceRow(PdfPages& pages, const Row& row) const;
  void PlaceSlice(PdfPages& pages, const Row& row, std::vector<std::size_t>& next) const;
  void DrawRules(PdfPages& pages, double height) const;

  std::vector<Column> columns_;
  Rules rules_;
  double padding_, above_;
  std::vector<Row> head_, rows_;
};

}  // namespace bench::pdf

#include "host/report/TextTable.h"

#include <algorithm>
#include <numeric>

#include "host/base/TextCells.h"
#include "host/report/TextLines.h"

namespace host::report {
namespace {

using report::Row;
using report::Table;

constexpr std::size_t kNarrowest = 8;

class Printer {
 public:
  Printer(const Table& table, std::size_t width) : table_(table), widths_(table.columns.size()) {
    for (const auto* rows : {&table.header, &table.rows}) {
      for (const auto& row : *rows) Measure(row);
    }
    Narrow(width);
  }

  std::string Print() {
    Rule('-');
    for (const auto& row : table_.header) Print(row);
    if (!table_.header.empty()) Rule('=');
    for (const auto& row : table_.rows) Print(row);
    Rule('-');
    return std::move(text_);
  }

 private:
  bool Bordered() const { return table_.border != 0; }

  void Measure(const Row& row) {
    for (std::size_t column = 0; column < row.size(); ++column) {
      for (const auto& line : text::Wrapped(report::PlainText(row[column]), std::string::npos))
        widths_[column] = std::max(widths_[column], CellsOf(line));
    }
  }

  /// The widest columns give way until the whole fits.
  void Narrow(std::size_t width) {
    if (widths_.empty()) return;
    const auto between = (Bordered() ? 3 : 2) * widths_.size() + 1;
    while (std::accumulate(widths_.begin(), widths_.end(), between) > width) {
      auto& widest = *std::max_element(widths_.begin(), widths_.end());
      if (widest <= kNarrowest) return;
      --widest;
    }
  }

  void Rule(char dash) {
    if (!Bordered()) return;
    for (const auto width : widths_) text_ += "+" + std::string(width + 2, dash);
    text_ += "+\n";
  }

  void Print(const Row& row) {
    std::vector<std::vector<std::string>> cells(widths_.size(), {""});
    std::size_t height = 1;
    for (std::size_t column = 0; column < row.size(); ++column) {
      cells[column] = text::Wrapped(report::PlainText(row[column]), widths_[column]);
      height = std::max(height, cells[column].size());
    }
    for (std::size_t line = 0; line < height; ++line) PrintLine(cells, line);
  }

  void PrintLine(const std::vector<std::vector<std::string>>& cells, std::size_t line) {
    std::string printed;
    for (std::size_t column = 0; column < cells.size(); ++column) {
      const auto& content = line < cells[column].size() ? cells[column][line] : std::string();
      const auto filled = text::Filled(content, widths_[column], table_.columns[column].alignment);
      printed += Bordered() ? "| " + filled + " " : (column == 0 ? "" : "  ") + filled;
    }
    if (Bordered()) printed += "|";
    printed.erase(printed.find_last_not_of(' ') + 1);
    text_ += printed + "\n";
  }

  const Table& table_;
  std::vector<std::size_t> widths_;
  std::string text_;
};

}  // namespace

std::string TextTable(const Table& table, std::size_t width) { return Printer(table, width).Print(); }

}  // namespace host::report

#include "host/report/TextReport.h"

#include <algorithm>

namespace bench {
namespace {

using report::Row;
using report::Table;

/// The lines of one cell, ready to be shown.
using Lines = std::vector<std::string>;

std::size_t Width(const std::string& text) {
  // Bytes that go on a character are not counted.
  return static_cast<std::size_t>(std::count_if(
      text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

Lines LinesOf(const report::Cell& cell) {
  Lines lines{""};
  for (const char letter : report::PlainText(cell)) {
    const auto code = static_cast<unsigned char>(letter);
    if (letter == '\n') {
      lines.emplace_back();
    } else if (code < 0x20 || code == 0x7F) {
      // U+2400 and its followers picture the control characters.
      lines.back() += "\xE2\x90";
      lines.back() += static_cast<char>(code == 0x7F ? 0xA1 : 0x80 + code);
    } else {
      lines.back() += letter;
    }
  }
  return lines;
}

std::string Padded(const std::string& text, std::size_t width, orvik::platform::Alignment alignment) {
  const auto rest = width - std::min(width, Width(text));
  const auto left = alignment == orvik::platform::Alignment::kLeft    ? 0
                    : alignment == orvik::platform::Alignment::kRight ? rest
                                                                      : rest / 2;
  return std::string(left, ' ') + text + std::string(rest - left, ' ');
}

class TablePrinter {
 public:
  explicit TablePrinter(const Table& table) : table_(table), widths_(table.columns.size()) {
    for (const auto* rows : {&table.header, &table.rows}) {
      for (const auto& row : *rows) Measure(row);
    }
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
      for (const auto& line : LinesOf(row[column])) widths_[column] = std::max(widths_[column], Width(line));
    }
  }

  /// Columns that are empty in every row are margins of the page; text needs none.
  bool Shown(std::size_t column) const { return widths_[column] > 0; }

  void Rule(char dash) {
    if (!Bordered()) return;
    for (std::size_t column = 0; column < widths_.size(); ++column) {
      if (Shown(column)) text_ += "+" + std::string(widths_[column] + 2, dash);
    }
    text_ += "+\n";
  }

  void Print(const Row& row) {
    std::vector<Lines> cells(widths_.size(), Lines{""});
    std::size_t height = 1;
    for (std::size_t column = 0; column < row.size(); ++column) {
      cells[column] = LinesOf(row[column]);
      height = std::max(height, cells[column].size());
    }
    for (std::size_t line = 0; line < height; ++line) PrintLine(cells, line);
  }

  void PrintLine(const std::vector<Lines>& cells, std::size_t line) {
    std::string text;
    for (std::size_t column = 0; column < cells.size(); ++column) {
      if (!Shown(column)) continue;
      const auto& content = line < cells[column].size() ? cells[column][line] : std::string();
      const auto padded = Padded(content, widths_[column], table_.columns[column].alignment);
      if (Bordered()) {
        text += "| " + padded + " ";
      } else {
        text += (text.empty() ? "" : "  ") + padded;
      }
    }
    if (Bordered()) text += "|";
    text_ += text + "\n";
  }

  const Table& table_;
  std::vector<std::size_t> widths_;
  std::string text_;
};

}  // namespace

std::string TextReport(const ReportObject& report) {
  std::string text;
  for (const auto& table : report.Tables()) {
    if (!text.empty()) text += "\n";
    text += TablePrinter(table).Print();
  }
  return text;
}

}  // namespace bench

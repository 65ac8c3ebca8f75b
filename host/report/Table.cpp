#include "host/report/Table.h"

#include "OrvikTypeLib/HostError.h"
#include "host/base/Text.h"
#include "host/base/Tr.h"
#include "host/base/VisibleText.h"

namespace host::report {
namespace {

constexpr char kMarkup[] = "\\|;{}";

[[noreturn]] void RefuseMarkup(const std::string& reason) {
  throw orvik::HostError(orvik::HostError::kInvalidArgument, "OrvikTypeLib.Report",
                         Tr("the table's markup is malformed: %%1", {reason}));
}

bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

Column ParseColumn(std::string_view text) {
  using orvik::platform::Alignment;
  const std::string whole(text);
  Column column;
  const auto mark = text.empty() ? ' ' : text.front();
  if (mark != '<' && mark != '>' && mark != '^')
    RefuseMarkup(Tr("the column \"%%1\" has no alignment mark", {whole}));
  column.alignment = mark == '<' ? Alignment::kLeft : mark == '>' ? Alignment::kRight : Alignment::kCentre;
  text.remove_prefix(1);
  column.ruled = text.starts_with('+');
  if (column.ruled) text.remove_prefix(1);
  column.unbroken = text.starts_with('!');
  if (column.unbroken) text.remove_prefix(1);
  const auto width = WholeNumber(text);
  if (!width || text.front() == '+' || text.front() == '-')
    RefuseMarkup(Tr("the column \"%%1\" has no width", {whole}));
  column.width = *width;
  return column;
}

/// Reads body or header rows character by character.
class RowReader {
 public:
  explicit RowReader(std::size_t columns) : columns_(columns) {}

  std::vector<Row> Read(std::string_view markup) {
    for (std::size_t i = 0; i < markup.size(); ++i) {
      switch (markup[i]) {
        case '\\':
          i = ReadControl(markup, i);
          break;
        case '{':
          if (inGroup_) RefuseMarkup(Tr("a group is inside another one"));
          inGroup_ = true;
          break;
        case '}':
          if (!inGroup_) RefuseMarkup(Tr("a \"}\" has no \"{\""));
          EndGroup();
          break;
        case '|':
          EndCell();
          break;
        case ';':
          EndCell();
          if (row_.size() > columns_) RefuseMarkup(Tr("a row has more cells than the table has columns"));
          rows_.push_back(std::move(row_));
          row_.clear();
          break;
        default:
          Text(markup[i]);
      }
    }
    if (inGroup_) RefuseMarkup(Tr("a group is not closed"));
    if (!row_.empty() || !cell_.empty()) RefuseMarkup(Tr("the last row has no \";\""));
    return std::move(rows_);
  }

 private:
  std::size_t ReadControl(std::string_view markup, std::size_t at) {
    if (at + 1 == markup.size()) RefuseMarkup(Tr("it ends with \"%%1\"", {"\\"}));
    if (!IsLetter(markup[at + 1])) {
      Text(markup[at + 1]);
      return at + 1;
    }
    std::size_t end = at + 1;
    while (end < markup.size() && IsLetter(markup[end])) ++end;
    const auto control = markup.substr(at + 1, end - at - 1);
    if (!inGroup_) RefuseMarkup(Tr("the control \"%%1\" is outside a group", {"\\" + std::string(control)}));
    if (control == "b") {
      bold_ = true;
    } else if (control == "i") {
      italic_ = true;
    } else {
      RefuseMarkup(Tr("the control \"%%1\" is unknown", {"\\" + std::string(control)}));
    }
    // One blank after a control belongs to it.
    return end < markup.size() && markup[end] == ' ' ? end : end - 1;
  }

  void Text(char letter) {
    if (cell_.empty() || cell_.back().bold != bold_ || cell_.back().italic != italic_)
      cell_.push_back({"", bold_, italic_});
    cell_.back().text += letter;
  }

  void EndGroup() { inGroup_ = bold_ = italic_ = false; }

  void EndCell() {
    if (inGroup_) RefuseMarkup(Tr("a cell ends inside a group"));
    row_.push_back(std::move(cell_));
    cell_.clear();
  }

  std::size_t columns_;
  std::vector<Row> rows_;
  Row row_;
  Cell cell_;
  bool inGroup_ = false, bold_ = false, italic_ = false;
};

}  // namespace

std::string PlainText(const Cell& cell) {
  std::string text;
  for (const auto& run : cell) text += run.text;
  return text;
}

Table Shown(const Table& table) {
  std::vector<bool> used(table.columns.size());
  for (const auto* rows : {&table.header, &table.rows}) {
    for (const auto& row : *rows) {
      for (std::size_t column = 0; column < row.size(); ++column)
        if (!PlainText(row[column]).empty()) used[column] = true;
    }
  }
  auto shown = table;
  shown.columns.clear();
  for (std::size_t column = 0; column < used.size(); ++column)
    if (used[column]) shown.columns.push_back(table.columns[column]);
  for (auto* rows : {&shown.header, &shown.rows}) {
    for (auto& row : *rows) {
      Row cells;
      for (std::size_t column = 0; column < used.size(); ++column) {
        if (!used[column]) continue;
        cells.push_back(column < row.size() ? std::move(row[column]) : Cell{});
        for (auto& run : cells.back()) run.text = VisibleText(run.text, LineEnds::kKept);
      }
      row = std::move(cells);
    }
  }
  return shown;
}

std::vector<Column> ParseFormat(std::string_view markup) {
  if (!markup.ends_with(';')) RefuseMarkup(Tr("the column format has no \";\" at its end"));
  markup.remove_suffix(1);
  std::vector<Column> columns;
  while (true) {
    const auto end = markup.find('|');
    columns.push_back(ParseColumn(markup.substr(0, end)));
    if (end == std::string_view::npos) return columns;
    markup.remove_prefix(end + 1);
  }
}

std::vector<Row> ParseRows(std::string_view markup, std::size_t columns) {
  return RowReader(columns).Read(markup);
}

std::string Escape(std::string_view text) {
  std::string escaped;
  escaped.reserve(text.size());
  for (const char letter : text) {
    if (std::string_view(kMarkup).find(letter) != std::string_view::npos) escaped += '\\';
    escaped += letter;
  }
  return escaped;
}

}  // namespace host::report

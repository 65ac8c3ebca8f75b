#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/Types.h"

/// Tables parsed from the plug-in's markup. Outputs use these, never the markup.
namespace host::report {

/// A piece of text in one style.
struct Run {
  std::string text;
  bool bold = false;
  bool italic = false;
  bool operator==(const Run&) const = default;
};

using Cell = std::vector<Run>;
using Row = std::vector<Cell>;

struct Column {
  orvik::platform::Alignment alignment = orvik::platform::Alignment::kLeft;
  /// Lines are drawn beside the column ("+").
  bool ruled = false;
  /// Text is kept on one line ("!").
  bool unbroken = false;
  orvik::platform::Twips width = 0;
};

struct Table {
  /// 7: box, columns and rows; 0: none.
  int border = 0;
  orvik::platform::Twips indent = 0;
  int headerRows = 0;
  std::vector<Column> columns;
  std::vector<Row> header;
  std::vector<Row> rows;
};

/// The cell's text without its styles.
std::string PlainText(const Cell& cell);

/// The table as it is shown: texts made visible (see `VisibleText`), without columns that are empty in every
/// row, which are page margins.
Table Shown(const Table& table);

/// "Columns separated by |, ended by ;": see `IReport`. `HostError` 5 when it is malformed.
std::vector<Column> ParseFormat(std::string_view markup);

/// Rows of cells. `HostError` 5 when the markup is malformed or a row has more cells than `columns`.
std::vector<Row> ParseRows(std::string_view markup, std::size_t columns);

/// The text with a "\" before every character of the markup.
std::string Escape(std::string_view text);

}  // namespace host::report

#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <vector>

/// The host's report markup: builds the three strings of a report table.
namespace keld::ReportMarkup {

/// Alignment marks of a column.
inline constexpr char kLeft = '<';
inline constexpr char kRight = '>';
inline constexpr char kCentred = '^';

/// One column of a table's format.
struct Column {
  char cMark = kLeft;
  bool fRuled = false;      ///< "+": lines around the column
  bool fExtra = false;      ///< "!", after the "+"
  std::int32_t lWidth = 0;  ///< width in twips
};

/// The column format, for example "<+560|>+!2240;".
std::string Format(std::initializer_list<Column> Columns);

/// One row, header or body: the cells separated by "|", ended by ";". An empty first cell makes a
/// margin. Cells are markup: escape other text with `IReport::Escape` first.
std::string Row(const std::vector<std::string>& asCells);

/// A heading: the cell's markup in bold italics.
std::string BoldItalic(const std::string& sMarkup);

}  // namespace keld::ReportMarkup

#include "plugin/base/ReportMarkup.h"

namespace keld::ReportMarkup {
namespace {

std::string ColumnText(const Column& column) {
  std::string sText(1, column.cMark);
  if (column.fRuled) sText += '+';
  if (column.fExtra) sText += '!';
  return sText + std::to_string(column.lWidth);
}

}  // namespace

std::string Format(std::initializer_list<Column> Columns) {
  std::vector<std::string> asColumns;
  for (const Column& column : Columns) asColumns.push_back(ColumnText(column));
  return Row(asColumns);
}

std::string Row(const std::vector<std::string>& asCells) {
  std::string sRow;
  for (std::size_t i = 0; i < asCells.size(); ++i) {
    if (i > 0) sRow += '|';
    sRow += asCells[i];
  }
  return sRow + ';';
}

std::string BoldItalic(const std::string& sMarkup) { return "{\\i\\b " + sMarkup + "}"; }

}  // namespace keld::ReportMarkup

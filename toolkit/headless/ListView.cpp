#include "toolkit/headless/ListView.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "OrvikTypeLib/HostError.h"
#include "toolkit/headless/IMetrics.h"
#include "toolkit/headless/TextSize.h"

namespace toolkit::headless {

using orvik::HostError;

ListView::ListView(std::shared_ptr<Desktop> desktop, std::string name)
    : Control(std::move(desktop), std::move(name)) {
  backColor_ = platform::kWindowBackground;
}

void ListView::AddColumn(const platform::ListColumn& column) {
  for (const auto& other : columns_) {
    if (other.key == column.key)
      Fail(HostError::kInvalidArgument,
           "list \"" + Name() + "\" already has a column \"" + column.key + "\"");
  }
  Apply([&] { columns_.push_back(column); });
}

std::vector<std::string> ListView::RowKeys() const {
  std::vector<std::string> keys;
  keys.reserve(rows_.size());
  for (const Row& row : rows_) keys.push_back(row.key);
  return keys;
}

void ListView::AddRow(const std::string& rowKey) {
  if (!rowIndex_.emplace(rowKey, rows_.size()).second)
    Fail(HostError::kInvalidArgument, "list \"" + Name() + "\" already has a row \"" + rowKey + "\"");
  rows_.push_back({rowKey, {}, {}});
  NotifyChanged();
}

void ListView::ClearRows() {
  // Destroyed last: destructors of tags may use this list.
  const auto rows = std::exchange(rows_, {});
  rowIndex_.clear();
  selectedRow_.clear();
  firstShown_ = 0;
  ensuredPlace_ = -1;
  NotifyChanged();
}

void ListView::SetRowTag(const std::string& rowKey, std::any tag) {
  std::swap(rows_[RowIndex(rowKey)].tag, tag);
}

platform::ListCell ListView::Cell(const std::string& rowKey, const std::string& columnKey) const {
  const Row& row = RowAt(rowKey);
  const std::size_t column = ColumnIndex(columnKey);
  return column < row.cells.size() ? row.cells[column] : platform::ListCell{};
}

void ListView::SetCell(const std::string& rowKey, const std::string& columnKey,
                       const platform::ListCell& cell) {
  Row& row = rows_[RowIndex(rowKey)];
  const std::size_t column = ColumnIndex(columnKey);
  if (row.cells.size() <= column) row.cells.resize(column + 1);
  const auto old = std::exchange(row.cells[column], cell);
  NotifyChanged();
}

void ListView::EnsureVisible(const std::string& rowKey) {
  const std::size_t row = RowIndex(rowKey);
  const auto shown = static_cast<std::size_t>(std::max(1, Bounds().height / kLineHeight - 1));
  if (row < firstShown_) firstShown_ = row;
  if (row >= firstShown_ + shown) firstShown_ = row - shown + 1;
  ensuredPlace_ = static_cast<int>(row);
  NotifyChanged();
}

void ListView::SelectRow(const std::string& rowKey) {
  selectedRow_ = RowAt(rowKey).key;
  NotifyChanged();
}

void ListView::ClickAt(const platform::MouseEvent& event) {
  const platform::Twips line = event.y / kLineHeight;
  ClickRow(line >= 1 ? static_cast<int>(firstShown_) + line - 1 : -1, event);
}

void ListView::ClickRow(int row, const platform::MouseEvent& event) {
  const auto self = shared_from_this();
  if (!BeginAction()) return;
  if (row >= 0 && row < RowCount()) SelectRow(RowKeyAt(row));
  mouseUp_.Raise(event);
}

const platform::ListCell* ListView::CellAt(int row, int column) const {
  const auto& cells = rows_[static_cast<std::size_t>(row)].cells;
  const auto place = static_cast<std::size_t>(column);
  return place < cells.size() ? &cells[place] : nullptr;
}

int ListView::SelectedPlace() const {
  const auto found = rowIndex_.find(selectedRow_);
  return found == rowIndex_.end() ? -1 : static_cast<int>(found->second);
}

platform::Size ListView::NaturalSize() const {
  platform::Twips width = 0;
  for (const auto& column : columns_) width += column.width;
  const platform::Size character = Metrics().Character();
  return {std::max(width, 20 * character.width),
          8 * (character.height + Metrics().Padding(Part::kListRow).height)};
}

std::size_t ListView::RowIndex(const std::string& rowKey) const {
  const auto found = rowIndex_.find(rowKey);
  if (found == rowIndex_.end())
    Fail(HostError::kSubscriptOutOfRange, "list \"" + Name() + "\" has no row \"" + rowKey + "\"");
  return found->second;
}

std::size_t ListView::ColumnIndex(const std::string& columnKey) const {
  const auto found = std::find_if(columns_.begin(), columns_.end(), [&](const platform::ListColumn& column) {
    return column.key == columnKey;
  });
  if (found == columns_.end())
    Fail(HostError::kSubscriptOutOfRange, "list \"" + Name() + "\" has no column \"" + columnKey + "\"");
  return static_cast<std::size_t>(std::distance(columns_.begin(), found));
}

}  // namespace toolkit::headless

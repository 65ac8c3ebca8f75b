#pragma once

#include <any>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/IListView.h"
#include "toolkit/headless/Control.h"

namespace toolkit::headless {

/// A report list. A click selects the row under the pointer; rows are one line high below a line of captions.
class ListView final : public Control, public virtual platform::IListView {
 public:
  ListView(std::shared_ptr<Desktop> desktop, std::string name);

  void AddColumn(const platform::ListColumn& column) override;
  std::vector<platform::ListColumn> Columns() const override { return columns_; }
  int RowCount() const override { return static_cast<int>(rows_.size()); }
  std::vector<std::string> RowKeys() const override;
  bool HasRow(const std::string& rowKey) const override { return rowIndex_.count(rowKey) != 0; }
  void AddRow(const std::string& rowKey) override;
  void ClearRows() override;
  std::any RowTag(const std::string& rowKey) const override { return RowAt(rowKey).tag; }
  void SetRowTag(const std::string& rowKey, std::any tag) override;
  platform::ListCell Cell(const std::string& rowKey, const std::string& columnKey) const override;
  void SetCell(const std::string& rowKey, const std::string& columnKey,
               const platform::ListCell& cell) override;
  void EnsureVisible(const std::string& rowKey) override;
  void SelectRow(const std::string& rowKey) override;
  /// Empty when no row is selected.
  std::string SelectedRow() const override { return selectedRow_; }
  platform::Event<const platform::MouseEvent&>& MouseUp() override { return mouseUp_; }
  void ClickAt(const platform::MouseEvent& event) override;
  /// The same if the row under the pointer is known; -1 for none.
  void ClickRow(int row, const platform::MouseEvent& event);

  /// Rows and cells by position, for display; the cell is null if it was never set.
  const std::string& RowKeyAt(int row) const { return rows_[static_cast<std::size_t>(row)].key; }
  const platform::ListCell* CellAt(int row, int column) const;
  /// The position of the selected row, and of the last row made visible; -1 for none.
  int SelectedPlace() const;
  int EnsuredPlace() const { return ensuredPlace_; }

  platform::Size NaturalSize() const override;
  bool CanFocus() const override { return true; }

 private:
  struct Row {
    std::string key;
    std::any tag;
    // By the position of the column; cells after the last one set are missing.
    std::vector<platform::ListCell> cells;
  };

  std::size_t RowIndex(const std::string& rowKey) const;
  const Row& RowAt(const std::string& rowKey) const { return rows_[RowIndex(rowKey)]; }
  std::size_t ColumnIndex(const std::string& columnKey) const;

  std::vector<platform::ListColumn> columns_;
  std::vector<Row> rows_;
  std::unordered_map<std::string, std::size_t> rowIndex_;
  std::string selectedRow_;
  std::size_t firstShown_ = 0;
  int ensuredPlace_ = -1;
  platform::Event<const platform::MouseEvent&> mouseUp_;
};

}  // namespace toolkit::headless

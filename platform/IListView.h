#pragma once

#include <any>
#include <string>
#include <vector>

#include "platform/Event.h"
#include "platform/IControl.h"

namespace orvik::platform {

/// One cell of a row, under the column of its key.
struct ListCell {
  std::string text;
  std::string toolTip;
  bool bold = false;
  Color color = kWindowText;
  std::any tag;
};

struct ListColumn {
  std::string key;
  std::string caption;
  Twips width = 0;
  Alignment alignment = Alignment::kLeft;
};

struct MouseEvent {
  int button = 0;
  int shift = 0;
  Twips x = 0;
  Twips y = 0;
};

/// A report list: columns by key, rows by key, the first column holding the row's own text. Rows are found in
/// constant time.
class IListView : public virtual IControl {
 public:
  virtual void AddColumn(const ListColumn& column) = 0;
  virtual std::vector<ListColumn> Columns() const = 0;

  virtual int RowCount() const = 0;
  /// Keys in the order of the rows.
  virtual std::vector<std::string> RowKeys() const = 0;
  virtual bool HasRow(const std::string& rowKey) const = 0;
  /// Adds a row at the end; a key that is already there is refused with an error.
  virtual void AddRow(const std::string& rowKey) = 0;
  virtual void ClearRows() = 0;
  virtual std::any RowTag(const std::string& rowKey) const = 0;
  virtual void SetRowTag(const std::string& rowKey, std::any tag) = 0;

  /// A copy of a cell; one that was never set is empty. An unknown row or column is an error.
  virtual ListCell Cell(const std::string& rowKey, const std::string& columnKey) const = 0;
  virtual void SetCell(const std::string& rowKey, const std::string& columnKey, const ListCell& cell) = 0;

  virtual void EnsureVisible(const std::string& rowKey) = 0;
  virtual void SelectRow(const std::string& rowKey) = 0;
  virtual std::string SelectedRow() const = 0;

  virtual Event<const MouseEvent&>& MouseUp() = 0;
  /// Presses and releases a mouse button over the list.
  virtual void ClickAt(const MouseEvent& event) = 0;
};

}  // namespace orvik::platform

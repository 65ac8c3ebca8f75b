#pragma once

#include <QAbstractTableModel>
#include <vector>

#include "toolkit/headless/ListView.h"

namespace host::qt {

/// Whether the cell belongs to a reading that failed.
inline constexpr int kFailedRole = Qt::UserRole;

/// The text of a failed row's first cell, with the word "failed".
QString FailedText(const QString& text);

/// The rows of a list for Qt's views. Cells are read on demand, so that a long list costs only its visible
/// rows.
class ListModel final : public QAbstractTableModel {
 public:
  explicit ListModel(const toolkit::headless::ListView& list) : list_(list) {}

  /// Notifies the views of changes in the list.
  void Update();

  int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : rows_; }
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  const toolkit::headless::ListView& list_;
  // What the views were notified of.
  int rows_ = 0;
  std::vector<orvik::platform::ListColumn> columns_;
};

}  // namespace host::qt

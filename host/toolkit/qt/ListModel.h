#pragma once

#include <QAbstractTableModel>
#include <vector>

#include "host/toolkit/headless/ListView.h"

namespace bench::qt {

/// Whether the cell belongs to a reading that failed.
inline constexpr int kFailedRole = Qt::UserRole;

/// The text of a failed row's first cell, with the word that says so.
QString FailedText(const QString& text);

/// The rows of a list as Qt's views ask for them, one cell at a time: nothing is copied, and a long list
/// costs what is seen of it.
class ListModel final : public QAbstractTableModel {
 public:
  explicit ListModel(const headless::ListView& list) : list_(list) {}

  /// Tells the views what the list holds now.
  void Update();

  int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : rows_; }
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  const headless::ListView& list_;
  // What the views know of.
  int rows_ = 0;
  std::vector<orvik::platform::ListColumn> columns_;
};

}  // namespace bench::qt

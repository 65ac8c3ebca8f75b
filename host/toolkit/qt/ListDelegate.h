#pragma once

#include <QStyledItemDelegate>

namespace bench::qt {

/// Draws the cells of a list: their own colours stay legible in light and dark palettes and in a selected
/// row, and a row that failed has a sign and a word before its text.
class ListDelegate final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

}  // namespace bench::qt

#pragma once

#include <QStyledItemDelegate>

namespace host::qt {

/// Draws the cells of a list: their colours are legible in light and dark palettes and in selected rows, and
/// the text of a failed row starts with a sign and a word.
class ListDelegate final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

}  // namespace host::qt

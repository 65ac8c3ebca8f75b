#include "host/qt/ListModel.h"

#include <QFont>
#include <QPalette>

#include "host/base/Tr.h"
#include "host/qt/Conversions.h"
#include "host/qt/Units.h"

namespace host::qt {

namespace platform = orvik::platform;

namespace {

QVariant AlignmentIn(const platform::ListColumn& column) {
  switch (column.alignment) {
    case platform::Alignment::kRight:
      return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    case platform::Alignment::kCentre:
      return QVariant(Qt::AlignCenter);
    case platform::Alignment::kLeft:
      break;
  }
  return QVariant(Qt::AlignLeft | Qt::AlignVCenter);
}

QVariant FontOf(const platform::ListCell& cell) {
  if (!cell.bold) return {};
  QFont font;
  font.setBold(true);
  return font;
}

QVariant ColorOf(const platform::ListCell& cell) {
  // The style chooses the colour of plain text in a selected row.
  if (cell.color == platform::kWindowText) return {};
  return ToQt(cell.color, QPalette());
}

/// A plug-in marks a failed reading, and nothing else, with bold and red.
bool IsFailed(const platform::ListCell& cell) { return cell.bold && cell.color == platform::kRed; }

}  // namespace

QString FailedText(const QString& text) { return ToQt(Tr("failed: %%1", {FromQt(text)})); }

void ListModel::Update() {
  auto columns = list_.Columns();
  if (columns.size() != columns_.size()) {
    beginResetModel();
    columns_ = std::move(columns);
    rows_ = list_.RowCount();
    return endResetModel();
  }
  const int rows = list_.RowCount();
  if (rows > rows_) {
    beginInsertRows({}, rows_, rows - 1);
    rows_ = rows;
    endInsertRows();
  } else if (rows < rows_) {
    beginRemoveRows({}, rows, rows_ - 1);
    rows_ = rows;
    endRemoveRows();
  }
  if (rows_ > 0) Q_EMIT dataChanged(index(0, 0), index(rows_ - 1, columnCount() - 1));
}

int ListModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(columns_.size());
}

QVariant ListModel::data(const QModelIndex& index, int role) const {
  // The list may be shorter than the views know.
  if (!index.isValid() || index.row() >= list_.RowCount()) return {};
  if (role == Qt::TextAlignmentRole) return AlignmentIn(columns_[static_cast<std::size_t>(index.column())]);
  const platform::ListCell* cell = list_.CellAt(index.row(), index.column());
  if (!cell) return {};
  switch (role) {
    case Qt::DisplayRole:
      return ToQt(cell->text);
    case Qt::ToolTipRole:
      // Shows text that does not fit.
      return PlainToolTip(cell->toolTip.empty() ? cell->text : cell->toolTip);
    case Qt::FontRole:
      return FontOf(*cell);
    case Qt::ForegroundRole:
      return ColorOf(*cell);
    case kFailedRole:
      return IsFailed(*cell);
    case Qt::AccessibleTextRole:
      return index.column() == 0 && IsFailed(*cell) ? FailedText(ToQt(cell->text)) : ToQt(cell->text);
    default:
      return {};
  }
}

QVariant ListModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) return {};
  const auto& column = columns_[static_cast<std::size_t>(section)];
  if (role == Qt::DisplayRole) return ToQt(column.caption);
  if (role == Qt::TextAlignmentRole) return AlignmentIn(column);
  return {};
}

}  // namespace host::qt

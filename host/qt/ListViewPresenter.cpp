#include "host/qt/ListViewPresenter.h"

#include <QHeaderView>
#include <QMouseEvent>

#include "host/qt/Conversions.h"
#include "host/qt/ListDelegate.h"
#include "host/qt/Units.h"
#include "host/qt/WidgetMirror.h"

namespace host::qt {
namespace {

int ButtonOf(const QMouseEvent& event) {
  switch (event.button()) {
    case Qt::LeftButton:
      return 1;
    case Qt::RightButton:
      return 2;
    case Qt::MiddleButton:
      return 4;
    default:
      return 0;
  }
}

}  // namespace

ListViewPresenter::ListViewPresenter(WidgetMirror& mirror, toolkit::headless::Control& control)
    : PresenterFor(mirror, control, new QTreeView), list_(GetModel()) {
  QTreeView& shown = GetShown();
  shown.setModel(&list_);
  shown.setItemDelegate(new ListDelegate(&shown));
  shown.setRootIsDecorated(false);
  shown.setUniformRowHeights(true);
  shown.setAllColumnsShowFocus(true);
  shown.setSelectionBehavior(QAbstractItemView::SelectRows);
  shown.setEditTriggers(QAbstractItemView::NoEditTriggers);
  shown.header()->setSectionsMovable(false);
  WatchEvents(*shown.viewport());
  When(shown.selectionModel(), &QItemSelectionModel::currentRowChanged,
       [this](const QModelIndex& current) { Selected(current.row()); });
}

ListViewPresenter::~ListViewPresenter() {
  // The widget may outlive the model.
  if (Widget()) GetShown().setModel(nullptr);
}

void ListViewPresenter::SyncOwn() {
  const int columns = list_.columnCount();
  list_.Update();
  if (list_.columnCount() != columns) SyncColumns();
  SyncSelection();
}

void ListViewPresenter::SyncColumns() {
  QHeaderView& header = *GetShown().header();
  header.setStretchLastSection(false);
  const auto columns = GetModel().Columns();
  for (int place = 0; place < list_.columnCount(); ++place) {
    const auto& column = columns[static_cast<std::size_t>(place)];
    // Values are never cut; names share the remaining width.
    const bool name = column.alignment == orvik::platform::Alignment::kLeft;
    header.setSectionResizeMode(place, name ? QHeaderView::Stretch : QHeaderView::ResizeToContents);
    header.resizeSection(place, GetMirror().GetUnits().Pixels(column.width));
  }
}

void ListViewPresenter::SyncSelection() {
  const QModelIndex current = list_.index(GetModel().SelectedPlace(), 0);
  if (GetShown().currentIndex().row() != current.row())
    GetShown().selectionModel()->setCurrentIndex(
        current, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  const int ensured = GetModel().EnsuredPlace();
  if (std::exchange(ensured_, ensured) != ensured && ensured >= 0)
    GetShown().scrollTo(list_.index(ensured, 0));
}

bool ListViewPresenter::Filter(QObject& watched, QEvent& event) {
  if (event.type() == QEvent::MouseButtonRelease && &watched == GetShown().viewport())
    Clicked(static_cast<QMouseEvent&>(event));
  return Presenter::Filter(watched, event);
}

void ListViewPresenter::Clicked(const QMouseEvent& event) {
  const Units& units = GetMirror().GetUnits();
  const QPoint inViewport = event.position().toPoint();
  const QPoint inList = GetShown().viewport()->mapTo(&GetShown(), inViewport);
  const orvik::platform::MouseEvent mouse{ButtonOf(event), ShiftOf(event), units.Twips(inList.x()),
                                          units.Twips(inList.y())};
  const int row = GetShown().indexAt(inViewport).row();
  Forward([row, mouse](toolkit::headless::ListView& list) { list.ClickRow(row, mouse); });
}

void ListViewPresenter::Selected(int row) {
  if (row < 0) return;
  Forward([row](toolkit::headless::ListView& list) {
    if (row < list.RowCount()) list.SelectRow(list.RowKeyAt(row));
  });
}

}  // namespace host::qt

#include "host/qt/TreeViewPresenter.h"

#include <QHeaderView>

#include "host/qt/Conversions.h"

namespace host::qt {
namespace {

// The role of the node's key.
constexpr int kKeyRole = Qt::UserRole;

}  // namespace

TreeViewPresenter::TreeViewPresenter(WidgetMirror& mirror, toolkit::headless::Control& control)
    : PresenterFor(mirror, control, new QTreeWidget) {
  GetShown().setColumnCount(1);
  GetShown().setHeaderHidden(true);
  GetShown().setRootIsDecorated(false);
  GetShown().setUniformRowHeights(true);
  // Users can only change check marks.
  When(&GetShown(), &QTreeWidget::itemChanged, [this](QTreeWidgetItem* item) {
    Forward([key = FromQt(item->data(0, kKeyRole).toString())](toolkit::headless::TreeView& tree) {
      tree.ClickNode(key);
    });
  });
}

void TreeViewPresenter::SyncOwn() {
  const auto keys = GetModel().NodeKeys();
  QTreeWidget& shown = GetShown();
  const int count = static_cast<int>(keys.size());
  while (shown.topLevelItemCount() > count) delete shown.takeTopLevelItem(shown.topLevelItemCount() - 1);
  while (shown.topLevelItemCount() < count) {
    auto* item = new QTreeWidgetItem(&shown);
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable |
                   Qt::ItemNeverHasChildren);
  }
  for (int place = 0; place < count; ++place) {
    const auto& key = keys[static_cast<std::size_t>(place)];
    QTreeWidgetItem& item = *shown.topLevelItem(place);
    item.setData(0, kKeyRole, ToQt(key));
    item.setText(0, ToQt(GetModel().NodeCaption(key)));
    item.setCheckState(0, GetModel().Checked(key) ? Qt::Checked : Qt::Unchecked);
  }
}

}  // namespace host::qt

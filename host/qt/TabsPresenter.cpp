#include "host/qt/TabsPresenter.h"

#include <QEvent>
#include <algorithm>

#include "host/qt/Conversions.h"

namespace host::qt {

TabsPresenter::TabsPresenter(WidgetMirror& mirror, toolkit::headless::Control& control)
    : PresenterFor(mirror, control, new QWidget), bar_(*new QTabBar(&GetShown())) {
  bar_.setExpanding(false);
  When(&bar_, &QTabBar::currentChanged, [this](int place) {
    const auto keys = GetModel().Keys();
    if (place < 0 || place >= static_cast<int>(keys.size())) return;
    Forward(
        [key = keys[static_cast<std::size_t>(place)]](toolkit::headless::Tabs& tabs) { tabs.Choose(key); });
  });
}

void TabsPresenter::SyncOwn() {
  const toolkit::headless::Tabs& model = GetModel();
  const auto keys = model.Keys();
  // Pages are never removed.
  while (bar_.count() < static_cast<int>(keys.size())) bar_.addTab(QString());
  for (int place = 0; place < bar_.count(); ++place) {
    const auto& key = keys[static_cast<std::size_t>(place)];
    bar_.setTabText(place, WithAccessKey(model.PageCaption(key)));
    bar_.setTabIcon(place, QIcon(PictureOf(model.PageBitmap(key))));
    if (key == model.SelectedKey()) bar_.setCurrentIndex(place);
  }
}

bool TabsPresenter::Filter(QObject& watched, QEvent& event) {
  if (event.type() == QEvent::Resize && &watched == Widget())
    bar_.setGeometry(0, 0, GetShown().width(), bar_.sizeHint().height());
  return Presenter::Filter(watched, event);
}

}  // namespace host::qt

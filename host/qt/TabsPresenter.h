#pragma once

#include <QTabBar>
#include <QWidget>
#include <string>
#include <vector>

#include "host/qt/Presenter.h"
#include "toolkit/headless/Tabs.h"

namespace host::qt {

/// A tab bar; the model places the pages below it.
class TabsPresenter final : public PresenterFor<toolkit::headless::Tabs, QWidget> {
 public:
  TabsPresenter(WidgetMirror& mirror, toolkit::headless::Control& control);
  bool Filter(QObject& watched, QEvent& event) override;

 protected:
  void SyncOwn() override;

 private:
  QTabBar& bar_;
};

}  // namespace host::qt

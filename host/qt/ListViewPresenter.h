#pragma once

#include <QTreeView>

#include "host/qt/ListModel.h"
#include "host/qt/Presenter.h"
#include "toolkit/headless/ListView.h"

class QMouseEvent;

namespace host::qt {

class ListViewPresenter final : public PresenterFor<toolkit::headless::ListView, QTreeView> {
 public:
  ListViewPresenter(WidgetMirror& mirror, toolkit::headless::Control& control);
  ~ListViewPresenter() override;
  bool Filter(QObject& watched, QEvent& event) override;

 protected:
  void SyncOwn() override;
  orvik::platform::Color PlainBackColor() const override { return orvik::platform::kWindowBackground; }

 private:
  void SyncColumns();
  void SyncSelection();
  void Clicked(const QMouseEvent& event);
  void Selected(int row);

  ListModel list_;
  int ensured_ = -1;
};

}  // namespace host::qt

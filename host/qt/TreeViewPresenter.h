#pragma once

#include <QTreeWidget>

#include "host/qt/Presenter.h"
#include "toolkit/headless/TreeView.h"

namespace host::qt {

class TreeViewPresenter final : public PresenterFor<toolkit::headless::TreeView, QTreeWidget> {
 public:
  TreeViewPresenter(WidgetMirror& mirror, toolkit::headless::Control& control);

 protected:
  void SyncOwn() override;
  orvik::platform::Color PlainBackColor() const override { return orvik::platform::kWindowBackground; }
};

}  // namespace host::qt

#pragma once

#include <QTreeWidget>

#include "host/qt/Presenter.h"
#include "toolkit/headless/TreeView.h"

namespace bench::qt {

class TreeViewPresenter final : public PresenterFor<headless::TreeView, QTreeWidget> {
 public:
  TreeViewPresenter(WidgetMirror& mirror, headless::Control& control);

 protected:
  void SyncOwn() override;
  orvik::platform::Color PlainBackColor() const override { return orvik::platform::kWindowBackground; }
};

}  // namespace bench::qt

#pragma once

#include "host/toolkit/headless/Panel.h"
#include "host/toolkit/qt/Presenter.h"

namespace bench::qt {

/// A surface: a panel, or the site of a user control.
class PanelPresenter final : public PresenterFor<headless::Control, QWidget> {
 public:
  PanelPresenter(Stage& stage, headless::Control& control) : PresenterFor(stage, control, new QWidget) {}

 protected:
  void SyncOwn() override {}
};

}  // namespace bench::qt

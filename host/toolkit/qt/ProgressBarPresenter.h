#pragma once

#include <QProgressBar>

#include "host/toolkit/headless/ProgressBar.h"
#include "host/toolkit/qt/Presenter.h"

namespace bench::qt {

class ProgressBarPresenter final : public PresenterFor<headless::ProgressBar, QProgressBar> {
 public:
  ProgressBarPresenter(Stage& stage, headless::Control& control);

 protected:
  void SyncOwn() override;
};

}  // namespace bench::qt

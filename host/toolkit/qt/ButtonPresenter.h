#pragma once

#include <QPushButton>

#include "host/toolkit/headless/Button.h"
#include "host/toolkit/qt/Presenter.h"

namespace bench::qt {

class ButtonPresenter final : public PresenterFor<headless::Button, QPushButton> {
 public:
  ButtonPresenter(Stage& stage, headless::Control& control);
  /// Return clicks the button too, as it does in a dialog.
  bool Filter(QObject& watched, QEvent& event) override;

 protected:
  void SyncOwn() override;
};

}  // namespace bench::qt

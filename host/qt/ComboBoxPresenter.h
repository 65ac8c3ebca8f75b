#pragma once

#include <QComboBox>

#include "host/qt/Presenter.h"
#include "toolkit/headless/ComboBox.h"

namespace host::qt {

class ComboBoxPresenter final : public PresenterFor<toolkit::headless::ComboBox, QComboBox> {
 public:
  ComboBoxPresenter(WidgetMirror& mirror, toolkit::headless::Control& control);

 protected:
  void SyncOwn() override;
  orvik::platform::Color PlainBackColor() const override { return orvik::platform::kWindowBackground; }

 private:
  void SyncEditable();
  void SyncItems();
};

}  // namespace host::qt

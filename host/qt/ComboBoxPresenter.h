#pragma once

#include <QComboBox>

#include "host/qt/Presenter.h"
#include "toolkit/headless/ComboBox.h"

namespace bench::qt {

class ComboBoxPresenter final : public PresenterFor<headless::ComboBox, QComboBox> {
 public:
  ComboBoxPresenter(WidgetMirror& mirror, headless::Control& control);

 protected:
  void SyncOwn() override;
  orvik::platform::Color PlainBackColor() const override { return orvik::platform::kWindowBackground; }

 private:
  void SyncEditable();
  void SyncItems();
};

}  // namespace bench::qt

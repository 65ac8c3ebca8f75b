#pragma once

#include <QGroupBox>
#include <QLabel>

#include "host/toolkit/headless/Label.h"
#include "host/toolkit/qt/Presenter.h"

namespace bench::qt {

/// A text. It names the control after it, if the focus can go there, and brings the focus by its access key.
class LabelPresenter final : public PresenterFor<headless::Label, QLabel> {
 public:
  LabelPresenter(Stage& stage, headless::Control& control);
  void Precedes(const Presenter& next) override;

 protected:
  void SyncOwn() override;
};

class FramePresenter final : public PresenterFor<headless::Frame, QGroupBox> {
 public:
  FramePresenter(Stage& stage, headless::Control& control) : PresenterFor(stage, control, new QGroupBox) {}

 protected:
  void SyncOwn() override;
};

}  // namespace bench::qt

#pragma once

#include <QGroupBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <cstddef>
#include <vector>

#include "host/qt/Presenter.h"
#include "toolkit/headless/Button.h"
#include "toolkit/headless/Label.h"
#include "toolkit/headless/PictureBox.h"
#include "toolkit/headless/ProgressBar.h"

namespace host::qt {

/// A surface: a panel, or the site of a user control.
class PanelPresenter final : public PresenterFor<toolkit::headless::Control, QWidget> {
 public:
  PanelPresenter(WidgetMirror& mirror, toolkit::headless::Control& control)
      : PresenterFor(mirror, control, new QWidget) {}

 protected:
  void SyncOwn() override {}
};

/// A text. It names the control after it if that can have the focus; its access key moves the focus there.
class LabelPresenter final : public PresenterFor<toolkit::headless::Label, QLabel> {
 public:
  LabelPresenter(WidgetMirror& mirror, toolkit::headless::Control& control);
  void Precedes(const Presenter& next) override;

 protected:
  void SyncOwn() override;
};

class FramePresenter final : public PresenterFor<toolkit::headless::Frame, QGroupBox> {
 public:
  FramePresenter(WidgetMirror& mirror, toolkit::headless::Control& control)
      : PresenterFor(mirror, control, new QGroupBox) {}

 protected:
  void SyncOwn() override;
};

class ButtonPresenter final : public PresenterFor<toolkit::headless::Button, QPushButton> {
 public:
  ButtonPresenter(WidgetMirror& mirror, toolkit::headless::Control& control);
  /// Return clicks the button too, as in a dialog.
  bool Filter(QObject& watched, QEvent& event) override;

 protected:
  void SyncOwn() override;
};

class PictureBoxPresenter final : public PresenterFor<toolkit::headless::PictureBox, QLabel> {
 public:
  PictureBoxPresenter(WidgetMirror& mirror, toolkit::headless::Control& control);

 protected:
  void SyncOwn() override;

 private:
  std::vector<std::byte> bitmap_;
};

class ProgressBarPresenter final : public PresenterFor<toolkit::headless::ProgressBar, QProgressBar> {
 public:
  ProgressBarPresenter(WidgetMirror& mirror, toolkit::headless::Control& control);

 protected:
  void SyncOwn() override;
};

}  // namespace host::qt

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

namespace bench::qt {

/// A surface: a panel, or the site of a user control.
class PanelPresenter final : public PresenterFor<headless::Control, QWidget> {
 public:
  PanelPresenter(WidgetMirror& mirror, headless::Control& control)
      : PresenterFor(mirror, control, new QWidget) {}

 protected:
  void SyncOwn() override {}
};

/// A text. It names the control after it if that can have the focus; its access key moves the focus there.
class LabelPresenter final : public PresenterFor<headless::Label, QLabel> {
 public:
  LabelPresenter(WidgetMirror& mirror, headless::Control& control);
  void Precedes(const Presenter& next) override;

 protected:
  void SyncOwn() override;
};

class FramePresenter final : public PresenterFor<headless::Frame, QGroupBox> {
 public:
  FramePresenter(WidgetMirror& mirror, headless::Control& control)
      : PresenterFor(mirror, control, new QGroupBox) {}

 protected:
  void SyncOwn() override;
};

class ButtonPresenter final : public PresenterFor<headless::Button, QPushButton> {
 public:
  ButtonPresenter(WidgetMirror& mirror, headless::Control& control);
  /// Return clicks the button too, as in a dialog.
  bool Filter(QObject& watched, QEvent& event) override;

 protected:
  void SyncOwn() override;
};

class PictureBoxPresenter final : public PresenterFor<headless::PictureBox, QLabel> {
 public:
  PictureBoxPresenter(WidgetMirror& mirror, headless::Control& control);

 protected:
  void SyncOwn() override;

 private:
  std::vector<std::byte> bitmap_;
};

class ProgressBarPresenter final : public PresenterFor<headless::ProgressBar, QProgressBar> {
 public:
  ProgressBarPresenter(WidgetMirror& mirror, headless::Control& control);

 protected:
  void SyncOwn() override;
};

}  // namespace bench::qt

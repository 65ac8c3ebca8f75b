#pragma once

#include <QSize>
#include <QWidget>

#include "host/qt/Presenter.h"
#include "toolkit/headless/Form.h"

namespace host::qt {

/// A window, or the content of one if the form is embedded.
class FormPresenter final : public PresenterFor<toolkit::headless::Form, QWidget> {
 public:
  FormPresenter(WidgetMirror& mirror, toolkit::headless::Control& control);
  bool Filter(QObject& watched, QEvent& event) override;

 protected:
  void SyncOwn() override;
  void SyncPlace() override;

 private:
  bool Embedded() const;
  void SyncFlags();
  void SyncSize();
  void Appear();
  void Resized();
  void Activated();

  // The size set by the model; any other size is set by the user.
  QSize given_;
  orvik::platform::Rect place_;
};

}  // namespace host::qt

#pragma once

#include <QWidget>

#include "host/qt/Presenter.h"
#include "toolkit/headless/TextBox.h"

class QLineEdit;
class QPlainTextEdit;

namespace host::qt {

/// A line edit or a multi-line edit.
class TextBoxPresenter final : public PresenterFor<toolkit::headless::TextBox, QWidget> {
 public:
  TextBoxPresenter(WidgetMirror& mirror, toolkit::headless::Control& control);
  bool Fits() const override;

 protected:
  void SyncOwn() override;
  orvik::platform::Color PlainBackColor() const override { return orvik::platform::kWindowBackground; }

 private:
  void Typed(const QString& text);

  // One of them is null.
  QLineEdit* line_ = nullptr;
  QPlainTextEdit* lines_ = nullptr;
};

}  // namespace host::qt

#pragma once

#include <QWidget>

#include "host/toolkit/headless/TextBox.h"
#include "host/toolkit/qt/Presenter.h"

class QLineEdit;
class QPlainTextEdit;

namespace bench::qt {

/// One line or several, in the widget for it.
class TextBoxPresenter final : public PresenterFor<headless::TextBox, QWidget> {
 public:
  TextBoxPresenter(WidgetMirror& mirror, headless::Control& control);
  bool Fits() const override;

 protected:
  void SyncOwn() override;
  orvik::platform::Color PlainBackColor() const override { return orvik::platform::kWindowBackground; }

 private:
  void Typed(const QString& text);

  // One of the two.
  QLineEdit* line_ = nullptr;
  QPlainTextEdit* lines_ = nullptr;
};

}  // namespace bench::qt

#include "host/qt/TextBoxPresenter.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <algorithm>

#include "host/qt/Conversions.h"

namespace host::qt {
namespace {

QWidget* NewTextWidget(const toolkit::headless::Control& control) {
  if (!dynamic_cast<const toolkit::headless::TextBox&>(control).MultiLine()) return new QLineEdit;
  auto* lines = new QPlainTextEdit;
  lines->setTabChangesFocus(true);
  return lines;
}

}  // namespace

TextBoxPresenter::TextBoxPresenter(WidgetMirror& mirror, toolkit::headless::Control& control)
    : PresenterFor(mirror, control, NewTextWidget(control)),
      line_(qobject_cast<QLineEdit*>(Widget())),
      lines_(qobject_cast<QPlainTextEdit*>(Widget())) {
  if (line_)
    When(line_, &QLineEdit::textEdited, [this](const QString& text) { Typed(text); });
  else
    When(lines_, &QPlainTextEdit::textChanged, [this] { Typed(lines_->toPlainText()); });
}

bool TextBoxPresenter::Fits() const { return GetModel().MultiLine() == (lines_ != nullptr); }

void TextBoxPresenter::Typed(const QString& text) {
  Forward([typed = FromQt(text)](toolkit::headless::TextBox& box) { box.TypeOver(typed); });
}

void TextBoxPresenter::SyncOwn() {
  const QString text = ToQt(GetModel().Text());
  const bool locked = GetModel().Locked();
  if (lines_) {
    lines_->setReadOnly(locked);
    if (lines_->toPlainText() != text) lines_->setPlainText(text);
    return;
  }
  line_->setReadOnly(locked);
  if (line_->text() == text) return;
  // Keeps the cursor in place for further typing.
  const int cursor = line_->cursorPosition();
  line_->setText(text);
  line_->setCursorPosition(std::min(cursor, static_cast<int>(text.size())));
}

}  // namespace host::qt

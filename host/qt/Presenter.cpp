#include "host/qt/Presenter.h"

#include <QFocusEvent>
#include <utility>

#include "host/qt/Conversions.h"
#include "host/qt/Units.h"
#include "host/qt/WidgetMirror.h"
#include "toolkit/headless/Form.h"

namespace host::qt {

Presenter::Presenter(WidgetMirror& mirror, toolkit::headless::Control& control, QWidget* widget)
    : mirror_(mirror), control_(control), widget_(widget) {
  widget->setObjectName(ToQt(control.Name()));
  WatchEvents(*widget);
}

Presenter::~Presenter() { mirror_.Unwatch(*this); }

void Presenter::WatchEvents(QObject& object) { mirror_.Watch(object, *this); }

void Presenter::Sync() {
  widget_->setToolTip(PlainToolTip(control_.ToolTip()));
  widget_->setAccessibleName(AccessibleName());
  widget_->setEnabled(control_.Enabled());
  SyncBackground();
  SyncOwn();
  SyncPlace();
}

void Presenter::SyncPlace() {
  const auto parent = control_.ParentWindow();
  const Presenter* outer = parent ? mirror_.Find(parent->Handle()) : nullptr;
  if (outer && outer->Widget() != widget_->parentWidget()) widget_->setParent(outer->Widget());
  widget_->setGeometry(mirror_.GetUnits().Pixels(control_.Bounds()));
  widget_->setVisible(control_.Visible());
}

QString Presenter::AccessibleName() const {
  return WithoutAccessKey(control_.Caption().empty() ? control_.ToolTip() : control_.Caption());
}

void Presenter::SyncBackground() {
  const bool plain = control_.BackColor() == PlainBackColor();
  if (plain && !widget_->testAttribute(Qt::WA_SetPalette)) return;
  if (plain) return widget_->setPalette(QPalette());
  QPalette palette = widget_->palette();
  const QColor color = ToQt(control_.BackColor(), QPalette());
  palette.setColor(QPalette::Window, color);
  palette.setColor(QPalette::Base, color);
  widget_->setPalette(palette);
  widget_->setAutoFillBackground(true);
}

void Presenter::ForwardToControl(std::function<void(toolkit::headless::Control&)> action) {
  mirror_.Forward(control_, std::move(action));
}

bool Presenter::Filter(QObject& watched, QEvent& event) {
  if (event.type() == QEvent::FocusIn && &watched == widget_) FocusCame(event);
  if (event.type() == QEvent::KeyPress && &watched == widget_)
    mirror_.PreviewKey(control_, static_cast<QKeyEvent&>(event));
  return false;
}

void Presenter::FocusCame(const QEvent& event) {
  const auto reason = static_cast<const QFocusEvent&>(event).reason();
  // Set by Qt for a window that became active; the model decides where the focus is.
  if (reason == Qt::ActiveWindowFocusReason) return mirror_.RestoreFocus();
  if (!control_.CanFocus() || reason == Qt::PopupFocusReason) return;
  ForwardToControl([](toolkit::headless::Control& control) {
    if (const auto form = control.TopForm()) form->Activate();
    control.SetFocus();
  });
}

}  // namespace host::qt

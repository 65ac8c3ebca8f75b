#pragma once

#include <QPointer>
#include <QWidget>
#include <functional>
#include <utility>

#include "toolkit/headless/Control.h"

class QEvent;

namespace host::qt {

class WidgetMirror;

/// Shows one window of the model as a widget: copies the model's state to the widget, and forwards user
/// actions to the model. Owned by the mirror; does not outlive its control.
class Presenter {
 public:
  virtual ~Presenter();
  Presenter(const Presenter&) = delete;
  Presenter& operator=(const Presenter&) = delete;

  toolkit::headless::Control& Control() const { return control_; }
  /// The widget; null after the window that it is embedded in was deleted.
  QWidget* Widget() const { return widget_; }
  /// Copies the state of the control to the widget.
  void Sync();
  /// Moves the keyboard focus to the widget.
  virtual void TakeFocus() { widget_->setFocus(Qt::OtherFocusReason); }
  /// Whether the widget can show the control; if not, the presenter is replaced.
  virtual bool Fits() const { return true; }
  /// Called with the next control of the panel, which a label names.
  virtual void Precedes(const Presenter& /*next*/) {}
  /// Filters an event of the widget; true stops it.
  virtual bool Filter(QObject& watched, QEvent& event);

 protected:
  /// Watches the widget's events.
  Presenter(WidgetMirror& mirror, toolkit::headless::Control& control, QWidget* widget);

  /// Copies the state of this class of control.
  virtual void SyncOwn() = 0;
  /// Copies bounds, parent and visibility.
  virtual void SyncPlace();
  /// The text for screen readers.
  virtual QString AccessibleName() const;
  /// The colour that leaves the background to the style.
  virtual orvik::platform::Color PlainBackColor() const { return orvik::platform::kButtonFace; }

  WidgetMirror& GetMirror() const { return mirror_; }
  /// Makes the mirror pass the object's events to `Filter`.
  void WatchEvents(QObject& object);
  /// Connects the signal until the presenter is destroyed; the widget may live longer.
  template <class Sender, class Signal, class Handler>
  void When(Sender* sender, Signal signal, Handler handler) {
    QObject::connect(sender, signal, &listener_, std::move(handler));
  }
  /// Posts the user's action, unless the mirror itself is changing the widget.
  void ForwardToControl(std::function<void(toolkit::headless::Control&)> action);

 private:
  void SyncBackground();
  void FocusCame(const QEvent& event);

  WidgetMirror& mirror_;
  toolkit::headless::Control& control_;
  QPointer<QWidget> widget_;
  QObject listener_;
};

/// A presenter with typed access to its control and widget.
template <class Model, class Shown>
class PresenterFor : public Presenter {
 protected:
  PresenterFor(WidgetMirror& mirror, toolkit::headless::Control& control, Shown* widget)
      : Presenter(mirror, control, widget), shown_(widget) {}

  Model& GetModel() const { return static_cast<Model&>(Control()); }
  Shown& GetShown() const { return *shown_; }
  /// Posts the user's `action` on the model.
  template <class Action>
  void Forward(Action action) {
    ForwardToControl([action = std::move(action)](toolkit::headless::Control& control) {
      action(static_cast<Model&>(control));
    });
  }

 private:
  Shown* shown_;
};

}  // namespace host::qt

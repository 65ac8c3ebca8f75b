#pragma once

#include <QPointer>
#include <QWidget>
#include <functional>
#include <utility>

#include "host/toolkit/headless/Control.h"

class QEvent;

namespace bench::qt {

class WidgetMirror;

/// Shows one window of the model as a widget: brings the model's state to the widget, and what a person does
/// with the widget to the model. The mirror owns it; it ends before its control does.
class Presenter {
 public:
  virtual ~Presenter();
  Presenter(const Presenter&) = delete;
  Presenter& operator=(const Presenter&) = delete;

  headless::Control& Control() const { return control_; }
  /// The widget; null when whoever embedded it has deleted it.
  QWidget* Widget() const { return widget_; }
  /// The widget now has the state of the control.
  void Sync();
  /// The keyboard goes to the control.
  virtual void TakeFocus() { widget_->setFocus(Qt::OtherFocusReason); }
  /// Whether the widget can show the control as it is now; if not, another presenter is made for it.
  virtual bool Fits() const { return true; }
  /// The next control of the panel, which a label names.
  virtual void Precedes(const Presenter& /*next*/) {}
  /// Looks at an event of the widget before the widget does; true keeps it from there.
  virtual bool Filter(QObject& watched, QEvent& event);

 protected:
  /// Takes the widget over and watches its events.
  Presenter(WidgetMirror& mirror, headless::Control& control, QWidget* widget);

  /// What is special about this kind of control.
  virtual void SyncOwn() = 0;
  /// Place, parent and visibility; windows have rules of their own.
  virtual void SyncPlace();
  /// The control's text where it has one, for those who cannot see it.
  virtual QString AccessibleName() const;
  /// The colour that leaves the background to the style.
  virtual orvik::platform::Color PlainBackColor() const { return orvik::platform::kButtonFace; }

  WidgetMirror& GetMirror() const { return mirror_; }
  /// Has the mirror send the object's events here.
  void WatchEvents(QObject& object);
  /// Has the handler called at the signal, for as long as the presenter lives: the widget may live longer.
  template <class Sender, class Signal, class Handler>
  void When(Sender* sender, Signal signal, Handler handler) {
    QObject::connect(sender, signal, &listener_, std::move(handler));
  }
  /// Puts the action into the message queue, unless it is the screen itself that changes the widget.
  void ForwardToControl(std::function<void(headless::Control&)> action);

 private:
  void SyncBackground();
  void FocusCame(const QEvent& event);

  WidgetMirror& mirror_;
  headless::Control& control_;
  QPointer<QWidget> widget_;
  QObject listener_;
};

/// A presenter that knows the class of its control and of its widget.
template <class Model, class Shown>
class PresenterFor : public Presenter {
 protected:
  PresenterFor(WidgetMirror& mirror, headless::Control& control, Shown* widget)
      : Presenter(mirror, control, widget), shown_(widget) {}

  Model& GetModel() const { return static_cast<Model&>(Control()); }
  Shown& GetShown() const { return *shown_; }
  /// The person has done something; `action` brings it to the model.
  template <class Action>
  void Forward(Action action) {
    ForwardToControl(
        [action = std::move(action)](headless::Control& control) { action(static_cast<Model&>(control)); });
  }

 private:
  Shown* shown_;
};

}  // namespace bench::qt

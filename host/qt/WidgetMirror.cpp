#include "host/qt/WidgetMirror.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWindow>
#include <utility>

#include "OrvikTypeLib/HostError.h"
#include "host/qt/Conversions.h"
#include "host/qt/FontMetrics.h"
#include "host/qt/Presenter.h"
#include "host/qt/PresenterFactory.h"
#include "toolkit/headless/Application.h"
#include "toolkit/headless/Form.h"
#include "toolkit/headless/PlainMetrics.h"

namespace host::qt {

using orvik::platform::WindowHandle;

/// Passes the events of widgets to their presenters.
class WidgetMirror::EventFilter final : public QObject {
 public:
  explicit EventFilter(WidgetMirror& mirror) : mirror_(mirror) {}

  bool eventFilter(QObject* watched, QEvent* event) override {
    const auto found = mirror_.watched_.find(watched);
    return found != mirror_.watched_.end() && found->second->Filter(*watched, *event);
  }

 private:
  WidgetMirror& mirror_;
};

/// Watches the host's own window.
class WidgetMirror::HostWatch final : public QObject {
 public:
  explicit HostWatch(WidgetMirror& mirror) : mirror_(mirror) {}

  bool eventFilter(QObject*, QEvent* event) override {
    switch (event->type()) {
      case QEvent::Show:
        // The native window gets the input events of everything inside.
        if (auto* window = mirror_.hostWindow_->windowHandle()) window->installEventFilter(this);
        break;
      // Not on activation: window managers activate it briefly while they minimise both.
      case QEvent::MouseButtonPress:
      case QEvent::KeyPress:
        mirror_.RestoreMinimised();
        break;
      default:
        break;
    }
    return false;
  }

 private:
  WidgetMirror& mirror_;
};

WidgetMirror::WidgetMirror(std::shared_ptr<toolkit::headless::Application> application, Measure measure)
    : application_(std::move(application)),
      metrics_(measure == Measure::kFont ? std::unique_ptr<toolkit::headless::IMetrics>(new FontMetrics)
                                         : std::make_unique<toolkit::headless::PlainMetrics>()),
      filter_(std::make_unique<EventFilter>(*this)),
      dispatcher_([this] { return application_->UntilWork(); },
                  [this] {
                    try {
                      application_->ProcessMessages();
                    } catch (...) {
                      ReportError();
                    }
                    Update();
                  }) {
  application_->SetScreen(this);
}

WidgetMirror::~WidgetMirror() {
  application_->SetScreen(nullptr);
  while (!presenters_.empty()) Discard(presenters_.begin()->first);
  for (const auto& widget : discarded_) delete widget;
}

void WidgetMirror::Changed(toolkit::headless::Control& control) {
  changed_.insert_or_assign(control.Handle(), control.weak_from_this());
  // The change may come from a handler of Qt during a sleep, which must end then.
  dispatcher_.LookAgain();
}

void WidgetMirror::Destroyed(const toolkit::headless::Control& control) {
  changed_.erase(control.Handle());
  embedded_.erase(control.Handle());
  Discard(control.Handle());
}

void WidgetMirror::Sleep(std::chrono::nanoseconds longest) {
  Update();
  dispatcher_.Sleep(longest);
}

void WidgetMirror::Exec() {
  quit_ = false;
  while (!quit_) {
    try {
      application_->WaitMessages(orvik::platform::Time::max());
    } catch (...) {
      ReportError();
    }
  }
}

void WidgetMirror::Quit() {
  quit_ = true;
  application_->Wake();
}

Presenter* WidgetMirror::Find(WindowHandle handle) const {
  const auto found = presenters_.find(handle);
  return found == presenters_.end() ? nullptr : found->second.get();
}

bool WidgetMirror::Update() {
  if (*pendingActions_ > 0 || updating_) return false;
  updating_ = true;
  RemoveDeleted();
  for (const auto& [handle, changed] : std::exchange(changed_, {})) {
    if (const auto control = changed.lock()) Show(*control);
  }
  SyncFocus();
  updating_ = false;
  if (!dispatcher_.BelowForeignLoop()) {
    for (const auto& widget : std::exchange(discarded_, {})) delete widget;
  }
  return true;
}

void WidgetMirror::Show(toolkit::headless::Control& control) {
  Presenter* presenter = Find(control.Handle());
  if (const auto* form = dynamic_cast<toolkit::headless::Form*>(&control)) {
    const bool wanted = form->Visible() || (presenter && form->Loaded()) || EmbeddedIn(*form);
    if (!wanted) return Remove(control);
  } else {
    const auto parent = control.ParentWindow();
    if (!parent || !Find(parent->Handle())) return Remove(control);
  }
  if (presenter && !presenter->Fits()) {
    Remove(control);
    presenter = nullptr;
  }
  if (presenter)
    presenter->Sync();
  else
    Present(control);
}

void WidgetMirror::Present(toolkit::headless::Control& control) {
  auto made = MakePresenter(*this, control);
  if (!made) return;
  Presenter& presenter = *made;
  presenters_[control.Handle()] = std::move(made);
  Presenter* before = nullptr;
  for (const auto& inner : application_->WindowsInside(control)) {
    Show(*inner);
    Presenter* shown = Find(inner->Handle());
    if (before && shown) before->Precedes(*shown);
    before = shown;
  }
  presenter.Sync();
}

void WidgetMirror::Remove(toolkit::headless::Control& control) {
  if (!Find(control.Handle())) return;
  for (const auto& inner : application_->WindowsInside(control)) Remove(*inner);
  Discard(control.Handle());
}

void WidgetMirror::Discard(WindowHandle handle) {
  const auto found = presenters_.find(handle);
  if (found == presenters_.end()) return;
  QWidget* widget = found->second->Widget();
  // The control may be partly destroyed: it must not be called while its widget is removed.
  presenters_.erase(found);
  if (!widget) return;
  const bool updating = std::exchange(updating_, true);
  // Closes open menus and lists too.
  for (QWidget* inner : widget->findChildren<QWidget*>()) {
    if (inner->isWindow()) inner->close();
  }
  widget->hide();
  widget->setParent(nullptr);
  discarded_.emplace_back(widget);
  updating_ = updating;
  if (shownActive_ == handle) shownActive_ = 0;
  if (shownFocus_ == handle) shownFocus_ = 0;
}

void WidgetMirror::RemoveDeleted() {
  // A deleted window of the host has deleted the widgets embedded in it.
  if (embedded_.empty()) return;
  std::erase_if(embedded_, [](const auto& entry) { return !entry.second; });
  std::erase_if(presenters_, [](const auto& entry) { return !entry.second->Widget(); });
}

void WidgetMirror::SyncFocus() {
  const auto active = std::dynamic_pointer_cast<toolkit::headless::Form>(application_->ActiveForm());
  const WindowHandle activeHandle = active ? active->Handle() : 0;
  if (std::exchange(shownActive_, activeHandle) != activeHandle && activeHandle != 0) {
    if (const Presenter* window = Find(activeHandle)) {
      window->Widget()->raise();
      window->Widget()->activateWindow();
    }
  }
  const auto focused = application_->Focused();
  const WindowHandle focus = focused ? focused->Handle() : 0;
  if (std::exchange(shownFocus_, focus) == focus) return;
  if (Presenter* presenter = Find(focus)) presenter->TakeFocus();
}

void WidgetMirror::RestoreFocus() {
  shownActive_ = 0;
  shownFocus_ = 0;
  dispatcher_.LookAgain();
}

QWidget* WidgetMirror::Embed(toolkit::headless::Form& form, QWidget* parent) {
  embedded_[form.Handle()] = parent;
  Remove(form);
  const bool updating = std::exchange(updating_, true);
  Present(form);
  updating_ = updating;
  return Find(form.Handle())->Widget();
}

QWidget* WidgetMirror::EmbeddedIn(const toolkit::headless::Form& form) const {
  const auto found = embedded_.find(form.Handle());
  return found == embedded_.end() ? nullptr : found->second.data();
}

void WidgetMirror::SetHostWindow(QWidget* window) {
  hostWindow_ = window;
  hostWatch_ = std::make_unique<HostWatch>(*this);
  if (window) window->installEventFilter(hostWatch_.get());
}

void WidgetMirror::RestoreMinimised() {
  for (const auto& [handle, presenter] : presenters_) {
    QWidget* window = presenter->Widget();
    if (window && window->isWindow() && window->isVisible() && window->isMinimized()) window->showNormal();
  }
}

QWidget* WidgetMirror::OwnerOfNext(const toolkit::headless::Form& form) const {
  // With a host window, only dialogs of the host are modal for Qt.
  if (QWidget* question = hostWindow_ ? QApplication::activeModalWidget() : nullptr) return question;
  const toolkit::headless::Form* owner = nullptr;
  for (const auto& [handle, presenter] : presenters_) {
    const auto* other = dynamic_cast<toolkit::headless::Form*>(&presenter->Control());
    if (!other || other == &form || !other->Visible() || !presenter->Widget()) continue;
    if (other->ShowOrder() < form.ShowOrder() && (!owner || owner->ShowOrder() < other->ShowOrder()))
      owner = other;
  }
  return owner         ? Find(owner->Handle())->Widget()->window()
         : hostWindow_ ? hostWindow_.data()
                       : QApplication::activeWindow();
}

void WidgetMirror::Forward(toolkit::headless::Control& control,
                           std::function<void(toolkit::headless::Control&)> action) {
  if (!updating_) Enqueue(control, std::move(action));
}

void WidgetMirror::Enqueue(toolkit::headless::Control& control,
                           std::function<void(toolkit::headless::Control&)> action) {
  ++*pendingActions_;
  application_->Post([this, on = std::weak_ptr<int>(pendingActions_), to = control.weak_from_this(),
                      action = std::move(action)] {
    // Mirror and control may have been destroyed.
    const auto here = on.lock();
    if (!here) return;
    --*here;
    if (const auto target = to.lock()) Run(*target, action);
  });
}

void WidgetMirror::Run(toolkit::headless::Control& control,
                       const std::function<void(toolkit::headless::Control&)>& action) {
  const std::weak_ptr<int> here = pendingActions_;
  try {
    action(control);
  } catch (...) {
    if (here.expired()) throw;
    // The widget still shows the rejected value; schedule an update.
    Changed(control);
    return ReportError();
  }
  if (!here.expired()) Changed(control);
}

void WidgetMirror::ReportError() {
  if (!errorHandler_) throw;
  try {
    throw;
  } catch (const orvik::HostError& error) {
    errorHandler_(error.Description());
  } catch (const std::exception& error) {
    errorHandler_(error.what());
  }
}

void WidgetMirror::PreviewKey(toolkit::headless::Control& control, const QKeyEvent& event) {
  const auto form = control.TopForm();
  const int key = KeyOf(event);
  const QWidget* widget = Find(control.Handle())->Widget();
  const QWidget* focused = widget->window()->focusWidget();
  // A key that the focused control did not handle was previewed already.
  if (focused && focused != widget) return;
  if (!form || !form->KeyPreview() || key == 0 || event.isAutoRepeat()) return;
  Forward(*form, [key, shift = ShiftOf(event)](toolkit::headless::Control& target) {
    static_cast<toolkit::headless::Form&>(target).PreviewKey(key, shift);
  });
}

void WidgetMirror::Watch(QObject& object, Presenter& presenter) {
  watched_[&object] = &presenter;
  object.installEventFilter(filter_.get());
}

void WidgetMirror::Unwatch(const Presenter& presenter) {
  // Objects that are gone have removed their filters; the others no longer find a presenter.
  std::erase_if(watched_, [&](const auto& entry) { return entry.second == &presenter; });
}

}  // namespace host::qt

#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "host/qt/EventDispatcher.h"
#include "host/qt/FontMetrics.h"
#include "host/qt/Screen.h"
#include "host/qt/Units.h"
#include "platform/Types.h"
#include "toolkit/headless/IScreen.h"

class QKeyEvent;

namespace toolkit::headless {
class Application;
class Control;
class Form;
}  // namespace toolkit::headless

namespace host::qt {

class Presenter;

/// Mirrors the windows as widgets: owns the presenters of all windows that have been shown, records changes
/// until the next update, and forwards user actions to the model.
class WidgetMirror final : public toolkit::headless::IScreen {
 public:
  WidgetMirror(std::shared_ptr<toolkit::headless::Application> application, Measure measure);
  ~WidgetMirror() override;

  void Changed(toolkit::headless::Control& control) override;
  void Destroyed(const toolkit::headless::Control& control) override;
  const toolkit::headless::IMetrics& Metrics() const override { return *metrics_; }
  void Watch(const std::vector<int>& descriptors) override { dispatcher_.Watch(descriptors); }
  void WorkAdded() override { dispatcher_.WorkAdded(); }
  void Sleep(std::chrono::nanoseconds longest) override;

  void SetErrorHandler(std::function<void(const std::string&)> handler) {
    errorHandler_ = std::move(handler);
  }
  void SetHostWindow(QWidget* window);
  QWidget* HostWindow() const { return hostWindow_; }
  /// Updates all widgets. Returns false while user actions are pending: the widgets are then ahead of the
  /// model.
  bool Update();
  void Exec();
  void Quit();
  QWidget* Embed(toolkit::headless::Form& form, QWidget* parent);

  /// The presenter of a window, or null if it is not shown.
  Presenter* Find(orvik::platform::WindowHandle handle) const;
  const Units& GetUnits() const { return units_; }
  toolkit::headless::Application& Application() const { return *application_; }
  /// The widget that the form is embedded in, or null.
  QWidget* EmbeddedIn(const toolkit::headless::Form& form) const;
  /// The owner for a window that appears now, or null: an open dialog of the host, which would be covered
  /// otherwise, else the window shown last, else the host's own.
  QWidget* OwnerOfNext(const toolkit::headless::Form& form) const;
  /// Restores windows that were minimised without the host's own, since they may wait for the user.
  void RestoreMinimised();

  /// Posts an action of the user. Does nothing during an update, when the mirror itself changes the widgets.
  void Forward(toolkit::headless::Control& control, std::function<void(toolkit::headless::Control&)> action);
  /// Posts an action in any case.
  void Enqueue(toolkit::headless::Control& control, std::function<void(toolkit::headless::Control&)> action);
  /// Lets the form preview the key.
  void PreviewKey(toolkit::headless::Control& control, const QKeyEvent& event);
  /// Sets active window and focus as in the model again, after Qt has changed them.
  void RestoreFocus();
  void Watch(QObject& object, Presenter& presenter);
  void Unwatch(const Presenter& presenter);

 private:
  class EventFilter;
  class HostWatch;

  void Show(toolkit::headless::Control& control);
  void Present(toolkit::headless::Control& control);
  void Remove(toolkit::headless::Control& control);
  void Discard(orvik::platform::WindowHandle handle);
  void RemoveDeleted();
  void SyncFocus();
  void Run(toolkit::headless::Control& control,
           const std::function<void(toolkit::headless::Control&)>& action);
  void ReportError();

  std::shared_ptr<toolkit::headless::Application> application_;
  Units units_;
  std::unique_ptr<toolkit::headless::IMetrics> metrics_;
  QPointer<QWidget> hostWindow_;
  std::unique_ptr<HostWatch> hostWatch_;
  std::function<void(const std::string&)> errorHandler_;
  std::unique_ptr<EventFilter> filter_;
  std::unordered_map<QObject*, Presenter*> watched_;
  // By handle: outer windows are created before inner ones.
  std::map<orvik::platform::WindowHandle, std::weak_ptr<toolkit::headless::Control>> changed_;
  std::map<orvik::platform::WindowHandle, std::unique_ptr<Presenter>> presenters_;
  std::map<orvik::platform::WindowHandle, QPointer<QWidget>> embedded_;
  // Widgets of destroyed controls that Qt may still use on the stack.
  std::vector<QPointer<QWidget>> discarded_;
  orvik::platform::WindowHandle shownActive_ = 0;
  orvik::platform::WindowHandle shownFocus_ = 0;
  bool updating_ = false;
  bool quit_ = false;
  // The number of posted actions; they hold it weakly to detect that the mirror is gone.
  std::shared_ptr<int> pendingActions_ = std::make_shared<int>(0);
  EventDispatcher dispatcher_;
};

}  // namespace host::qt

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

#include "host/toolkit/headless/IScreen.h"
#include "host/toolkit/qt/EventDispatcher.h"
#include "host/toolkit/qt/FontMetrics.h"
#include "host/toolkit/qt/Screen.h"
#include "host/toolkit/qt/Units.h"
#include "platform/Types.h"

class QKeyEvent;

namespace bench::headless {
class Application;
class Control;
class Form;
}  // namespace bench::headless

namespace bench::qt {

class Presenter;

/// Everything that is on the screen: the presenters of all windows that have been shown, what has changed
/// since they were last brought up to date, and the way back to the model.
class WidgetMirror final : public headless::IScreen {
 public:
  WidgetMirror(std::shared_ptr<headless::Application> application, Measure measure);
  ~WidgetMirror() override;

  void Changed(headless::Control& control) override;
  void Gone(const headless::Control& control) override;
  const headless::IMetrics& Metrics() const override { return *metrics_; }
  void Watch(const std::vector<int>& descriptors) override { dispatcher_.Watch(descriptors); }
  void WorkAdded() override { dispatcher_.WorkAdded(); }
  void Sleep(std::chrono::nanoseconds longest) override;

  void SetErrorHandler(std::function<void(const std::string&)> handler) {
    errorHandler_ = std::move(handler);
  }
  void SetHostWindow(QWidget* window);
  QWidget* HostWindow() const { return hostWindow_; }
  /// Brings all widgets up to date. While something that the person did is still on its way to the model,
  /// that waits, and the answer is false: the model is behind the widgets.
  bool Update();
  void Exec();
  void Quit();
  QWidget* Embed(headless::Form& form, QWidget* parent);

  /// The presenter of a window, or null while it is not shown.
  Presenter* Find(orvik::platform::WindowHandle handle) const;
  const Units& GetUnits() const { return units_; }
  headless::Application& Application() const { return *application_; }
  /// Where the form is embedded, or null.
  QWidget* EmbeddedIn(const headless::Form& form) const;
  /// The widget above which a window that appears now belongs, or null: the window shown last, or else the
  /// host's own. A question of the host that is open comes first, or it would be covered.
  QWidget* OwnerOfNext(const headless::Form& form) const;
  /// Brings back windows that were minimised without the host's own: what waits for the person must be seen.
  void RestoreMinimised();

  /// Puts the action of a person into the message queue. While widgets are being brought up to date nothing
  /// comes from a person, and nothing is put there.
  void Forward(headless::Control& control, std::function<void(headless::Control&)> action);
  /// Puts the action there in any case.
  void Enqueue(headless::Control& control, std::function<void(headless::Control&)> action);
  /// The key comes first to the form, if that wants it.
  void PreviewKey(headless::Control& control, const QKeyEvent& event);
  /// The form's window has become the active one, or should be: the focus is brought to where the model has
  /// it.
  void RestoreFocus();
  void Watch(QObject& object, Presenter& presenter);
  void Unwatch(const Presenter& presenter);

 private:
  class EventFilter;
  class HostWatch;

  void Show(headless::Control& control);
  void Present(headless::Control& control);
  void Remove(headless::Control& control);
  void Discard(orvik::platform::WindowHandle handle);
  void RemoveDeleted();
  void SyncFocus();
  void Run(headless::Control& control, const std::function<void(headless::Control&)>& action);
  void ReportError();

  std::shared_ptr<headless::Application> application_;
  Units units_;
  std::unique_ptr<headless::IMetrics> metrics_;
  QPointer<QWidget> hostWindow_;
  std::unique_ptr<HostWatch> hostWatch_;
  std::function<void(const std::string&)> errorHandler_;
  std::unique_ptr<EventFilter> filter_;
  std::unordered_map<QObject*, Presenter*> watched_;
  // Outer windows were made before inner ones, so they come first.
  std::map<orvik::platform::WindowHandle, std::weak_ptr<headless::Control>> changed_;
  std::map<orvik::platform::WindowHandle, std::unique_ptr<Presenter>> presenters_;
  std::map<orvik::platform::WindowHandle, QPointer<QWidget>> embedded_;
  // Widgets without a control that Qt may still have on its stack.
  std::vector<QPointer<QWidget>> discarded_;
  orvik::platform::WindowHandle shownActive_ = 0;
  orvik::platform::WindowHandle shownFocus_ = 0;
  bool updating_ = false;
  bool quit_ = false;
  // What is posted looks whether the mirror is still there; the number of what is on its way.
  std::shared_ptr<int> pendingActions_ = std::make_shared<int>(0);
  EventDispatcher dispatcher_;
};

}  // namespace bench::qt

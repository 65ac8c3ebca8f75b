#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/IApplication.h"
#include "toolkit/loop/Clock.h"
#include "toolkit/loop/ILoop.h"

namespace orvik::platform {
class IUserControl;
}

namespace toolkit::headless {

using toolkit::loop::ClockKind;
class Control;
class Desktop;
class Form;
class IScreen;

/// The platform without a screen: windows are state only and are operated by calls. On the virtual clock a
/// wait takes no time: the clock jumps to the next timer, call or deadline.
///
/// Errors of the toolkit are `orvik::HostError`. The destructor releases loaded forms without unloading them.
class Application final : public orvik::platform::IApplication, public loop::ILoop {
 public:
  /// @param timeScale the real clock runs that many times faster, which divides all timer intervals and
  /// deadlines; `HostError` 5 unless it is above 0 and finite
  explicit Application(ClockKind kind, double timeScale = 1.0);
  ~Application() override;

  /// Sets the function that creates user controls by class identifier; it returns empty for unknown ones.
  void SetControlFactory(
      std::function<std::shared_ptr<orvik::platform::IUserControl>(const std::string& classIdentifier)>
          factory);
  /// Raised at the start of every `ProcessMessages` and `WaitMessages`. If a handler operates a window, the
  /// wait returns at once.
  orvik::platform::Event<>& Pumped();
  /// Called at the second wait in a row on the virtual clock that could never end: no deadline and nothing
  /// pending. Without a handler `std::logic_error` names the open forms.
  void SetStallHandler(std::function<void()> handler);
  /// Ends the current or the next wait at once, then raises `Woken`. The only operation that a signal handler
  /// or another thread may call.
  void Wake() noexcept;
  orvik::platform::Event<>& Woken();

  /// Shows the windows on a screen; null removes it. The screen must outlive its use here. `UntilWork`
  /// returns how long it may sleep, as `EventLoop::UntilWork` does.
  void SetScreen(IScreen* screen);
  std::chrono::nanoseconds UntilWork() const;
  /// The window of that handle, or empty; and the windows inside one, in the order of their creation.
  std::shared_ptr<Control> Window(orvik::platform::WindowHandle handle) const;
  std::vector<std::shared_ptr<Control>> WindowsInside(const Control& parent) const;
  /// The control or form that has the focus, or empty.
  std::shared_ptr<Control> Focused() const;
  /// Whether the form blocks those that were shown before it.
  bool IsModal(const Form& form) const;

  std::shared_ptr<orvik::platform::IForm> CreateForm(const std::string& name) override;
  std::vector<std::shared_ptr<orvik::platform::IForm>> Forms() const override;
  std::shared_ptr<orvik::platform::IForm> ActiveForm() const override;
  orvik::platform::Event<const std::shared_ptr<orvik::platform::IForm>&>& FormShown() override;
  void ProcessMessages() override;
  void WaitMessages(orvik::platform::Time deadline) override;
  void Post(std::function<void()> work) override;
  orvik::platform::Time Now() const override;
  void SetParent(orvik::platform::WindowHandle child, orvik::platform::WindowHandle parent) override;
  orvik::platform::WindowHandle Parent(orvik::platform::WindowHandle child) const override;

  Id WatchReadable(int descriptor, std::function<void()> callback) override;
  Id CallAt(orvik::platform::Time when, std::function<void()> callback) override;
  void Forget(Id id) override;

 private:
  std::shared_ptr<Desktop> desktop_;
};

}  // namespace toolkit::headless

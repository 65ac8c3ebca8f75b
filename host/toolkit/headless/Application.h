#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "host/loop/Clock.h"
#include "host/loop/ILoop.h"
#include "platform/IApplication.h"

namespace orvik::platform {
class IUserControl;
}

namespace bench::headless {

using bench::ClockKind;
class Control;
class Desktop;
class Form;
class IScreen;

/// The platform without a screen: windows are state only, and whoever operates them does it through their
/// operations. On the virtual clock a wait takes no time: the clock jumps to the next timer, call or
/// deadline.
///
/// Errors of the toolkit are `orvik::HostError`. When the application is destroyed its loaded forms are let
/// go of without being unloaded.
class Application final : public orvik::platform::IApplication, public ILoop {
 public:
  /// @param timeScale the real clock runs that many times faster, which divides all timer intervals and
  /// deadlines; `HostError` 5 unless it is above 0 and finite
  explicit Application(ClockKind kind, double timeScale = 1.0);
  ~Application() override;

  /// Who creates user controls by class identifier; answers empty for one that is not known.
  void SetControlFactory(
      std::function<std::shared_ptr<orvik::platform::IUserControl>(const std::string& classIdentifier)>
          factory);
  /// Raised at every `ProcessMessages` and `WaitMessages`, before it does anything. A wait during which a
  /// handler operated a window comes back at once.
  orvik::platform::Event<>& Pumped();
  /// Called when somebody waits on the virtual clock, twice in a row, without deadline and with nothing left
  /// that could ever happen. Without a handler `std::logic_error` names the open forms.
  void SetStallHandler(std::function<void()> handler);
  /// Ends the present or the next wait at once, then raises `Woken`. The one operation that a signal handler
  /// or another thread may call.
  void Wake() noexcept;
  orvik::platform::Event<>& Woken();

  /// Shows the windows on a screen from now on; empty: they are state only again. The screen lives until it
  /// is taken away. How long it may sleep before something falls due: `EventLoop::UntilWork`.
  void SetScreen(IScreen* screen);
  std::chrono::nanoseconds UntilWork() const;
  /// The window of that handle, or empty; and those that stand in one, in the order in which they were made.
  std::shared_ptr<Control> Window(orvik::platform::WindowHandle handle) const;
  std::vector<std::shared_ptr<Control>> WindowsInside(const Control& parent) const;
  /// The control or form that has the focus, or empty.
  std::shared_ptr<Control> Focused() const;
  /// Whether the form keeps those that were shown before it from the operator.
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

}  // namespace bench::headless

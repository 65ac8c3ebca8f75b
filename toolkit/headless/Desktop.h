#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>

#include "platform/IUserControl.h"
#include "toolkit/headless/FormStack.h"
#include "toolkit/headless/IScreen.h"
#include "toolkit/headless/PlainMetrics.h"
#include "toolkit/headless/WindowTable.h"
#include "toolkit/loop/EventLoop.h"

namespace toolkit::headless {

/// What the windows of one application share. Each window keeps it alive.
class Desktop : public std::enable_shared_from_this<Desktop> {
 public:
  using ControlFactory = std::function<std::shared_ptr<platform::IUserControl>(const std::string&)>;

  Desktop(loop::ClockKind kind, double timeScale) : loop_(kind, timeScale) {}

  loop::EventLoop& Loop() { return loop_; }
  FormStack& Forms() { return forms_; }
  WindowTable& Windows() { return windows_; }

  /// Shows all windows on the screen; null removes it. The screen must outlive its use here.
  void SetScreen(IScreen* screen);
  IScreen* Screen() const { return screen_; }
  const IMetrics& Metrics() const { return screen_ ? screen_->Metrics() : plain_; }

  /// Creates a window of the class and registers its handle.
  template <class Window, class... Args>
  std::shared_ptr<Window> Make(Args&&... args) {
    auto window = std::make_shared<Window>(shared_from_this(), std::forward<Args>(args)...);
    windows_.Add(window);
    return window;
  }

  /// Creates a user control; `HostError` 429 for an unknown identifier.
  std::shared_ptr<platform::IUserControl> CreateUserControl(const std::string& classIdentifier) const;
  void SetControlFactory(ControlFactory factory) { factory_ = std::move(factory); }

  /// The operator has acted, or a form was shown or hidden: waits return.
  void NotifyActivity() { ++activity_; }
  platform::Event<>& Pumped() { return pumped_; }
  void SetStallHandler(std::function<void()> handler) { stalled_ = std::move(handler); }
  void ProcessMessages();
  void WaitMessages(platform::Time deadline);

  /// Releases forms, factory and pending work when the application ends.
  void Close();

 private:
  bool PumpedActed();

  loop::EventLoop loop_;
  FormStack forms_;
  WindowTable windows_;
  PlainMetrics plain_;
  IScreen* screen_ = nullptr;
  ControlFactory factory_;
  platform::Event<> pumped_;
  std::function<void()> stalled_;
  std::uint64_t activity_ = 0;
  bool cameBackEmpty_ = false;
};

}  // namespace toolkit::headless

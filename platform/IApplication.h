#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/Event.h"
#include "platform/Types.h"

namespace orvik::platform {

class IForm;

/// The platform: windows, the message pump, and the clock. One for the process; user-interface thread only.
class IApplication {
 public:
  IApplication() = default;
  IApplication(const IApplication&) = delete;
  IApplication& operator=(const IApplication&) = delete;
  virtual ~IApplication() = default;

  virtual std::shared_ptr<IForm> CreateForm(const std::string& name) = 0;
  /// Loaded forms in the order in which they were loaded.
  virtual std::vector<std::shared_ptr<IForm>> Forms() const = 0;
  /// The form that has the operator's input, or empty.
  virtual std::shared_ptr<IForm> ActiveForm() const = 0;
  /// Raised when a form becomes visible; programs that operate windows subscribe to it.
  virtual Event<const std::shared_ptr<IForm>&>& FormShown() = 0;

  /// Processes pending messages and returns; returns immediately if there are none.
  virtual void ProcessMessages() = 0;
  /// Sleeps until an event (a timer, a byte on a port, the operator) and processes it, or until the
  /// deadline. May return early without an event: callers check the condition that they wait for and
  /// call again.
  virtual void WaitMessages(Time deadline) = 0;
  /// Adds work to the message queue; it runs when messages are processed.
  virtual void Post(std::function<void()> work) = 0;

  virtual Time Now() const = 0;

  /// Makes one window the child of another (0: of no window). `child` must be a panel's or site's handle.
  virtual void SetParent(WindowHandle child, WindowHandle parent) = 0;
  /// The window's parent, or 0.
  virtual WindowHandle Parent(WindowHandle child) const = 0;
};

}  // namespace orvik::platform

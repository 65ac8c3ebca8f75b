#pragma once

#include "toolkit/loop/IEventDispatcher.h"

namespace toolkit::headless {

class Control;
class IMetrics;

/// Shows the windows of an application on a real screen. The windows report what has changed and ask for text
/// sizes; they know nothing else of it.
class IScreen : public loop::IEventDispatcher {
 public:
  /// The window is new or its state, bounds, parent or focus has changed. It is updated when messages are
  /// next processed, since the change may be incomplete.
  virtual void Changed(Control& control) = 0;
  /// The window is being destroyed: it must not be called any more.
  virtual void Destroyed(const Control& control) = 0;
  /// The sizes for the layout.
  virtual const IMetrics& Metrics() const = 0;
};

}  // namespace toolkit::headless

#pragma once

#include "platform/Event.h"
#include "platform/IControl.h"

namespace orvik::platform {

/// A timer on a form. It repeats until it is disabled; its ticks arrive while messages are processed.
class ITimer : public virtual IControl {
 public:
  virtual int Interval() const = 0;
  /// Milliseconds between ticks; 0 keeps an enabled timer from ticking. A timer is made disabled.
  virtual void SetInterval(int milliseconds) = 0;
  /// `SetEnabled(true)` starts a whole interval from now.
  virtual Event<>& Tick() = 0;
};

}  // namespace orvik::platform

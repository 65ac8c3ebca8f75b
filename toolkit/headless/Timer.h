#pragma once

#include "platform/ITimer.h"
#include "toolkit/headless/Control.h"
#include "toolkit/loop/ILoop.h"

namespace toolkit::headless {

/// A timer starts disabled, and is disabled when its form is unloaded. A late timer ticks once, not once for
/// each missed interval.
class Timer final : public Control, public virtual platform::ITimer {
 public:
  Timer(std::shared_ptr<Desktop> desktop, std::string name);
  ~Timer() override;

  void SetEnabled(bool enabled) override;
  int Interval() const override { return interval_; }
  /// Restarts an enabled timer with a whole interval; `HostError` 5 below 0.
  void SetInterval(int milliseconds) override;
  platform::Event<>& Tick() override { return tick_; }

  /// A timer takes no space.
  platform::Size NaturalSize() const override { return {}; }
  void Stop() override { SetEnabled(false); }

 private:
  void Restart();
  void Due();

  int interval_ = 0;
  platform::Time due_{};
  loop::ILoop::Id call_ = 0;
  platform::Event<> tick_;
};

}  // namespace toolkit::headless

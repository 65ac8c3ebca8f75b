#pragma once

#include <chrono>

#include "platform/Types.h"

namespace bench {

/// Virtual time stands still until somebody waits, and then jumps to what comes next; real time passes.
enum class ClockKind { kVirtual, kReal };

/// The one clock of the program. It starts at 0 and never goes back.
class Clock {
 public:
  /// @param timeScale how many times faster than the wall the real clock runs; `HostError` 5 unless it is
  /// above 0 and finite. A virtual clock has no use for it.
  Clock(ClockKind kind, double timeScale);

  ClockKind Kind() const { return kind_; }
  orvik::platform::Time Now() const;
  /// Moves a virtual clock ahead; a moment that has passed changes nothing.
  void JumpTo(orvik::platform::Time moment);
  /// How long the real clock's owner must sleep for that moment to have come; at most an hour.
  std::chrono::nanoseconds SleepUntil(orvik::platform::Time moment) const;

 private:
  ClockKind kind_;
  double timeScale_;
  orvik::platform::Time virtualNow_{0};
  std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};

}  // namespace bench

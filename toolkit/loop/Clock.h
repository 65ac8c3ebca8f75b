#pragma once

#include <chrono>

#include "platform/Types.h"

namespace toolkit::loop {

/// Virtual time only changes during a wait: it jumps to the next event.
enum class ClockKind { kVirtual, kReal };

/// The clock of the program. It starts at 0 and is monotonic.
class Clock {
 public:
  /// @param timeScale speed of the real clock relative to real time; `HostError` 5 unless it is above 0 and
  /// finite. A virtual clock ignores it.
  Clock(ClockKind kind, double timeScale);

  ClockKind Kind() const { return kind_; }
  orvik::platform::Time Now() const;
  /// Moves a virtual clock forward; ignores a moment in the past.
  void JumpTo(orvik::platform::Time moment);
  /// How long to sleep until that moment of the real clock; at most an hour.
  std::chrono::nanoseconds SleepUntil(orvik::platform::Time moment) const;

 private:
  ClockKind kind_;
  double timeScale_;
  orvik::platform::Time virtualNow_{0};
  std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};

}  // namespace toolkit::loop

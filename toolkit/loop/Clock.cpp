#include "toolkit/loop/Clock.h"

#include <algorithm>
#include <cmath>

#include "OrvikTypeLib/HostError.h"

namespace toolkit::loop {

using orvik::platform::Time;

Clock::Clock(ClockKind kind, double timeScale) : kind_(kind), timeScale_(timeScale) {
  if (!std::isfinite(timeScale) || timeScale <= 0)
    throw orvik::HostError(orvik::HostError::kInvalidArgument, "orvik-bench",
                           "the time scale must be a number above 0");
}

Time Clock::Now() const {
  if (kind_ == ClockKind::kVirtual) return virtualNow_;
  const std::chrono::duration<double, std::micro> passed = std::chrono::steady_clock::now() - start_;
  return Time(static_cast<Time::rep>(passed.count() * timeScale_));
}

void Clock::JumpTo(Time moment) { virtualNow_ = std::max(virtualNow_, moment); }

std::chrono::nanoseconds Clock::SleepUntil(Time moment) const {
  constexpr std::chrono::nanoseconds longest = std::chrono::hours(1);
  const Time now = Now();
  if (moment <= now) return std::chrono::nanoseconds(0);
  // Rounded up: waking too early would cost a second sleep.
  const double sleep = std::ceil(static_cast<double>((moment - now).count()) * 1000 / timeScale_) + 1;
  return sleep < static_cast<double>(longest.count())
             ? std::chrono::nanoseconds(static_cast<std::int64_t>(sleep))
             : longest;
}

}  // namespace toolkit::loop

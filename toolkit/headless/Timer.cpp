#include "toolkit/headless/Timer.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include "OrvikTypeLib/HostError.h"
#include "toolkit/headless/Desktop.h"

namespace toolkit::headless {

Timer::Timer(std::shared_ptr<Desktop> desktop, std::string name)
    : Control(std::move(desktop), std::move(name)) {
  enabled_ = false;
}

Timer::~Timer() { GetDesktop().Loop().Forget(call_); }

void Timer::SetEnabled(bool enabled) {
  enabled_ = enabled;
  Restart();
}

void Timer::SetInterval(int milliseconds) {
  if (milliseconds < 0)
    Fail(orvik::HostError::kInvalidArgument,
         "timer \"" + Name() + "\" cannot tick every " + std::to_string(milliseconds) + " ms");
  interval_ = milliseconds;
  Restart();
}

void Timer::Restart() {
  auto& loop = GetDesktop().Loop();
  loop.Forget(std::exchange(call_, 0));
  if (!enabled_ || interval_ == 0) return;
  due_ = loop.Now() + std::chrono::milliseconds(interval_);
  call_ = loop.CallAt(due_, [this] { Due(); });
}

void Timer::Due() {
  const auto self = shared_from_this();
  auto& loop = GetDesktop().Loop();
  const auto interval = std::chrono::milliseconds(interval_);
  const auto now = loop.Now();
  due_ = due_ + interval > now ? due_ + interval : now + interval;
  call_ = loop.CallAt(due_, [this] { Due(); });
  tick_.Raise();
}

}  // namespace toolkit::headless

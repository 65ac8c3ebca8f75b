#include "host/loop/EventLoop.h"

#include <algorithm>

#include "OrvikTypeLib/HostError.h"

namespace bench {

using orvik::platform::Time;

ILoop::Id EventLoop::WatchReadable(int descriptor, std::function<void()> callback) {
  if (Kind() == ClockKind::kVirtual)
    throw orvik::HostError(orvik::HostError::kInvalidArgument, "orvik-bench",
                           "a device cannot be watched on the virtual clock; use the real clock");
  return poller_.Watch(descriptor, std::move(callback));
}

ILoop::Id EventLoop::CallAt(Time when, std::function<void()> callback) {
  // Behind the calls of the round that is on, or one that renews itself in the past would keep them waiting.
  return calls_.Add(std::max(when, lastRound_), std::move(callback));
}

void EventLoop::Forget(Id id) {
  if (id & Poller::kWatchBit)
    poller_.Forget(id);
  else
    calls_.Remove(id);
}

void EventLoop::Post(std::function<void()> work) { posted_.emplace_back(nextPosted_++, std::move(work)); }

bool EventLoop::Process() { return Round(std::chrono::nanoseconds(0)); }

WaitOutcome EventLoop::Wait(Time deadline) {
  if (Kind() == ClockKind::kReal) {
    const Time until = Pending() ? Now() : calls_.Empty() ? deadline : std::min(deadline, calls_.NextTime());
    return Round(clock_.SleepUntil(until)) ? WaitOutcome::kProcessed : WaitOutcome::kNothing;
  }
  if (Process()) return WaitOutcome::kProcessed;
  if (calls_.Empty() && deadline == Time::max()) return WaitOutcome::kNothingLeft;
  clock_.JumpTo(calls_.Empty() ? deadline : std::min(deadline, calls_.NextTime()));
  return Process() ? WaitOutcome::kProcessed : WaitOutcome::kNothing;
}

void EventLoop::Clear() {
  while (!posted_.empty()) posted_.pop_front();
  calls_.Clear();
  poller_.Clear();
}

bool EventLoop::Pending() const {
  return !posted_.empty() || (!calls_.Empty() && calls_.NextTime() <= clock_.Now());
}

bool EventLoop::Round(std::chrono::nanoseconds sleep) {
  const std::uint64_t posted = nextPosted_;
  const std::uint64_t calls = calls_.Mark();
  bool processed = poller_.Poll(sleep);
  processed |= RunWake();
  processed |= RunPosted(posted);
  processed |= RunCalls(calls);
  return processed;
}

bool EventLoop::RunWake() {
  if (!poller_.TakeWake()) return false;
  woken_.Raise();
  return true;
}

bool EventLoop::RunPosted(std::uint64_t mark) {
  bool ran = false;
  while (!posted_.empty() && posted_.front().first < mark) {
    const auto work = std::move(posted_.front().second);
    posted_.pop_front();
    ran = true;
    work();
  }
  return ran;
}

bool EventLoop::RunCalls(std::uint64_t mark) {
  const Time now = Now();
  lastRound_ = now;
  bool ran = false;
  while (const auto callback = calls_.TakeDue(now, mark)) {
    ran = true;
    callback();
  }
  return ran;
}

}  // namespace bench

#include "toolkit/loop/EventLoop.h"

#include <algorithm>

#include "OrvikTypeLib/HostError.h"

namespace toolkit::loop {

using orvik::platform::Time;

ILoop::Id EventLoop::WatchReadable(int descriptor, std::function<void()> callback) {
  if (Kind() == ClockKind::kVirtual)
    throw orvik::HostError(orvik::HostError::kInvalidArgument, "orvik-bench",
                           "a device cannot be watched on the virtual clock; use the real clock");
  const Id id = poller_.Watch(descriptor, std::move(callback));
  WatchesChanged();
  return id;
}

ILoop::Id EventLoop::CallAt(Time when, std::function<void()> callback) {
  // Not before the current round, or a call that renews itself in the past would starve the others.
  const Id id = calls_.Add(std::max(when, lastRound_), std::move(callback));
  WorkAdded();
  return id;
}

void EventLoop::Forget(Id id) {
  if (!(id & Poller::kWatchBit)) return calls_.Remove(id);
  poller_.Forget(id);
  WatchesChanged();
}

void EventLoop::Post(std::function<void()> work) {
  posted_.emplace_back(nextPosted_++, std::move(work));
  WorkAdded();
}

void EventLoop::SetDispatcher(IEventDispatcher* dispatcher) {
  dispatcher_ = dispatcher;
  WatchesChanged();
  WorkAdded();
}

std::chrono::nanoseconds EventLoop::UntilWork() const {
  if (Pending()) return std::chrono::nanoseconds::zero();
  const bool never = calls_.Empty() || Kind() == ClockKind::kVirtual;
  return never ? std::chrono::nanoseconds::max() : clock_.SleepUntil(calls_.NextTime());
}

void EventLoop::WorkAdded() {
  if (dispatcher_) dispatcher_->WorkAdded();
}

void EventLoop::WatchesChanged() {
  if (dispatcher_) dispatcher_->Watch(poller_.Descriptors());
}

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
  WatchesChanged();
}

bool EventLoop::Pending() const {
  return !posted_.empty() || (!calls_.Empty() && calls_.NextTime() <= clock_.Now());
}

bool EventLoop::Round(std::chrono::nanoseconds sleep) {
  if (dispatcher_) {
    // Before the marks: work that is added meanwhile belongs to this round.
    dispatcher_->Sleep(sleep);
    poller_.EmptyWakeDescriptor();
    sleep = std::chrono::nanoseconds::zero();
  }
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

}  // namespace toolkit::loop

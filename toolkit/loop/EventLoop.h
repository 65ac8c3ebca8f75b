#pragma once

#include <chrono>
#include <cstdint>
#include <deque>
#include <functional>
#include <utility>

#include "platform/Event.h"
#include "toolkit/loop/Clock.h"
#include "toolkit/loop/IEventDispatcher.h"
#include "toolkit/loop/ILoop.h"
#include "toolkit/loop/Poller.h"
#include "toolkit/loop/TimerQueue.h"

namespace toolkit::loop {

/// The outcome of a wait.
enum class WaitOutcome {
  kProcessed,    ///< something happened and was processed
  kNothing,      ///< the deadline was reached, or the sleep ended early
  kNothingLeft,  ///< virtual clock, no deadline, and nothing pending
};

/// The event loop: one clock, timed calls, posted work, watched descriptors. Reentrant: a callback may wait.
///
/// One round processes what was pending at its start: descriptors first, so that a reply comes before a
/// time-out that is due at the same time, then posted work, then timed calls. Later work is left for the next
/// round, so that no source starves another. An error of a callback is thrown to the waiting caller; other
/// work is kept.
class EventLoop final : public ILoop {
 public:
  EventLoop(ClockKind kind, double timeScale) : clock_(kind, timeScale) {}

  ClockKind Kind() const { return clock_.Kind(); }
  orvik::platform::Time Now() const override { return clock_.Now(); }
  /// `HostError` 5 on a virtual clock, which does not apply to devices.
  Id WatchReadable(int descriptor, std::function<void()> callback) override;
  /// A time in the past is due now.
  Id CallAt(orvik::platform::Time when, std::function<void()> callback) override;
  void Forget(Id id) override;
  void Post(std::function<void()> work);

  /// Ends the current or the next wait at once and raises `Woken`. May be called from a signal handler.
  void Wake() noexcept { poller_.Wake(); }
  orvik::platform::Event<>& Woken() { return woken_; }

  /// Makes the dispatcher sleep instead of this loop; null removes it. It must outlive its use here.
  void SetDispatcher(IEventDispatcher* dispatcher);
  /// How long the loop may sleep: 0 if work is pending, the maximum if nothing is due or the clock is
  /// virtual.
  std::chrono::nanoseconds UntilWork() const;

  /// Processes pending work; returns whether there was any.
  bool Process();
  WaitOutcome Wait(orvik::platform::Time deadline);
  /// Removes all work, calls and watches.
  void Clear();

 private:
  bool Pending() const;
  void WorkAdded();
  void WatchesChanged();
  bool Round(std::chrono::nanoseconds sleep);
  bool RunWake();
  bool RunPosted(std::uint64_t mark);
  bool RunCalls(std::uint64_t mark);

  Clock clock_;
  TimerQueue calls_;
  Poller poller_;
  std::deque<std::pair<std::uint64_t, std::function<void()>>> posted_;
  std::uint64_t nextPosted_ = 0;
  // The time of the last round.
  orvik::platform::Time lastRound_{0};
  orvik::platform::Event<> woken_;
  IEventDispatcher* dispatcher_ = nullptr;
};

}  // namespace toolkit::loop

#pragma once

#include <chrono>
#include <cstdint>
#include <deque>
#include <functional>
#include <utility>

#include "host/loop/Clock.h"
#include "host/loop/IEventDispatcher.h"
#include "host/loop/ILoop.h"
#include "host/loop/Poller.h"
#include "host/loop/TimerQueue.h"
#include "platform/Event.h"

namespace bench {

/// What a wait came back with.
enum class WaitOutcome {
  kProcessed,    ///< something happened and was processed
  kNothing,      ///< the deadline has come, or the sleep ended early
  kNothingLeft,  ///< virtual clock, no deadline, and nothing that could ever happen
};

/// The event loop: one clock, timed calls, posted work, watched descriptors. Reentrant: a callback may wait.
///
/// One round processes what was pending when it began, descriptors first (a reply that has come in counts
/// before the time-out that fell due with it), then posted work, then timed calls. What comes in meanwhile
/// waits for the next round, so that no source starves another. An error that a callback throws goes to
/// whoever waits, and loses nothing but that callback.
class EventLoop final : public ILoop {
 public:
  EventLoop(ClockKind kind, double timeScale) : clock_(kind, timeScale) {}

  ClockKind Kind() const { return clock_.Kind(); }
  orvik::platform::Time Now() const override { return clock_.Now(); }
  /// `HostError` 5 on a virtual clock: nothing outside keeps its time.
  Id WatchReadable(int descriptor, std::function<void()> callback) override;
  /// A time that has passed is due now.
  Id CallAt(orvik::platform::Time when, std::function<void()> callback) override;
  void Forget(Id id) override;
  void Post(std::function<void()> work);

  /// Ends the present or the next wait at once, and has `Woken` raised. May be called from a signal handler.
  void Wake() noexcept { poller_.Wake(); }
  orvik::platform::Event<>& Woken() { return woken_; }

  /// From now on all sleeping is done there; empty: here. The dispatcher lives until it is taken away again.
  void SetDispatcher(IEventDispatcher* dispatcher);
  /// How long the loop may sleep when nothing else happens: 0 when work is pending, the longest time there is
  /// when nothing is due. On a virtual clock nothing falls due by waiting.
  std::chrono::nanoseconds UntilWork() const;

  /// Processes what is pending; returns whether anything was.
  bool Process();
  WaitOutcome Wait(orvik::platform::Time deadline);
  /// Lets go of all work, calls and watches.
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
  // The time whose calls were run last.
  orvik::platform::Time lastRound_{0};
  orvik::platform::Event<> woken_;
  IEventDispatcher* dispatcher_ = nullptr;
};

}  // namespace bench

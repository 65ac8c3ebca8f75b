#pragma once

#include <poll.h>

#include <atomic>
#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

namespace bench {

/// Sleeps until a watched descriptor can be read or has hung up, or until it is woken.
class Poller {
 public:
  using Id = std::uint64_t;
  /// Set in every identifier that is given here, so that they differ from those of calls.
  static constexpr Id kWatchBit = Id{1} << 63;

  Poller();
  ~Poller();
  Poller(const Poller&) = delete;
  Poller& operator=(const Poller&) = delete;

  Id Watch(int descriptor, std::function<void()> callback);
  /// An identifier that has ended changes nothing.
  void Forget(Id id);
  void Clear() { watches_.clear(); }
  /// What a sleep looks at: the descriptor that `Wake` makes readable, then the watched ones.
  std::vector<int> Descriptors() const;

  /// Ends a sleep, the present or the next one. May be called from a signal handler or another thread.
  void Wake() noexcept;
  /// Whether `Wake` has been called since the last time this was asked.
  bool TakeWake();
  /// After a sleep elsewhere: the wake-up has done its work and must not end the next sleep too.
  void EmptyWakeDescriptor() noexcept;

  /// Sleeps at most that long and calls back for what can be read. Returns whether it called anybody; a
  /// signal ends the sleep early. `HostError` 57 when the system refuses to wait.
  bool Poll(std::chrono::nanoseconds longest);

 private:
  struct Watched {
    Id id = 0;
    int descriptor = -1;
    std::shared_ptr<const std::function<void()>> callback;
  };

  bool Sleep(std::chrono::nanoseconds longest);
  bool CallBack();

  int wakeDescriptor_ = -1;
  std::atomic<bool> woken_{false};
  Id nextId_ = 1;
  std::vector<Watched> watches_;
  // Filled by the latest poll; a poll nested in a callback makes it worthless for the outer one.
  std::vector<pollfd> polled_;
  std::vector<Id> polledIds_;
  std::uint64_t polls_ = 0;
};

}  // namespace bench

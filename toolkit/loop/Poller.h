#pragma once

#include <poll.h>

#include <atomic>
#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

namespace toolkit::loop {

/// Sleeps until a watched descriptor is readable or has hung up, or until woken.
class Poller {
 public:
  using Id = std::uint64_t;
  /// Set in each identifier, to distinguish watches from timed calls.
  static constexpr Id kWatchBit = Id{1} << 63;

  Poller();
  ~Poller();
  Poller(const Poller&) = delete;
  Poller& operator=(const Poller&) = delete;

  Id Watch(int descriptor, std::function<void()> callback);
  /// Ignores a watch that has ended.
  void Forget(Id id);
  void Clear() { watches_.clear(); }
  /// The descriptor that `Wake` makes readable, then the watched ones.
  std::vector<int> Descriptors() const;

  /// Ends the current or the next sleep. May be called from a signal handler or another thread.
  void Wake() noexcept;
  /// Whether `Wake` was called since the last call of this function.
  bool TakeWake();
  /// After a sleep in a dispatcher: the wake-up must not end the next sleep too.
  void EmptyWakeDescriptor() noexcept;

  /// Sleeps at most that long and calls back for readable descriptors. Returns whether there were any; a
  /// signal ends the sleep early. `HostError` 57 if the system call fails.
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
  // The results of the latest poll; invalid for the outer poll after a nested one.
  std::vector<pollfd> polled_;
  std::vector<Id> polledIds_;
  std::uint64_t polls_ = 0;
};

}  // namespace toolkit::loop

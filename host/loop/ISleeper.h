#pragma once

#include <chrono>
#include <vector>

namespace bench {

/// Sleeps in the event loop's place, so that the loop of a window system is served by the same thread. Such a
/// loop may also run without being asked (an open menu, a dialog of the system); then it is the sleeper that
/// has the event loop processed.
class ISleeper {
 public:
  ISleeper() = default;
  ISleeper(const ISleeper&) = delete;
  ISleeper& operator=(const ISleeper&) = delete;
  virtual ~ISleeper() = default;

  /// From now on a sleep ends when one of these descriptors, and none but these, can be read.
  virtual void Watch(const std::vector<int>& descriptors) = 0;
  /// Something was posted, or has a time at which it is due: a sleep that is on looks again.
  virtual void WorkAdded() = 0;
  /// Serves the window system and sleeps at most that long; 0 does not sleep. What it throws goes to whoever
  /// waits.
  virtual void Sleep(std::chrono::nanoseconds longest) = 0;
};

}  // namespace bench

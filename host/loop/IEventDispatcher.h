#pragma once

#include <chrono>
#include <vector>

namespace bench {

/// Sleeps in the event loop's place, so that the loop of a window system is served by the same thread. Such a
/// loop may also run without being asked (an open menu, a dialog of the system); then it is the dispatcher
/// that has the event loop processed.
class IEventDispatcher {
 public:
  IEventDispatcher() = default;
  IEventDispatcher(const IEventDispatcher&) = delete;
  IEventDispatcher& operator=(const IEventDispatcher&) = delete;
  virtual ~IEventDispatcher() = default;

  /// From now on a sleep ends when one of these descriptors, and none but these, can be read.
  virtual void Watch(const std::vector<int>& descriptors) = 0;
  /// Something was posted, or has a time at which it is due: a sleep that is on looks again.
  virtual void WorkAdded() = 0;
  /// Serves the window system and sleeps at most that long; 0 does not sleep. What it throws goes to whoever
  /// waits.
  virtual void Sleep(std::chrono::nanoseconds longest) = 0;
};

}  // namespace bench

#pragma once

#include <chrono>
#include <vector>

namespace toolkit::loop {

/// Sleeps instead of the event loop, so that one thread serves the window system too. The window system may
/// also run a loop of its own (an open menu, a file dialog); the dispatcher then processes the event loop.
class IEventDispatcher {
 public:
  IEventDispatcher() = default;
  IEventDispatcher(const IEventDispatcher&) = delete;
  IEventDispatcher& operator=(const IEventDispatcher&) = delete;
  virtual ~IEventDispatcher() = default;

  /// A sleep ends when one of these descriptors becomes readable. Replaces the earlier list.
  virtual void Watch(const std::vector<int>& descriptors) = 0;
  /// Work was posted or scheduled: a sleep in progress checks again.
  virtual void WorkAdded() = 0;
  /// Serves the window system and sleeps at most that long; 0 does not sleep. Errors go to the waiting
  /// caller.
  virtual void Sleep(std::chrono::nanoseconds longest) = 0;
};

}  // namespace toolkit::loop

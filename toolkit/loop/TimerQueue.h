#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <unordered_map>
#include <utility>

#include "platform/Types.h"

namespace toolkit::loop {

/// Timed calls, earliest first; calls with equal times run in the order in which they were added.
class TimerQueue {
 public:
  /// Never 0 and never reused.
  using Id = std::uint64_t;

  Id Add(orvik::platform::Time when, std::function<void()> callback);
  /// Does nothing for a call that has run or was removed.
  void Remove(Id id);
  void Clear();

  bool Empty() const { return calls_.empty(); }
  /// The time of the earliest call. The queue must not be empty.
  orvik::platform::Time NextTime() const { return calls_.begin()->first.first; }
  /// Separates the calls added so far from later ones.
  Id Mark() const { return nextId_; }
  /// Removes and returns the earliest call due at `now`; empty if there is none or it was added after `mark`.
  std::function<void()> TakeDue(orvik::platform::Time now, Id mark);

 private:
  using Key = std::pair<orvik::platform::Time, Id>;

  std::map<Key, std::function<void()>> calls_;
  std::unordered_map<Id, orvik::platform::Time> times_;
  Id nextId_ = 1;
};

}  // namespace toolkit::loop

#include "toolkit/loop/TimerQueue.h"

namespace toolkit::loop {

TimerQueue::Id TimerQueue::Add(orvik::platform::Time when, std::function<void()> callback) {
  const Id id = nextId_++;
  times_.emplace(id, when);
  calls_.emplace(Key{when, id}, std::move(callback));
  return id;
}

void TimerQueue::Remove(Id id) {
  const auto found = times_.find(id);
  if (found == times_.end()) return;
  // Destroyed last: the destructor of what the callback holds may use this queue.
  const auto removed = calls_.extract(Key{found->second, id});
  times_.erase(found);
}

void TimerQueue::Clear() {
  while (!times_.empty()) Remove(times_.begin()->first);
}

std::function<void()> TimerQueue::TakeDue(orvik::platform::Time now, Id mark) {
  if (calls_.empty()) return {};
  const auto& [when, id] = calls_.begin()->first;
  if (when > now || id >= mark) return {};
  times_.erase(id);
  return std::move(calls_.extract(calls_.begin()).mapped());
}

}  // namespace toolkit::loop

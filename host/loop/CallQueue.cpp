#include "host/loop/CallQueue.h"

#include <utility>

namespace bench {
namespace {

// An identifier is the slot's generation (31 bits) above its index plus one; the top bit stays clear.
constexpr std::uint32_t kGenerations = 0x7FFFFFFF;

CallQueue::Id IdOf(std::uint32_t slot, std::uint32_t generation) {
  return (CallQueue::Id{generation} << 32) | (CallQueue::Id{slot} + 1);
}

}  // namespace

CallQueue::Id CallQueue::Add(orvik::platform::Time when, std::function<void()> callback) {
  if (free_.empty()) {
    free_.push_back(static_cast<std::uint32_t>(slots_.size()));
    slots_.emplace_back();
  }
  const std::uint32_t slot = free_.back();
  free_.pop_back();
  Slot& added = slots_[slot];
  added.when = when;
  added.order = nextOrder_++;
  added.callback = std::move(callback);
  heap_.push_back(slot);
  Put(heap_.size() - 1, slot);
  MoveUp(heap_.size() - 1);
  return IdOf(slot, added.generation);
}

void CallQueue::Remove(Id id) {
  const auto slot = static_cast<std::uint32_t>((id & 0xFFFFFFFF) - 1);
  if (slot >= slots_.size() || slots_[slot].place == kFree || IdOf(slot, slots_[slot].generation) != id)
    return;
  Release(slot);
}

void CallQueue::Clear() {
  while (!heap_.empty()) Release(heap_.back());
}

std::function<void()> CallQueue::TakeDue(orvik::platform::Time now, std::uint64_t mark) {
  if (heap_.empty()) return {};
  const Slot& first = slots_[heap_.front()];
  if (first.when > now || first.order >= mark) return {};
  return Release(heap_.front());
}

std::function<void()> CallQueue::Release(std::uint32_t slot) {
  Slot& released = slots_[slot];
  const std::size_t place = std::exchange(released.place, kFree);
  released.generation = (released.generation + 1) & kGenerations;
  // Moved out first: what the callback holds may come back here when it is destroyed.
  auto callback = std::exchange(released.callback, nullptr);
  free_.push_back(slot);

  const std::uint32_t last = heap_.back();
  heap_.pop_back();
  if (last != slot) {
    Put(place, last);
    MoveUp(place);
    MoveDown(slots_[last].place);
  }
  return callback;
}

bool CallQueue::Before(std::uint32_t a, std::uint32_t b) const {
  const Slot& left = slots_[a];
  const Slot& right = slots_[b];
  return left.when != right.when ? left.when < right.when : left.order < right.order;
}

void CallQueue::Put(std::size_t place, std::uint32_t slot) {
  heap_[place] = slot;
  slots_[slot].place = place;
}

void CallQueue::MoveUp(std::size_t place) {
  const std::uint32_t slot = heap_[place];
  while (place > 0) {
    const std::size_t parent = (place - 1) / 2;
    if (!Before(slot, heap_[parent])) break;
    Put(place, heap_[parent]);
    place = parent;
  }
  Put(place, slot);
}

void CallQueue::MoveDown(std::size_t place) {
  const std::uint32_t slot = heap_[place];
  for (;;) {
    std::size_t child = 2 * place + 1;
    if (child >= heap_.size()) break;
    if (child + 1 < heap_.size() && Before(heap_[child + 1], heap_[child])) ++child;
    if (!Before(heap_[child], slot)) break;
    Put(place, heap_[child]);
    place = child;
  }
  Put(place, slot);
}

}  // namespace bench

#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

#include "platform/Types.h"

namespace bench {

/// Calls that are due at given times, earliest first, and in the order of their arrival where the times are
/// the same. Adding and removing cost the logarithm of their number; nothing of a removed call stays behind.
class CallQueue {
 public:
  /// Never 0; identifiers of calls that ended are not given again soon.
  using Id = std::uint64_t;

  Id Add(orvik::platform::Time when, std::function<void()> callback);
  /// An identifier that has ended changes nothing.
  void Remove(Id id);
  void Clear();

  bool Empty() const { return heap_.empty(); }
  /// The time of the earliest call; only when there is one.
  orvik::platform::Time NextTime() const { return slots_[heap_.front()].when; }
  /// Marks the calls that are there now against those that come later.
  std::uint64_t Mark() const { return nextOrder_; }
  /// Takes the earliest call that is due at `now` and was added before `mark`; empty when there is none.
  std::function<void()> TakeDue(orvik::platform::Time now, std::uint64_t mark);

 private:
  struct Slot {
    orvik::platform::Time when{};
    std::uint64_t order = 0;
    std::function<void()> callback;
    std::uint32_t generation = 0;
    std::size_t place = kFree;
  };
  static constexpr std::size_t kFree = static_cast<std::size_t>(-1);

  bool Before(std::uint32_t a, std::uint32_t b) const;
  void Put(std::size_t place, std::uint32_t slot);
  void MoveUp(std::size_t place);
  void MoveDown(std::size_t place);
  std::function<void()> Release(std::uint32_t slot);

  std::vector<Slot> slots_;
  std::vector<std::uint32_t> free_;
  std::vector<std::uint32_t> heap_;
  std::uint64_t nextOrder_ = 0;
};

}  // namespace bench

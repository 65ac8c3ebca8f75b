#pragma once

namespace bench {

/// How often a queue that does not empty is looked at; with a millisecond between looks that is a tenth of a
/// second, in which a line of 9,600 baud sends a hundred bytes.
inline constexpr int kLooksAtQueue = 100;

/// Waits until an output queue is empty.
/// @param unsent gives the bytes that are still in it
/// @param pause waits for a millisecond
/// @return false when it still is not after `kLooksAtQueue` pauses
template <class Unsent, class Pause>
bool AwaitEmptyQueue(Unsent unsent, Pause pause) {
  for (int looks = 0; unsent() > 0; ++looks) {
    if (looks == kLooksAtQueue) return false;
    pause();
  }
  return true;
}

}  // namespace bench

#pragma once

namespace host::serial {

/// How many pauses of a millisecond to wait. At 9,600 baud that is enough for about a hundred bytes.
inline constexpr int kMaxPauses = 100;

/// Waits until an output queue is empty.
/// @param unsent returns the number of bytes in the queue
/// @param pause waits for a millisecond
/// @return false if bytes are left after `kMaxPauses` pauses
template <class Unsent, class Pause>
bool AwaitEmptyQueue(Unsent unsent, Pause pause) {
  for (int pauses = 0; unsent() > 0; ++pauses) {
    if (pauses == kMaxPauses) return false;
    pause();
  }
  return true;
}

}  // namespace host::serial

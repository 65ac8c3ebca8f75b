#pragma once

#include <cstddef>

namespace bench {

/// Room at the end of the heap for the small objects that a large text is about to be read into; what they
/// leave of it goes back to the system later. Where the system has large pages, the room lies on those: the
/// first touch of every 4 KiB costs a fifth of the time of reading otherwise. A small room is left to the
/// heap as it is.
///
/// For the thread that reads; one at a time.
class HeapRoom {
 public:
  /// @param size in bytes, as expected: more objects find their place as well
  explicit HeapRoom(std::size_t size);
  HeapRoom(const HeapRoom&) = delete;
  HeapRoom& operator=(const HeapRoom&) = delete;
  ~HeapRoom();

 private:
  bool made_ = false;
};

}  // namespace bench

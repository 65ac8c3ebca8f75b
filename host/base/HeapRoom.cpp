#include "host/base/HeapRoom.h"

#include <malloc.h>

#include <cstdlib>
#include <limits>

#include "host/base/LargePages.h"

namespace bench {
namespace {

constexpr std::size_t kWorthIt = std::size_t{32} * 1024 * 1024;
/// The allocator's own values.
constexpr int kTrimThreshold = 128 * 1024;
constexpr int kMostMappings = 65536;

}  // namespace

HeapRoom::HeapRoom(std::size_t size) {
#ifndef __SANITIZE_ADDRESS__  // which has a heap of its own kind
  if (size < kWorthIt) return;
  made_ = true;
  mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());
  mallopt(M_MMAP_MAX, 0);
  void* room = std::malloc(size);
  mallopt(M_MMAP_MAX, kMostMappings);
  if (!room) return;
  PreferLargePages(room, size);
  std::free(room);
#endif
}

HeapRoom::~HeapRoom() {
  if (made_) mallopt(M_TRIM_THRESHOLD, kTrimThreshold);
}

}  // namespace bench

#include <gtest/gtest.h>
#include <malloc.h>

#include <cstdlib>
#include <memory>
#include <vector>

#include "host/services/HeapRoom.h"

#ifndef __SANITIZE_ADDRESS__  // whose heap knows no such room

namespace bench {
namespace {

constexpr std::size_t kMiB = 1024 * 1024;

/// The bytes that the heap has from the system, without large blocks that lie elsewhere.
std::size_t HeapSize() { return mallinfo2().arena; }

TEST(HeapRoom, HoldsSmallObjectsAndGivesTheRestBack) {
  const auto before = HeapSize();
  std::vector<std::unique_ptr<std::vector<char>>> objects;
  {
    const HeapRoom room(64 * kMiB);
    const auto with = HeapSize();
    EXPECT_GE(with, before + 60 * kMiB) << "less what the heap had free at its end";
    for (int i = 0; i < 10'000; ++i) objects.push_back(std::make_unique<std::vector<char>>(100));
    EXPECT_EQ(HeapSize(), with) << "they have their place in it";
  }
  objects.clear();
  objects.push_back(std::make_unique<std::vector<char>>(100 * 1024));
  objects.clear();
  EXPECT_LT(HeapSize(), before + 16 * kMiB);
}

TEST(HeapRoom, LeavesASmallOneToTheHeap) {
  const auto before = HeapSize();
  const HeapRoom room(kMiB);
  EXPECT_EQ(HeapSize(), before);
}

TEST(HeapRoom, DoesWithoutRoomThatTheSystemDoesNotHave) {
  const auto before = HeapSize();
  const HeapRoom room(std::size_t{1} << 60);
  EXPECT_EQ(HeapSize(), before);
}

}  // namespace
}  // namespace bench

#endif

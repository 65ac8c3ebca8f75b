#include <gtest/gtest.h>

#include "host/serial/OutputQueue.h"

namespace host {
namespace {

/// A queue that sends one byte in each pause.
struct Queue {
  int unsent = 0;
  int pauses = 0;

  bool Await(int sentAtOnce = 1) {
    return serial::AwaitEmptyQueue([this] { return unsent; },
                                   [this, sentAtOnce] {
                                     unsent -= sentAtOnce;
                                     ++pauses;
                                   });
  }
};

TEST(OutputQueue, DoesNotWaitWhenEmpty) {
  Queue queue;
  EXPECT_TRUE(queue.Await());
  EXPECT_EQ(queue.pauses, 0);
}

TEST(OutputQueue, WaitsUntilEmpty) {
  Queue queue{7};
  EXPECT_TRUE(queue.Await());
  EXPECT_EQ(queue.pauses, 7);
}

TEST(OutputQueue, StopsWaitingForABlockedLine) {
  Queue queue{1};
  EXPECT_FALSE(queue.Await(0));
  EXPECT_EQ(queue.pauses, serial::kMaxPauses);
}

}  // namespace
}  // namespace host

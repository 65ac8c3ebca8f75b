#include <gtest/gtest.h>

#include <map>
#include <random>
#include <string>
#include <vector>

#include "toolkit/loop/TimerQueue.h"

namespace host {
namespace {

using orvik::platform::Time;

class Calls : public testing::Test {
 protected:
  toolkit::loop::TimerQueue::Id Add(int when, int name) {
    return queue.Add(Time(when), [this, name] { ran.push_back(name); });
  }
  void RunDue(int now) {
    while (const auto call = queue.TakeDue(Time(now), queue.Mark())) call();
  }

  toolkit::loop::TimerQueue queue;
  std::vector<int> ran;
};

TEST_F(Calls, RunInOrderOfTime) {
  Add(30, 3);
  Add(10, 1);
  Add(20, 2);
  EXPECT_EQ(queue.NextTime(), Time(10));
  RunDue(20);
  EXPECT_EQ(ran, (std::vector<int>{1, 2}));
  RunDue(30);
  EXPECT_EQ(ran, (std::vector<int>{1, 2, 3}));
  EXPECT_TRUE(queue.Empty());
}

TEST_F(Calls, RunInOrderOfAdditionAtEqualTimes) {
  for (int name = 0; name < 20; ++name) Add(5, name);
  RunDue(5);
  for (int name = 0; name < 20; ++name) EXPECT_EQ(ran[static_cast<std::size_t>(name)], name);
}

TEST_F(Calls, DoNotRunWhenRemoved) {
  const auto first = Add(1, 1);
  const auto second = Add(2, 2);
  Add(3, 3);
  queue.Remove(second);
  queue.Remove(second);
  queue.Remove(0);
  queue.Remove(12345678);
  RunDue(10);
  EXPECT_EQ(ran, (std::vector<int>{1, 3}));
  queue.Remove(first);
}

TEST_F(Calls, AreNotRemovedByAnOldIdentifier) {
  const auto first = Add(1, 1);
  queue.Remove(first);
  Add(1, 2);
  queue.Remove(first);
  RunDue(1);
  EXPECT_EQ(ran, (std::vector<int>{2}));
}

TEST_F(Calls, DoNotRunWhenAddedAfterTheMark) {
  Add(1, 1);
  const auto mark = queue.Mark();
  Add(1, 2);
  while (const auto call = queue.TakeDue(Time(1), mark)) call();
  EXPECT_EQ(ran, (std::vector<int>{1}));
}

TEST_F(Calls, MayBeAddedDuringARemoval) {
  struct Readder {
    toolkit::loop::TimerQueue* queue;
    ~Readder() {
      queue->Add(Time(1), [] {});
    }
  };
  const auto id = queue.Add(Time(1), [held = std::make_shared<Readder>(Readder{&queue})] {});
  queue.Remove(id);
  EXPECT_FALSE(queue.Empty());
}

class RandomCalls : public testing::TestWithParam<unsigned> {};

TEST_P(RandomCalls, BehaveAsASortedList) {
  SCOPED_TRACE("seed " + std::to_string(GetParam()));
  std::mt19937 random(GetParam());
  const auto pick = [&](int most) { return std::uniform_int_distribution<int>(0, most)(random); };
  toolkit::loop::TimerQueue queue;
  std::multimap<int, int> expected;
  std::vector<std::pair<toolkit::loop::TimerQueue::Id, std::multimap<int, int>::iterator>> live;
  int last = -1;
  for (int step = 0; step < 2000; ++step) {
    const int choice = pick(9);
    if (choice < 5) {
      const int when = pick(50);
      const auto id = queue.Add(Time(when), [&last, step] { last = step; });
      live.emplace_back(id, expected.emplace(when, step));
    } else if (choice < 7 && !live.empty()) {
      const auto index = static_cast<std::size_t>(pick(static_cast<int>(live.size()) - 1));
      queue.Remove(live[index].first);
      expected.erase(live[index].second);
      live.erase(live.begin() + static_cast<std::ptrdiff_t>(index));
    } else if (!expected.empty()) {
      const auto call = queue.TakeDue(Time(50), queue.Mark());
      ASSERT_TRUE(call);
      call();
      ASSERT_EQ(last, expected.begin()->second);
      std::erase_if(live, [&](const auto& entry) { return entry.second == expected.begin(); });
      expected.erase(expected.begin());
    }
    ASSERT_EQ(queue.Empty(), expected.empty());
    if (!expected.empty()) {
      ASSERT_EQ(queue.NextTime(), Time(expected.begin()->first));
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomCalls, testing::Range(1U, 21U));

}  // namespace
}  // namespace host

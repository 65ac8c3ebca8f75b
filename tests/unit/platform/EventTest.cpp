#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/Event.h"

namespace orvik::platform {
namespace {

TEST(Event, RunsHandlersInTheOrderOfTheirSubscriptions) {
  Event<int> event;
  std::vector<int> calls;
  const auto first = event.Subscribe([&](int value) { calls.push_back(value); });
  const auto second = event.Subscribe([&](int value) { calls.push_back(10 * value); });
  event.Raise(1);
  event.Raise(2);
  EXPECT_EQ(calls, (std::vector<int>{1, 10, 2, 20}));
}

TEST(Event, ReleaseEndsTheSubscription) {
  Event<> event;
  int calls = 0;
  {
    const auto subscription = event.Subscribe([&] { ++calls; });
    event.Raise();
  }
  event.Raise();
  EXPECT_EQ(calls, 1);
}

TEST(Event, AHandlerMayEndItsOwnSubscription) {
  Event<> event;
  int calls = 0;
  Subscription subscription;
  subscription = event.Subscribe([&] {
    ++calls;
    subscription.End();
  });
  event.Raise();
  event.Raise();
  EXPECT_EQ(calls, 1);
}

TEST(Event, SkipsAHandlerThatEndsMeanwhile) {
  Event<> event;
  int calls = 0;
  Subscription second;
  const auto first = event.Subscribe([&] { second.End(); });
  second = event.Subscribe([&] { ++calls; });
  event.Raise();
  EXPECT_EQ(calls, 0);
}

TEST(Event, NewHandlerRunsAtTheNextRaise) {
  Event<> event;
  int calls = 0;
  std::vector<Subscription> added;
  const auto first = event.Subscribe([&] {
    if (added.empty()) added.push_back(event.Subscribe([&] { ++calls; }));
  });
  event.Raise();
  EXPECT_EQ(calls, 0);
  event.Raise();
  EXPECT_EQ(calls, 1);
}

TEST(Event, AHandlerMayReleaseTheObjectThatRaises) {
  auto event = std::make_unique<Event<>>();
  int calls = 0;
  const auto first = event->Subscribe([&] { event.reset(); });
  const auto second = event->Subscribe([&] { ++calls; });
  event->Raise();
  EXPECT_FALSE(event);
  EXPECT_EQ(calls, 1);
}

TEST(Event, HandlerKeepsItsCapturesWhileItRuns) {
  Event<> event;
  std::string seen;
  std::optional<Subscription> subscription;
  const auto held = std::make_shared<std::string>("alive");
  subscription = event.Subscribe([&, copy = held] {
    subscription.reset();
    seen = *copy;
  });
  event.Raise();
  EXPECT_EQ(seen, "alive");
  EXPECT_EQ(held.use_count(), 1);
}

TEST(Event, MayBeRaisedFromInsideAHandler) {
  Event<int> event;
  std::vector<int> calls;
  const auto handler = event.Subscribe([&](int depth) {
    calls.push_back(depth);
    if (depth < 3) event.Raise(depth + 1);
  });
  event.Raise(1);
  EXPECT_EQ(calls, (std::vector<int>{1, 2, 3}));
}

TEST(Event, SkipsAnEndedHandlerThatStillRuns) {
  Event<> event;
  int calls = 0;
  Subscription subscription;
  subscription = event.Subscribe([&] {
    ++calls;
    subscription.End();
    event.Raise();
  });
  event.Raise();
  EXPECT_EQ(calls, 1);
}

TEST(Event, OuterRaiseSkipsAHandlerEndedInANestedOne) {
  Event<int> event;
  std::vector<int> calls;
  Subscription second;
  const auto first = event.Subscribe([&](int depth) {
    if (depth == 1) return event.Raise(2);
    second.End();
  });
  second = event.Subscribe([&](int depth) { calls.push_back(depth); });
  event.Raise(1);
  EXPECT_TRUE(calls.empty());
}

TEST(Event, OuterRaiseSkipsAHandlerAddedInANestedOne) {
  Event<int> event;
  std::vector<int> calls;
  std::vector<Subscription> added;
  const auto first = event.Subscribe([&](int depth) {
    if (depth == 1) event.Raise(2);
    // Many, so that the list cannot stay where it is.
    while (depth == 2 && added.size() < 100)
      added.push_back(event.Subscribe([&](int when) { calls.push_back(when); }));
  });
  const auto last = event.Subscribe([&](int depth) { calls.push_back(10 * depth); });
  event.Raise(1);
  EXPECT_EQ(calls, (std::vector<int>{20, 10}));
  calls.clear();
  event.Raise(3);
  EXPECT_EQ(calls.size(), 101U);
}

TEST(Event, NestedChangesKeepTheOtherHandlers) {
  Event<int> event;
  std::vector<int> calls;
  Subscription ended;
  Subscription added;
  const auto first = event.Subscribe([&](int depth) {
    if (depth == 1) return event.Raise(2);
    // Ended ones are swept out of the list when another subscribes.
    ended.End();
    added = event.Subscribe([&](int) { calls.push_back(0); });
  });
  ended = event.Subscribe([&](int) { calls.push_back(-1); });
  const auto third = event.Subscribe([&](int depth) { calls.push_back(30 + depth); });
  const auto fourth = event.Subscribe([&](int depth) { calls.push_back(40 + depth); });
  event.Raise(1);
  EXPECT_EQ(calls, (std::vector<int>{32, 42, 31, 41}));
}

TEST(Event, AHandlerMayReplaceItsOwnSubscription) {
  Event<> event;
  std::string calls;
  Subscription subscription;
  subscription = event.Subscribe([&, kept = std::string("first ")] {
    subscription = event.Subscribe([&] { calls += "second "; });
    calls += kept;
  });
  event.Raise();
  event.Raise();
  EXPECT_EQ(calls, "first second ");
}

TEST(Event, ANestedRaiseMayReleaseTheObjectThatRaises) {
  auto event = std::make_unique<Event<int>>();
  std::vector<int> calls;
  const auto first = event->Subscribe([&](int depth) {
    if (depth == 1) return event->Raise(2);
    event.reset();
  });
  const auto second = event->Subscribe([&](int depth) { calls.push_back(depth); });
  event->Raise(1);
  EXPECT_FALSE(event);
  EXPECT_EQ(calls, (std::vector<int>{2, 1}));
}

TEST(Event, ASubscriptionMayOutliveTheEvent) {
  Subscription subscription;
  std::weak_ptr<int> held;
  {
    Event<> event;
    const auto kept = std::make_shared<int>(1);
    held = kept;
    subscription = event.Subscribe([kept] {});
  }
  EXPECT_FALSE(held.expired());
  subscription.End();
  EXPECT_TRUE(held.expired());
}

TEST(Event, RemovesEndedSubscriptions) {
  Event<> event;
  std::vector<std::weak_ptr<int>> watched;
  int calls = 0;
  const auto stays = event.Subscribe([&] { ++calls; });
  for (int round = 0; round < 1000; ++round) {
    const auto held = std::make_shared<int>(round);
    const auto gone = event.Subscribe([held, &calls] { calls += 1000; });
    watched.push_back(held);
  }
  event.Raise();
  EXPECT_EQ(calls, 1);
  for (const auto& held : watched) ASSERT_TRUE(held.expired());
}

TEST(Event, HandlersSeeEachOthersChangesOfAReference) {
  Event<bool&> event;
  bool seen = false;
  const auto first = event.Subscribe([](bool& value) { value = true; });
  const auto second = event.Subscribe([&](bool& value) { seen = value; });
  bool value = false;
  event.Raise(value);
  EXPECT_TRUE(value);
  EXPECT_TRUE(seen);
}

TEST(Event, HandlerErrorReachesTheCallerOfRaise) {
  Event<> event;
  const auto handler = event.Subscribe([] { throw std::string("broken"); });
  EXPECT_THROW(event.Raise(), std::string);
}

}  // namespace
}  // namespace orvik::platform

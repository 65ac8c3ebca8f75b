#include <algorithm>

#include "tests/unit/toolkit/ToolkitTest.h"

namespace toolkit::headless {
namespace {

class TimerTest : public ToolkitTest {
 protected:
  std::shared_ptr<platform::IForm> form = app->CreateForm("FClock");
  std::shared_ptr<platform::ITimer> timer = form->AddTimer("tmrClock");
  std::shared_ptr<int> ticks = Count(timer->Tick());
};

TEST_F(TimerTest, StartsDisabledWithoutInterval) {
  EXPECT_FALSE(timer->Enabled());
  EXPECT_EQ(timer->Interval(), 0);
}

TEST_F(TimerTest, TicksRepeatedly) {
  Start(*timer, 2000);
  app->WaitMessages(1h);
  EXPECT_EQ(app->Now(), 2s);
  app->WaitMessages(1h);
  EXPECT_EQ(app->Now(), 4s);
  EXPECT_EQ(*ticks, 2);
}

TEST_F(TimerTest, TicksOnAFormThatWasNeverLoaded) {
  EXPECT_FALSE(form->Loaded());
  Start(*timer, 10);
  app->WaitMessages(1h);
  EXPECT_EQ(*ticks, 1);
}

TEST_F(TimerTest, NeverTicksWithIntervalZero) {
  timer->SetEnabled(true);
  app->WaitMessages(1h);
  EXPECT_EQ(app->Now(), 1h);
  EXPECT_EQ(*ticks, 0);
}

TEST_F(TimerTest, DoesNotTickAfterBeingDisabled) {
  auto other = form->AddTimer("tmrOther");
  Start(*other, 100);
  Start(*timer, 100);
  On(other->Tick(), [&] { timer->SetEnabled(false); });
  app->WaitMessages(1h);
  EXPECT_EQ(app->Now(), 100ms);
  EXPECT_EQ(*ticks, 0);
}

TEST_F(TimerTest, StartsAWholeIntervalWhenEnabled) {
  Start(*timer, 1000);
  app->WaitMessages(600ms);
  timer->SetEnabled(true);
  app->WaitMessages(1h);
  EXPECT_EQ(app->Now(), 1600ms);
}

TEST_F(TimerTest, RestartsWhenTheIntervalChanges) {
  Start(*timer, 1000);
  app->WaitMessages(600ms);
  timer->SetInterval(200);
  app->WaitMessages(1h);
  EXPECT_EQ(app->Now(), 800ms);
}

TEST_F(TimerTest, MayBeDisabledByItsTick) {
  Start(*timer, 10);
  On(timer->Tick(), [&] { timer->SetEnabled(false); });
  app->WaitMessages(1h);
  app->WaitMessages(2h);
  EXPECT_EQ(*ticks, 1);
}

TEST_F(TimerTest, TicksInsideANestedWait) {
  Start(*timer, 10);
  bool nested = false;
  On(timer->Tick(), [&] {
    if (!std::exchange(nested, true)) app->WaitMessages(1h);
  });
  app->WaitMessages(1h);
  EXPECT_EQ(*ticks, 2);
}

TEST_F(TimerTest, RejectsANegativeInterval) {
  ExpectHostError(5, "tmrClock", [&] { timer->SetInterval(-1); });
}

TEST_F(TimerTest, MayBeReleasedByItsTick) {
  Start(*timer, 10);
  On(timer->Tick(), [&] {
    timer.reset();
    form.reset();
  });
  app->WaitMessages(1h);
  EXPECT_EQ(*ticks, 1);
  app->WaitMessages(1h);
  EXPECT_EQ(app->Now(), 1h);
}

TEST_F(TimerTest, IsDisabledWhenTheFormIsUnloaded) {
  form->Load();
  Start(*timer, 10);
  form->Unload();
  EXPECT_FALSE(timer->Enabled());
  app->WaitMessages(1h);
  EXPECT_EQ(*ticks, 0);
}

TEST(RealTimer, TicksOnceWhenLate) {
  Application app(ClockKind::kReal);
  auto form = app.CreateForm("FClock");
  auto timer = form->AddTimer("tmr");
  int ticks = 0;
  const auto ticking = timer->Tick().Subscribe([&] { ++ticks; });
  Start(*timer, 1);
  const auto busyUntil = app.Now() + 8ms;
  while (app.Now() < busyUntil) {
  }
  app.ProcessMessages();
  EXPECT_EQ(ticks, 1);
}

TEST(RealTimer, TicksInOrder) {
  Application app(ClockKind::kReal);
  auto form = app.CreateForm("FClock");
  std::vector<std::string> order;
  std::vector<platform::Subscription> subscriptions;
  for (const auto& [name, interval] : {std::pair("slow", 15), std::pair("fast", 5)}) {
    auto timer = form->AddTimer(name);
    timer->SetInterval(interval);
    subscriptions.push_back(timer->Tick().Subscribe([&order, name = name] { order.push_back(name); }));
    timer->SetEnabled(true);
  }
  const auto slowTicked = [&] { return std::find(order.begin(), order.end(), "slow") != order.end(); };
  while (!slowTicked()) app.WaitMessages(platform::Time::max());
  EXPECT_EQ(order.front(), "fast");
}

}  // namespace
}  // namespace toolkit::headless

#include <gtest/gtest.h>

#include "instrument/FClock.h"
#include "platform/ITimer.h"
#include "tests/support/VirtualBench.h"

namespace instrument_test {
namespace {

using std::chrono::milliseconds;

class FClockTest : public testing::Test {
 protected:
  FClockTest() { clock_->Load(); }
  void Pass(milliseconds time) {
    auto& application = bench_.Application();
    for (const auto end = application.Now() + time; application.Now() < end;) application.WaitMessages(end);
  }

  support::VirtualBench bench_;
  std::shared_ptr<keld::instrument::FClock> clock_ = keld::instrument::FClock::Create();
  int pulses_ = 0;
  orvik::platform::Subscription heard_ = clock_->ClockPulse().Subscribe([this] { ++pulses_; });
};

TEST_F(FClockTest, IsStoppedAtFirst) {
  EXPECT_FALSE(clock_->Running());
  Pass(milliseconds(10000));
  EXPECT_EQ(pulses_, 0);
}

TEST_F(FClockTest, PulsesAfterEveryIntervalUntilStopped) {
  clock_->StartClock(2000);
  EXPECT_TRUE(clock_->Running());
  Pass(milliseconds(1999));
  EXPECT_EQ(pulses_, 0);
  Pass(milliseconds(1));
  EXPECT_EQ(pulses_, 1);
  Pass(milliseconds(4000));
  EXPECT_EQ(pulses_, 3);
  clock_->StopClock();
  EXPECT_FALSE(clock_->Running());
  Pass(milliseconds(10000));
  EXPECT_EQ(pulses_, 3);
}

TEST_F(FClockTest, StartingAgainRestartsTheInterval) {
  clock_->StartClock(3500);
  Pass(milliseconds(3000));
  clock_->StartClock(2000);
  Pass(milliseconds(1999));
  EXPECT_EQ(pulses_, 0);
  Pass(milliseconds(1));
  EXPECT_EQ(pulses_, 1);
}

TEST_F(FClockTest, AnUnloadedClockNeverPulses) {
  clock_->StartClock(1000);
  clock_->Unload();
  EXPECT_FALSE(clock_->Running());
  Pass(milliseconds(5000));
  EXPECT_EQ(pulses_, 0);
}

TEST_F(FClockTest, ItsFormHoldsTheTimerAndIsNeverShown) {
  ASSERT_EQ(bench_.Application().Forms().size(), 1U);
  const auto form = bench_.Application().Forms().front();
  EXPECT_NE(form->Find("tmrClock"), nullptr);
  clock_->StartClock(100);
  EXPECT_FALSE(form->Visible());
  clock_.reset();
  EXPECT_TRUE(bench_.Application().Forms().empty());
}

}  // namespace
}  // namespace instrument_test

#include <gtest/gtest.h>

#include "host/bench/RunEstimate.h"
#include "tests/unit/bench/VirtualLine.h"

namespace host {
namespace {

using namespace std::chrono_literals;

class RunEstimateTest : public testing::Test {
 protected:
  RunEstimateTest() {
    heard_ = line_.Wire().Subscribe([this](const serial::WireRecord& record) { estimate_.Take(record); });
  }

  app::VirtualLine line_;
  host::bench::RunEstimate estimate_;
  orvik::platform::Subscription heard_;
};

TEST_F(RunEstimateTest, IgnoresElementsThatWereNotPlanned) {
  EXPECT_EQ(estimate_.Left(line_.Now()), 0s);
  EXPECT_EQ(estimate_.Text(line_.Now(), 1.0), "");
  estimate_.Plan({1});
  EXPECT_EQ(estimate_.Left(line_.Now()), 0s) << "no element was reached";
}

TEST_F(RunEstimateTest, APauseForEachCommandOfEachElement) {
  estimate_.Plan({1, 3});
  estimate_.Reach(1);
  line_.Open();
  EXPECT_EQ(estimate_.Left(line_.Now()), (5 + 9) * 3500ms);
  estimate_.Reach(2);
  EXPECT_EQ(estimate_.Left(line_.Now()), 9 * 3500ms);
}

TEST_F(RunEstimateTest, RepliesCountAsTheyHaveComeSoFar) {
  estimate_.Plan({1});
  estimate_.Reach(1);
  line_.Open();
  line_.Pass(3500ms);
  line_.Send("IREM");
  line_.Pass(400ms);
  line_.Answer("irem,KELD(IN),SIM-0001,3.10");
  EXPECT_EQ(estimate_.Left(line_.Now()), 4 * 3900ms);
  line_.Pass(1000ms);
  EXPECT_EQ(estimate_.Left(line_.Now()), 4 * 3900ms - 1000ms);
}

TEST_F(RunEstimateTest, ARepeatedCommandIsNoProgress) {
  estimate_.Plan({1});
  estimate_.Reach(1);
  line_.Open();
  line_.Send("IREM");
  line_.Send("IREM");
  EXPECT_EQ(estimate_.Left(line_.Now()), 5 * 3500ms);
}

TEST_F(RunEstimateTest, IsNeverNegative) {
  estimate_.Plan({1});
  estimate_.Reach(1);
  line_.Open();
  line_.Pass(1h);
  EXPECT_EQ(estimate_.Left(line_.Now()), 0s);
}

TEST_F(RunEstimateTest, ShowsMinutesAndSecondsOfRealTime) {
  estimate_.Plan({9});
  estimate_.Reach(1);
  line_.Open();
  EXPECT_EQ(estimate_.Text(line_.Now(), 1.0), "about 1:14 left");
  EXPECT_EQ(estimate_.Text(line_.Now(), 10.0), "about 0:08 left");
}

}  // namespace
}  // namespace host

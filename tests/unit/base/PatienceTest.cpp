#include <gtest/gtest.h>
#include <sys/time.h>

#include <csignal>
#include <string>
#include <vector>

#include "host/base/Patience.h"
#include "tests/support/InChild.h"

namespace host {
namespace {

using std::chrono::hours;
using std::chrono::milliseconds;

[[noreturn]] void Hold(const std::string& reason) { throw BusyError(75, "test", reason); }

class PatienceTest : public ::testing::Test {
 protected:
  ~PatienceTest() override { Patience::Set({}, {}); }

  void Wait(milliseconds time) {
    Patience::Set(time, [this](const std::string& reason) { remarks_.push_back(reason); });
  }

  std::vector<std::string> remarks_;
};

TEST_F(PatienceTest, DoesNotWaitByDefault) {
  int attempts = 0;
  EXPECT_THROW(WaitUntilFree([&] {
                 ++attempts;
                 Hold("held");
               }),
               BusyError);
  EXPECT_EQ(attempts, 1);
}

TEST_F(PatienceTest, RetriesUntilFreeAndReportsOnce) {
  Wait(hours(1));
  int attempts = 0;
  const auto result = WaitUntilFree([&]() -> int {
    if (++attempts < 4) Hold("held");
    return 7;
  });
  EXPECT_EQ(result, 7);
  EXPECT_EQ(attempts, 4);
  EXPECT_EQ(remarks_, std::vector<std::string>{"held"});
}

TEST_F(PatienceTest, RethrowsTheErrorAfterTheTimeout) {
  Wait(milliseconds(1));
  EXPECT_THROW(WaitUntilFree([] { Hold("held"); }), BusyError);
  EXPECT_FALSE(Patience::WaitsFor("another")) << "the time is one for all";
}

TEST_F(PatienceTest, RethrowsOtherErrorsAtOnce) {
  Wait(hours(1));
  EXPECT_THROW(WaitUntilFree([] { throw StorageError(75, "test", "full"); }), StorageError);
  EXPECT_TRUE(remarks_.empty());
}

TEST_F(PatienceTest, EndsWhenASignalArrives) {
  EXPECT_TRUE(support::ChildSucceeded(support::StartChild([&] {
    struct sigaction action {};
    action.sa_handler = [](int) {};
    sigaction(SIGALRM, &action, nullptr);
    const itimerval soon{{0, 5'000}, {0, 5'000}};
    Wait(hours(1));
    setitimer(ITIMER_REAL, &soon, nullptr);
    EXPECT_THROW(WaitUntilFree([] { Hold("held"); }), BusyError);
  })));
}

}  // namespace
}  // namespace host

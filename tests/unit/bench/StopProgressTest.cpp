#include <gtest/gtest.h>

#include "host/bench/StopProgress.h"
#include "tests/unit/bench/VirtualLine.h"

namespace host {
namespace {

using namespace std::chrono_literals;

/// Before each command a pause of 3.5 s, for its reply 2 s, three attempts: so long may one take at most.
constexpr auto kCommand = 3 * 5500ms;

class StopProgressTest : public testing::Test {
 protected:
  app::VirtualLine line_;
  host::bench::StopProgress stop_{line_.Wire(), line_.Loop(), 10.0};
};

TEST_F(StopProgressTest, WithoutASessionOnlyTheDocumentIsLeft) {
  stop_.Begin();
  EXPECT_EQ(stop_.Remaining(), 0s);
  EXPECT_EQ(stop_.Text(), "Already stopping: the document is being saved.");
}

TEST_F(StopProgressTest, TwoCommandsCloseTheSessionAfterTheLastReply) {
  line_.Open();
  line_.Send("GRES", {"410", "0"});
  stop_.Begin();
  EXPECT_EQ(stop_.Remaining(), 2000ms + 2 * 5500ms + 2 * kCommand);
  line_.Answer("gres,410,0,0.123,0,Ohm");
  EXPECT_EQ(stop_.Remaining(), 2 * kCommand);
  line_.Send("STST", {"210", "0"});
  EXPECT_EQ(stop_.Remaining(), 2000ms + 2 * 5500ms + kCommand);
  line_.Answer("stst,210,0");
  EXPECT_EQ(stop_.Remaining(), kCommand);
  line_.Send("EREM");
  EXPECT_EQ(stop_.Remaining(), 2000ms + 2 * 5500ms);
  line_.Close();
  EXPECT_EQ(stop_.Remaining(), 0s);
}

// The exchange that goes on is not broken off: it has all of its attempts.
TEST_F(StopProgressTest, TheAttemptsOfTheTestsOwnCommandComeOnTop) {
  line_.Open();
  line_.Send("STST", {"410", "0"});
  stop_.Begin();
  line_.Pass(500ms);
  EXPECT_EQ(stop_.Remaining(), 1500ms + 2 * 5500ms + 2 * kCommand);
  line_.Pass(5000ms);
  line_.Send("STST", {"410", "0"});
  EXPECT_EQ(stop_.Remaining(), 2000ms + 5500ms + 2 * kCommand);
  line_.Pass(5500ms);
  line_.Send("STST", {"410", "0"});
  line_.Answer("stst,410,0");
  EXPECT_EQ(stop_.Remaining(), 2 * kCommand);
}

// In the pause before it, a command of the test may still go out.
TEST_F(StopProgressTest, ACommandThatIsAboutToGoOutComesOnTop) {
  line_.Open();
  line_.Send("IREM");
  line_.Answer("irem,KELD(IN),SIM-0001,3.10");
  stop_.Begin();
  EXPECT_EQ(stop_.Remaining(), 3 * kCommand);
  line_.Send("STST", {"210", "0"});
  EXPECT_EQ(stop_.Remaining(), 2000ms + 2 * 5500ms + 2 * kCommand);
  line_.Answer("stst,210,0");
  line_.Send("STST", {"210", "0"});
  EXPECT_EQ(stop_.Remaining(), 2000ms + 2 * 5500ms + kCommand);
}

TEST_F(StopProgressTest, EachAttemptShortensWhatIsLeft) {
  line_.Open();
  stop_.Begin();
  line_.Send("EREM");
  line_.Pass(5500ms);
  EXPECT_EQ(stop_.Remaining(), 2 * 5500ms - 3500ms);
  line_.Send("EREM");
  line_.Pass(5500ms);
  line_.Send("EREM");
  line_.Pass(1990ms);
  EXPECT_EQ(stop_.Remaining(), 10ms);
  line_.Pass(1h);
  EXPECT_EQ(stop_.Remaining(), 0s);
}

TEST_F(StopProgressTest, ShowsTheWaitInSecondsOfRealTime) {
  line_.Open();
  line_.Send("IREM");
  stop_.Begin();
  line_.Answer("irem,KELD(IN),SIM-0001,3.10");
  line_.Send("STST", {"210", "0"});
  EXPECT_EQ(
      stop_.Text(),
      "Already stopping: the session with the tester is being closed (STST,210,0, attempt 1 of 3: reply "
      "within 2.0 s); it takes at most 3 s more.");
}

}  // namespace
}  // namespace host

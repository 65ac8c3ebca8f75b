#include <fcntl.h>
#include <sys/file.h>

#include "tests/support/PseudoTerminal.h"
#include "tests/system/cli/CliTest.h"

namespace cli {
namespace {

/// What another program holds.
class BusyTest : public CliTest {
 protected:
  BusyTest() : file_(NewDocument({"410"})) {}

  /// Holds the file as another program does that has it open for writing.
  static host::UniqueFd Hold(const std::string& file) {
    host::UniqueFd held(open(file.c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC));
    EXPECT_EQ(flock(held.Get(), LOCK_EX | LOCK_NB), 0) << file;
    return held;
  }

  Words Limit(const Words& more = {}) const {
    return Join({"limit", file_, "--element", "1", "--standard", "S", "--high", "9"}, more);
  }

  const std::string file_;
};

TEST_F(BusyTest, LockedDocument_EndsWithFive) {
  const auto holder = Hold(file_);
  for (const auto& words : {Limit(), Words{"config", file_, "--element", "1", "--options", "3"},
                            Simulated(file_, "sound-class-1")}) {
    const auto refused = Bench(words);
    EXPECT_EQ(refused.status, 5) << words[0];
    EXPECT_THAT(refused.error, HasSubstr(file_ + " is open in another program"));
  }
  EXPECT_EQ(Bench({"show", file_}).status, 0) << "reading needs no lock";
}

TEST_F(BusyTest, Wait_ContinuesWhenTheDocumentIsFree) {
  auto holder = Hold(file_);
  const auto waiting = Start(Limit({"--wait", "600"}));
  ASSERT_TRUE(waiting->AwaitError(file_ + " is open in another program"));
  ASSERT_TRUE(waiting->AwaitError("waiting, at most 600 s (Ctrl-C gives up)"));
  holder.Reset();
  EXPECT_EQ(waiting->Wait().status, 0);
  EXPECT_THAT(Contents(file_), HasSubstr("High=\"9\""));
}

TEST_F(BusyTest, Wait_ContinuesWhenThePortIsFree) {
  const support::PseudoTerminal terminal;
  auto holder = Hold(terminal.Path());
  const auto waiting = Start({"run", file_, "--port", terminal.Path(), "--wait", "600", "--events"});
  ASSERT_TRUE(waiting->AwaitError(terminal.Path() + ": is held by another program"));
  holder.Reset();
  EXPECT_TRUE(waiting->AwaitOutput("port-opened"));
}

TEST_F(BusyTest, LockedSettings_EndWithFiveOrAreAwaited) {
  std::filesystem::create_directory(Path("state"));
  Write("state/registry.lock", "");
  auto holder = Hold(Path("state/registry.lock"));
  const Words calibrate{"calibrate", "--simulate", "--time-scale", kTimeScale};
  const auto waiting = Start(Join(calibrate, {"--wait", "600"}));
  const auto refused = Bench(calibrate);
  EXPECT_EQ(refused.status, 5) << refused.error;
  EXPECT_THAT(refused.error, HasSubstr("registry.lock is held by another program"));
  ASSERT_TRUE(waiting->AwaitError("waiting, at most 600 s"));
  holder.Reset();
  const auto ended = waiting->Wait();
  EXPECT_EQ(ended.status, 0) << ended.error;
}

TEST_F(BusyTest, Wait_EndsWithFiveWhenTheTimeIsOver) {
  const auto holder = Hold(file_);
  EXPECT_EQ(Bench(Limit({"--wait", "1"})).status, 5);
}

TEST_F(BusyTest, Wait_EndsWithCtrlC) {
  const auto holder = Hold(file_);
  const auto waiting = Start(Limit({"--wait", "600"}));
  ASSERT_TRUE(waiting->AwaitError("waiting"));
  waiting->Signal(SIGINT);
  EXPECT_EQ(waiting->Wait().status, -1) << "the signal itself ends it";
}

}  // namespace
}  // namespace cli

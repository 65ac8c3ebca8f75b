#include "tests/support/Process.h"
#include "tests/system/cli/CliTest.h"

namespace cli {
namespace {

class TerminalTest : public CliTest {
 protected:
  /// A run in which one element passes and one fails, as a person at a terminal sees it.
  std::string Shown(const std::string& term, const std::string& noColour) {
    const auto file = NewDocument({"410", "210"});
    SetLimit(file, "1", "100");
    SetLimit(file, "2", "253");
    return support::Process(ORVIK_BENCH_PATH, Simulated(file, "sound-class-1"),
                            {.environment = {{"TERM", term}, {"NO_COLOR", noColour}}, .terminal = true})
        .Wait()
        .out;
  }
};

TEST_F(TerminalTest, ShowsPlaceCommandAttemptAndTimeLeft) {
  const auto shown = Shown("xterm", "");
  EXPECT_THAT(shown, HasSubstr("[1/2] STST,410,0, attempt 1 of 3: reply within "));
  EXPECT_THAT(shown, HasSubstr("\r\033[Kd.orvik: ")) << "progress stands before the result";
  EXPECT_THAT(shown, HasSubstr("next command in "));
  EXPECT_THAT(shown, HasSubstr(" | about 0:0"));
  EXPECT_THAT(shown, HasSubstr(" left | 210 Mains voltage"));
}

TEST_F(TerminalTest, ColoursTheWords) {
  const auto shown = Shown("xterm", "");
  EXPECT_THAT(shown, HasSubstr("\033[1;31mfailed"));
  EXPECT_THAT(shown, HasSubstr("\033[32mpassed"));
}

TEST_F(TerminalTest, NoColours_WhenTurnedOff) {
  EXPECT_THAT(Shown("xterm", "1"), Not(HasSubstr("\033[1;31m")));
  std::filesystem::remove(Path("d.orvik"));
  EXPECT_THAT(Shown("dumb", ""), Not(HasSubstr("\033[1;31m")));
}

TEST_F(TerminalTest, NoControlCodes_InAFile) {
  const auto file = NewDocument({"410"});
  const auto run = RunSound(file);
  EXPECT_EQ((run.out + run.error).find('\033'), std::string::npos) << run.out;
  EXPECT_EQ((run.out + run.error).find('\r'), std::string::npos) << run.out;
}

}  // namespace
}  // namespace cli

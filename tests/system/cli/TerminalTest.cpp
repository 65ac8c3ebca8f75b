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

TEST_F(TerminalTest, ShowsPlaceCommandAttemptAndTimeLeftWhileItWaits) {
  const auto shown = Shown("xterm", "");
  EXPECT_NE(shown.find("[1/2] STST,410,0, attempt 1 of 3: reply within "), std::string::npos) << shown;
  EXPECT_NE(shown.find("\r\033[Kd.orvik: "), std::string::npos) << "progress stands before the result";
  EXPECT_NE(shown.find("next command in "), std::string::npos) << shown;
  EXPECT_NE(shown.find(" | about 0:0"), std::string::npos) << shown;
  EXPECT_NE(shown.find(" left | 210 Mains voltage"), std::string::npos) << shown;
}

TEST_F(TerminalTest, ColoursStandBesideTheWords) {
  const auto shown = Shown("xterm", "");
  EXPECT_NE(shown.find("\033[1;31mfailed"), std::string::npos) << shown;
  EXPECT_NE(shown.find("\033[32mpassed"), std::string::npos) << shown;
}

TEST_F(TerminalTest, NoColoursWhenTheyAreNotWanted) {
  EXPECT_EQ(Shown("xterm", "1").find("\033[1;31m"), std::string::npos);
  std::filesystem::remove(Path("d.orvik"));
  EXPECT_EQ(Shown("dumb", "").find("\033[1;31m"), std::string::npos);
}

TEST_F(TerminalTest, NeitherColoursNorARedrawnLineInAFile) {
  const auto file = NewDocument({"410"});
  const auto run = Bench(Simulated(file, "sound-class-1"));
  EXPECT_EQ((run.out + run.error).find('\033'), std::string::npos) << run.out;
  EXPECT_EQ((run.out + run.error).find('\r'), std::string::npos) << run.out;
}

}  // namespace
}  // namespace cli

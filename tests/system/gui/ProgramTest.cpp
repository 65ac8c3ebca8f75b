// The program as it is started.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/file.h>

#include <csignal>
#include <cstdlib>
#include <fstream>

#include "tests/support/Process.h"
#include "tests/support/TemporaryFolder.h"

namespace desktop_test {
namespace {

using testing::HasSubstr;

class GuiProgramTest : public testing::Test {
 protected:
  GuiProgramTest() { setenv("ORVIK_STATE", Path("state").c_str(), 1); }
  ~GuiProgramTest() override { setenv("QT_QPA_PLATFORM", "offscreen", 1); }

  std::string Path(const std::string& name) const { return (folder_.Path() / name).string(); }
  support::Finished Bench(std::vector<std::string> words) const {
    return support::Run(ORVIK_BENCH_PATH, std::move(words));
  }
  /// Whether a program has the document open for writing.
  static bool Held(const std::string& file) {
    const host::UniqueFd descriptor(open(file.c_str(), O_RDONLY | O_CLOEXEC));
    return flock(descriptor.Get(), LOCK_EX | LOCK_NB) != 0;
  }

  support::TemporaryFolder folder_;
};

TEST_F(GuiProgramTest, OpensADocument_EndsOnRequest) {
  const auto file = Path("pump.orvik");
  ASSERT_EQ(Bench({"new", file, "--add", "410"}).status, 0);
  support::Process program(ORVIK_BENCH_PATH, {"gui", file});
  while (!Held(file)) poll(nullptr, 0, 5);
  program.Signal(SIGTERM);
  const auto ended = program.Wait();
  EXPECT_EQ(ended.status, 0) << ended.error;
}

TEST_F(GuiProgramTest, RefusesAFileThatCannotBeRead) {
  std::ofstream(Path("broken.orvik")) << "<OrvikDocument Version=\"1\">\n<Elements>\n";
  const auto ended = Bench({"gui", Path("broken.orvik")});
  EXPECT_EQ(ended.status, 3);
  EXPECT_THAT(ended.error, HasSubstr("broken.orvik, line "));
  EXPECT_EQ(Bench({"gui", Path("none.orvik")}).status, 3);
  EXPECT_EQ(Bench({"gui", "--time-scale", "0"}).status, 3);
}

TEST_F(GuiProgramTest, ReportsAMissingScreen) {
  for (const auto* variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) unsetenv(variable);
  const auto none = Bench({"gui"});
  EXPECT_EQ(none.status, 2);
  EXPECT_THAT(none.error, HasSubstr("there is no screen"));

  setenv("QT_QPA_PLATFORM", "xcb", 1);
  setenv("DISPLAY", "no-such-machine:7", 1);
  const auto dead = Bench({"gui"});
  EXPECT_EQ(dead.status, 2);
  EXPECT_THAT(dead.error, HasSubstr("there is no screen"));
  unsetenv("DISPLAY");
}

}  // namespace
}  // namespace desktop_test

#include "tests/system/cli/CliTest.h"

namespace cli {
namespace {

/// A command line as the README shows it, and what it is said to print.
struct Shown {
  std::string command;
  std::string output;
};

/// The lines that stand indented in the README: each that begins with "$" is typed, the others are printed.
std::vector<Shown> ShownCommands() {
  std::ifstream readme(std::string(SOURCE_PATH) + "/README.md");
  std::vector<Shown> shown;
  for (std::string line; std::getline(readme, line);) {
    if (line.starts_with("    $ ")) {
      shown.push_back({line.substr(6), ""});
    } else if (line.starts_with("    ") && !shown.empty()) {
      shown.back().output += line.substr(4) + "\n";
    } else if (line.starts_with("#") && !shown.empty()) {
      break;  // the next chapter
    }
  }
  return shown;
}

class ReadmeTest : public CliTest {
 protected:
  /// What a person sees who types the command in an empty folder of its own.
  std::string Typed(const std::string& command) const {
    const auto programs = std::filesystem::path(ORVIK_BENCH_PATH).parent_path().string();
    const auto line =
        "cd '" + folder_.Path().string() + "' && PATH='" + programs + "':$PATH && " + command + " 2>&1";
    return support::RunShell(line).out;
  }
};

TEST_F(ReadmeTest, QuickStart_PrintsWhatTheReadmeShows) {
  const auto shown = ShownCommands();
  ASSERT_GE(shown.size(), 3u);
  EXPECT_LE(shown.size(), 5u);
  for (const auto& [command, output] : shown) EXPECT_EQ(Typed(command), output) << command;
  EXPECT_TRUE(Contents(Path("pump.pdf")).starts_with("%PDF"));
}

}  // namespace
}  // namespace cli

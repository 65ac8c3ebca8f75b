#include <sys/stat.h>

#include "tests/system/cli/CliTest.h"

namespace cli {
namespace {

/// Commands that only read need no folder for settings.
class StateFolderTest : public CliTest {
 protected:
  StateFolderTest() : file_(NewDocument({"410", "910"})) {}

  std::vector<Words> ReadingCommands() const {
    return {{"show", file_},
            {"show", file_, "--json"},
            {"check", file_},
            {"report", file_, "--to", Path("a.txt")},
            {"tests"},
            {"standards"},
            {"standards", "iec-62353-class-1-bf"},
            {"config", file_, "--element", "1"},
            {"new", Path("n" + std::to_string(NextName()) + ".orvik"), "--add", "410"}};
  }

  const std::string file_;

 private:
  static int NextName() {
    static int number = 0;
    return ++number;
  }
};

TEST_F(StateFolderTest, ReadingCommands_CreateNone) {
  for (const auto& words : ReadingCommands()) {
    const auto ended = Bench(words);
    EXPECT_EQ(ended.status, 0) << words[0] << ": " << ended.error;
    EXPECT_EQ(ended.error, "") << words[0];
  }
  EXPECT_FALSE(std::filesystem::exists(Path("state")));
}

TEST_F(StateFolderTest, ReadingCommands_WorkWithoutEnvironment) {
  std::string clean = "unset ORVIK_STATE XDG_STATE_HOME HOME; exec " ORVIK_BENCH_PATH;
  for (const auto& words : ReadingCommands()) {
    auto line = clean;
    for (const auto& word : words) line += " '" + word + "'";
    const auto ended = support::RunShell(line);
    EXPECT_EQ(ended.status, 0) << words[0] << ": " << ended.error;
    EXPECT_EQ(ended.error, "") << words[0];
  }
}

// Not even the superuser finds a folder there.
TEST_F(StateFolderTest, ReadingCommands_WorkBelowAFile) {
  Write("text", "text");
  setenv("ORVIK_STATE", Path("text/state").c_str(), 1);
  for (const auto& words :
       {Words{"show", file_}, Words{"check", file_}, Words{"report", file_, "--to", Path("a.txt")},
        Words{"tests"}, Words{"standards"}}) {
    const auto ended = Bench(words);
    EXPECT_EQ(ended.status, 0) << words[0] << ": " << ended.error;
  }
  EXPECT_THAT(Bench({"tests"}).error, HasSubstr("the shipped catalogue is used"));
}

TEST_F(StateFolderTest, ReadingCommands_WorkWithAReadOnlyFolder) {
  ASSERT_EQ(mkdir(Path("state").c_str(), 0555), 0);
  for (const auto& words : ReadingCommands()) EXPECT_EQ(Bench(words).status, 0) << words[0];
  EXPECT_TRUE(std::filesystem::is_empty(Path("state")));
}

// The resistance of the test leads is among the settings.
TEST_F(StateFolderTest, Run_RefusesDamagedSettings) {
  std::filesystem::create_directory(Path("state"));
  Write("state/registry.json", "{ cut");
  const auto refused = RunSound(file_);
  EXPECT_EQ(refused.status, 3);
  EXPECT_THAT(refused.error, HasSubstr("registry.json cannot be used"));
  Done({"show", file_});
}

}  // namespace
}  // namespace cli

#include <sys/stat.h>

#include "tests/system/cli/CliTest.h"

namespace cli {
namespace {

/// Files that cannot be written.
class UnwritableTest : public CliTest {
 protected:
  /// Runs the program where no file may grow, as on a full disk.
  static Finished OnAFullDisk(const Words& words) {
    std::string line = "ulimit -f 0; exec " ORVIK_BENCH_PATH;
    for (const auto& word : words) line += " '" + word + "'";
    return support::RunShell(line);
  }

  std::size_t Files() const {
    std::size_t count = 0;
    for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(folder_.Path())) ++count;
    return count;
  }
};

TEST_F(UnwritableTest, New_OnAFullDiskLeavesNoFile) {
  const auto ended = OnAFullDisk({"new", Path("a.orvik"), "--add", "410"});
  EXPECT_EQ(ended.status, 2) << ended.error;
  EXPECT_THAT(ended.error, HasSubstr("a.orvik cannot be written: File too large"));
  EXPECT_EQ(Files(), 0U);
}

TEST_F(UnwritableTest, WritingCommands_OnAFullDiskEndWithTwo) {
  const auto file = NewDocument({"410"});
  const auto before = Contents(file);
  const auto files = Files();
  for (const auto& words :
       {Words{"limit", file, "--element", "1", "--standard", "S", "--high", "9"},
        Words{"config", file, "--element", "1", "--options", "3"},
        Words{"report", file, "--to", Path("a.html")}, Words{"report", file, "--to", Path("a.pdf")},
        Words{"archive", "--archive", Path("a.sqlite"), "add", "--incomplete", file}}) {
    const auto ended = OnAFullDisk(words);
    EXPECT_EQ(ended.status, 2) << words[0] << ": " << ended.error;
    EXPECT_NE(ended.error, "") << words[0];
  }
  EXPECT_EQ(Contents(file), before);
  std::filesystem::remove(Path("a.sqlite"));  // which SQLite leaves empty
  EXPECT_EQ(Files(), files);
}

TEST_F(UnwritableTest, Run_OnAFullDiskEndsWithTwo) {
  const auto file = NewDocument({"410"});
  const auto before = Contents(file);
  const auto ended = OnAFullDisk(Simulated(file, "sound-class-1"));
  EXPECT_EQ(ended.status, 2) << ended.out << ended.error;
  EXPECT_THAT(ended.out + ended.error, HasSubstr(file + " cannot be written: File too large"));
  EXPECT_EQ(Contents(file), before);
}

TEST_F(UnwritableTest, FullOutput_EndsWithTwo) {
  const auto file = NewDocument({"410"});
  const auto ended = support::RunShell("exec " ORVIK_BENCH_PATH " show '" + file + "' >/dev/full");
  EXPECT_EQ(ended.status, 2);
  EXPECT_THAT(ended.error, HasSubstr("standard output"));
}

TEST_F(UnwritableTest, WriteProtectedDocument_IsReadNeverReplaced) {
  const auto file = NewDocument({"410"});
  ASSERT_EQ(chmod(file.c_str(), 0444), 0);
  const auto before = Contents(file);
  for (const auto& words :
       {Words{"limit", file, "--element", "1", "--standard", "S", "--high", "9"},
        Words{"config", file, "--element", "1", "--options", "3"}, Simulated(file, "sound-class-1")}) {
    const auto refused = Bench(words);
    EXPECT_EQ(refused.status, 3) << words[0];
    EXPECT_THAT(refused.error, HasSubstr(file + " is write-protected"));
  }
  for (const auto& words :
       {Words{"show", file}, Words{"check", file}, Words{"config", file, "--element", "1"},
        Words{"report", file, "--to", Path("a.html")}})
    EXPECT_EQ(Bench(words).status, 0) << words[0];
  EXPECT_EQ(Contents(file), before);
}

}  // namespace
}  // namespace cli

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <set>
#include <string>

#include "tests/architecture/SourceTree.h"
#include "tests/support/Process.h"
#include "tests/support/ReadFile.h"

namespace house {
namespace {

using testing::HasSubstr;
using testing::MatchesRegex;
using testing::StartsWith;

/// Runs a command of the repository's root from another folder.
support::Finished RunCommand(const std::string& command) {
  return support::RunShell("cd / && '" SOURCE_PATH "/'" + command + " 2>&1");
}

class CommandTest : public testing::TestWithParam<const char*> {};

TEST_P(CommandTest, PrintsHelp) {
  const auto outcome = RunCommand(std::string(GetParam()) + " --help");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_THAT(outcome.out, StartsWith(std::string("Usage: ./") + GetParam()));
}

TEST_P(CommandTest, WrongUse_EndsWithTwo) {
  const auto outcome = RunCommand(std::string(GetParam()) + " --nonsense");
  EXPECT_EQ(outcome.status, 2);
  EXPECT_THAT(outcome.out, HasSubstr(std::string("Usage: ./") + GetParam()));
}

INSTANTIATE_TEST_SUITE_P(InTheRoot, CommandTest, testing::Values("demo", "check"));

TEST(BuildServer, RunsCheck) {
  const std::string script = support::ReadFile(SOURCE_PATH "/.ci/run");
  EXPECT_THAT(script, HasSubstr("exec ./check\n"));
  EXPECT_EQ(access(SOURCE_PATH "/.ci/run", X_OK), 0);
}

/// The lines of a list of packages, without comments.
std::vector<std::string> Packages(const std::string& list) {
  std::vector<std::string> packages;
  for (std::string line : Lines(support::ReadFile(SOURCE_PATH "/packaging/packages/" + list + ".txt"))) {
    line.resize(std::min(line.size(), line.find('#')));
    while (line.ends_with(' ')) line.pop_back();
    if (!line.empty()) packages.push_back(line);
  }
  return packages;
}

TEST(PackageLists, NameEachPackageOnce) {
  std::set<std::string> seen;
  for (const char* list : {"build", "check", "demo"}) {
    for (const std::string& package : Packages(list)) {
      EXPECT_THAT(package, MatchesRegex("[a-z0-9][-a-z0-9+.]+")) << list;
      EXPECT_TRUE(seen.insert(package).second) << package << " is listed twice";
    }
  }
  EXPECT_TRUE(seen.contains("g++"));
  EXPECT_TRUE(seen.contains("libgtest-dev"));
}

}  // namespace
}  // namespace house

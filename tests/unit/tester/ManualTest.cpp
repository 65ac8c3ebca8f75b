#include <gtest/gtest.h>

#include <regex>
#include <sstream>

#include "tester/BuiltInProfiles.h"
#include "tester/Fault.h"
#include "tester/Manual.h"
#include "tests/support/Process.h"
#include "tests/unit/tester/TestTools.h"

namespace sim {
namespace {

using support::TemporaryFolder;

TEST(ManualTest, HelpNamesOptionsProfilesAndFaults) {
  const std::string help = HelpText();
  for (const char* word :
       {"--link", "--profile", "--faults", "--fault-seed", "--fault-rate", "--replay", "--serial",
        "--time-scale", "--trace", "--exit-with-parent", "--help", "--help-man", "--version"})
    EXPECT_NE(help.find(word), std::string::npos) << word;
  for (const auto& profile : BuiltInProfiles())
    EXPECT_NE(help.find(profile.name), std::string::npos) << profile.name;
  for (const auto& form : FaultForms()) EXPECT_NE(help.find(form.syntax), std::string::npos) << form.syntax;
}

// Divided once more, a reply that came too late would come in time.
TEST(ManualTest, ExplainsReplayOfAFasterRun) {
  EXPECT_TRUE(std::regex_search(HelpText(), std::regex("shortened\\s+times\\s+already")));
  EXPECT_NE(support::ReadFile(SOURCE_PATH "/tester/README.md").find("shortened times already"),
            std::string::npos);
}

TEST(ManualTest, HelpFitsATerminal) {
  std::istringstream lines(HelpText());
  for (std::string line; std::getline(lines, line);) EXPECT_LE(line.size(), 100u) << line;
}

TEST(ManualTest, ReadmeDescribesEveryFaultAndOption) {
  const std::string readme = support::ReadFile(SOURCE_PATH "/tester/README.md");
  for (const auto& form : FaultForms())
    EXPECT_NE(readme.find("| `" + std::string(form.syntax) + "` |"), std::string::npos) << form.syntax;
  for (const auto& section : TheManual().sections) {
    if (section.title != "Options") continue;
    for (const auto& [term, meaning] : section.blocks.front().list) {
      const std::string option = term.substr(0, term.find_first_of(" ,"));
      EXPECT_NE(readme.find("`" + option), std::string::npos) << option;
    }
  }
}

TEST(ManualTest, PageIsWellFormed) {
  const TemporaryFolder folder;
  const std::string page = folder.Write("keld-sim.1", ManualPage());
  const auto looked = support::RunShell("mandoc -T lint -W warning " + page);
  ASSERT_NE(looked.status, 127) << "install the packages that packaging/packages/check.txt names: "
                                << looked.error;
  std::istringstream findings(looked.out);
  for (std::string finding; std::getline(findings, finding);)
    EXPECT_NE(finding.find("missing date"), std::string::npos)
        << finding;  // it would differ from build to build
}

TEST(ManualTest, PageHasTheTextOfTheHelp) {
  const TemporaryFolder folder;
  const auto shown =
      support::RunShell("mandoc -T utf8 -O width=500 " + folder.Write("keld-sim.1", ManualPage()) +
                        " | sed 's/.\\x08//g'");  // bold letters are struck twice
  for (const auto& section : TheManual().sections) {
    for (const auto& block : section.blocks) {
      for (const auto& line : block.example)
        EXPECT_NE(shown.out.find(line + "\n"), std::string::npos) << line;
      for (const auto& [term, meaning] : block.list) {
        EXPECT_NE(shown.out.find(term), std::string::npos) << term;
        EXPECT_NE(shown.out.find(meaning), std::string::npos) << meaning << shown.out;
      }
    }
  }
}

}  // namespace
}  // namespace sim

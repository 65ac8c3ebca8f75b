#include <gtest/gtest.h>
#include <sys/wait.h>

#include <array>
#include <cstdio>
#include <regex>
#include <sstream>

#include "tester/BuiltInProfiles.h"
#include "tester/Fault.h"
#include "tester/Manual.h"
#include "tests/tester/TestTools.h"

namespace sim {
namespace {

using test::TempFolder;

struct Outcome {
  int status = -1;
  std::string output;
};

Outcome RunShell(const std::string& command) {
  Outcome outcome;
  FILE* pipe = popen((command + " 2>&1").c_str(), "r");
  if (pipe == nullptr) return outcome;
  std::array<char, 4096> bytes;
  while (const std::size_t count = std::fread(bytes.data(), 1, bytes.size(), pipe))
    outcome.output.append(bytes.data(), count);
  const int ended = pclose(pipe);
  if (WIFEXITED(ended)) outcome.status = WEXITSTATUS(ended);
  return outcome;
}

TEST(ManualTest, HelpNamesEveryOptionProfileAndFault) {
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
TEST(ManualTest, SaysHowALogOfAFasterRunIsReplayed) {
  EXPECT_TRUE(std::regex_search(HelpText(), std::regex("shortened\\s+times\\s+already")));
  EXPECT_NE(test::ReadAll(SOURCE_PATH "/tester/README.md").find("shortened times already"),
            std::string::npos);
}

TEST(ManualTest, HelpFitsATerminal) {
  std::istringstream lines(HelpText());
  for (std::string line; std::getline(lines, line);) EXPECT_LE(line.size(), 100u) << line;
}

TEST(ManualTest, ReadmeTeachesEveryFaultAndOption) {
  const std::string readme = test::ReadAll(SOURCE_PATH "/tester/README.md");
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

TEST(ManualTest, ThePageIsWellFormed) {
  const TempFolder folder;
  const std::string page = folder.Write("keld-sim.1", ManualPage());
  const auto looked = RunShell("mandoc -T lint -W warning " + page);
  ASSERT_NE(looked.status, 127) << "install the packages that packaging/packages/check.txt names: "
                                << looked.output;
  std::istringstream findings(looked.output);
  for (std::string finding; std::getline(findings, finding);)
    EXPECT_NE(finding.find("missing date"), std::string::npos)
        << finding;  // it would differ from build to build
}

TEST(ManualTest, ThePageSaysWhatTheHelpSays) {
  const TempFolder folder;
  const auto shown = RunShell("mandoc -T utf8 -O width=500 " + folder.Write("keld-sim.1", ManualPage()) +
                              " | sed 's/.\\x08//g'");  // bold letters are struck twice
  for (const auto& section : TheManual().sections) {
    for (const auto& block : section.blocks) {
      for (const auto& line : block.example)
        EXPECT_NE(shown.output.find(line + "\n"), std::string::npos) << line;
      for (const auto& [term, meaning] : block.list) {
        EXPECT_NE(shown.output.find(term), std::string::npos) << term;
        EXPECT_NE(shown.output.find(meaning), std::string::npos) << meaning << shown.output;
      }
    }
  }
}

}  // namespace
}  // namespace sim

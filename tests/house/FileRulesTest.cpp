#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/house/FileRules.h"

namespace house {
namespace {

using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;

auto Where(const std::string& place) { return Field(&Finding::where, place); }

std::vector<SourceFile> One(std::string path, std::string text) {
  return {MakeSourceFile(std::move(path), std::move(text))};
}

std::string Repeated(const std::string& line, int count) {
  std::string text;
  for (int index = 0; index < count; ++index) text += line;
  return text;
}

TEST(LengthFindings, BeginAboveFiveHundredLines) {
  EXPECT_THAT(LengthFindings(One("host/A.cpp", Repeated("int a;\n", 500))), IsEmpty());
  EXPECT_THAT(LengthFindings(One("host/A.cpp", Repeated("int a;\n", 501))), ElementsAre(Where("host/A.cpp")));
}

TEST(HeaderGuardFindings, NameHeadersThatDoNotBeginWithPragmaOnce) {
  EXPECT_THAT(HeaderGuardFindings(One("host/A.h", "\n#pragma once\n")), ElementsAre(Where("host/A.h")));
  EXPECT_THAT(HeaderGuardFindings(One("host/A.h", "#pragma once\n")), IsEmpty());
  EXPECT_THAT(HeaderGuardFindings(One("host/A.cpp", "int a;\n")), IsEmpty());
}

TEST(SwallowedErrorFindings, AllowOneHelperAndTheEntryPoints) {
  const char* text = "\ntry { A(); } catch ( ... ) {}\n// catch (...)\n";
  EXPECT_THAT(SwallowedErrorFindings(One("results/A.cpp", text)), ElementsAre(Where("results/A.cpp:2")));
  EXPECT_THAT(SwallowedErrorFindings(One("plugin/Attempt.h", text)), IsEmpty());
  EXPECT_THAT(SwallowedErrorFindings(One("plugin/EntryPoints.cpp", text)), IsEmpty());
}

TEST(RawCastFindings, AllowOneHelper) {
  const char* text = "auto b = dynamic_cast<B*>(a);\nauto d = std::dynamic_pointer_cast<D>(c);\n";
  EXPECT_THAT(RawCastFindings(One("ui/A.cpp", text)), ElementsAre(Where("ui/A.cpp:1"), Where("ui/A.cpp:2")));
  EXPECT_THAT(RawCastFindings(One("OrvikTypeLib/As.h", text)), IsEmpty());
}

class SystemHeaderTest : public testing::TestWithParam<const char*> {};

TEST_P(SystemHeaderTest, IsNotForTheLibrary) {
  const std::string include = std::string("#include <") + GetParam() + ">\n";
  EXPECT_THAT(SystemHeaderFindings(One("instrument/A.cpp", include)),
              ElementsAre(Where("instrument/A.cpp:1")));
  EXPECT_THAT(SystemHeaderFindings(One("host/A.cpp", include)), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Headers, SystemHeaderTest,
                         testing::Values("unistd.h", "sys/types.h", "time.h", "ctime", "thread", "mutex",
                                         "fstream", "windows.h", "pugixml.hpp", "nlohmann/json.hpp"));

TEST(SystemHeaderFindings, AllowPlainStandardHeaders) {
  EXPECT_THAT(
      SystemHeaderFindings(One("ui/A.h", "#include <chrono>\n#include <memory>\n#include <string>\n")),
      IsEmpty());
}

TEST(ClockFindings, NameClocksAndSleeps) {
  EXPECT_THAT(
      ClockFindings(One("instrument/A.cpp",
                        "auto a = std::chrono::steady_clock::now();\n"
                        "std::this_thread::yield();\n"
                        "usleep(1);\n"
                        "auto b = std::chrono::milliseconds(3500);\n"
                        "// sleep\n")),
      ElementsAre(Where("instrument/A.cpp:1"), Where("instrument/A.cpp:2"), Where("instrument/A.cpp:3")));
}

TEST(TesterHeaderFindings, NameWhatIsNeitherCppNorTheSystems) {
  EXPECT_THAT(TesterHeaderFindings(
                  One("tester/A.cpp", "#include <CLI/CLI.hpp>\n#include <termios.h>\n#include <thread>\n")),
              ElementsAre(Where("tester/A.cpp:1")));
}

TEST(UnfinishedWorkFindings, NameMarksInCommentsOnly) {
  EXPECT_THAT(UnfinishedWorkFindings(One("host/A.cpp", "// TODO: b\nSay(\"TODO\");\n/* a\nFIXME */\n")),
              ElementsAre(Where("host/A.cpp:1"), Where("host/A.cpp:4")));
}

TEST(MachinePathFindings, NameThisWorkingCopyAndHomeFolders) {
  EXPECT_THAT(MachinePathFindings(One("host/A.cpp",
                                      "a(\"/x/copy/a\");\nb(\"/ho"
                                      "me/me/\");\nc(\"/tmp/\");\n"),
                                  "/x/copy"),
              ElementsAre(Where("host/A.cpp:1"), Where("host/A.cpp:2")));
}

TEST(Repository, HasNoOverlongFile) { EXPECT_THAT(LengthFindings(Tree()), IsEmpty()); }

TEST(Repository, HasGuardedHeaders) { EXPECT_THAT(HeaderGuardFindings(Tree()), IsEmpty()); }

TEST(Repository, SwallowsErrorsInOnePlace) { EXPECT_THAT(SwallowedErrorFindings(Tree()), IsEmpty()); }

TEST(Repository, CastsObjectsInOnePlace) { EXPECT_THAT(RawCastFindings(Tree()), IsEmpty()); }

TEST(Repository, HasALibraryThatStandsOnTheLanguageAlone) {
  EXPECT_THAT(SystemHeaderFindings(Tree()), IsEmpty());
}

TEST(Repository, HasALibraryWithoutClock) { EXPECT_THAT(ClockFindings(Tree()), IsEmpty()); }

TEST(Repository, HasATesterThatStandsOnTheSystemAlone) {
  EXPECT_THAT(TesterHeaderFindings(Tree()), IsEmpty());
}

TEST(Repository, HasNoMarksOfUnfinishedWork) { EXPECT_THAT(UnfinishedWorkFindings(Tree()), IsEmpty()); }

TEST(Repository, HasNoPathsOfOneMachine) { EXPECT_THAT(MachinePathFindings(Tree(), SOURCE_PATH), IsEmpty()); }

}  // namespace
}  // namespace house

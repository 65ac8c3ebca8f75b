#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/architecture/FileRules.h"

namespace house {
namespace {

using testing::IsEmpty;

using Rule = Findings (*)(const SourceFile&);

Findings PathFindings(const SourceFile& file) { return MachinePathFindings(file, SOURCE_PATH); }

std::vector<std::string> Places(const Findings& findings) {
  std::vector<std::string> places;
  for (const auto& finding : findings) places.push_back(finding.where);
  return places;
}

std::string Repeated(const std::string& line, int count) {
  std::string text;
  for (int index = 0; index < count; ++index) text += line;
  return text;
}

TEST(FileRules, FindWhatBreaksThem) {
  const char* caught = "\ntry { A(); } catch ( ... ) {}\n// catch (...)\n";
  const char* casts = "auto b = dynamic_cast<B*>(a);\nauto d = std::dynamic_pointer_cast<D>(c);\n";
  const char* system =
      "#include <unistd.h>\n#include <sys/types.h>\n#include <time.h>\n#include <ctime>\n#include <thread>\n"
      "#include <mutex>\n#include <fstream>\n#include <windows.h>\n#include <pugixml.hpp>\n"
      "#include <nlohmann/json.hpp>\n";
  struct {
    const char* name;
    Rule rule;
    const char* path;
    std::string text;
    std::vector<int> lines;  ///< with findings; 0 for the whole file
  } const cases[] = {
      {"500 lines", LengthFindings, "host/A.cpp", Repeated("int a;\n", 500), {}},
      {"501 lines", LengthFindings, "host/A.cpp", Repeated("int a;\n", 501), {0}},
      {"late guard", HeaderGuardFindings, "host/A.h", "\n#pragma once\n", {0}},
      {"guard", HeaderGuardFindings, "host/A.h", "#pragma once\n", {}},
      {"source without guard", HeaderGuardFindings, "host/A.cpp", "int a;\n", {}},
      {"swallowed error", SwallowedErrorFindings, "results/A.cpp", caught, {2}},
      {"Attempt", SwallowedErrorFindings, "plugin/base/Attempt.h", caught, {}},
      {"entry points", SwallowedErrorFindings, "plugin/EntryPoints.cpp", caught, {}},
      {"casts", RawCastFindings, "ui/A.cpp", casts, {1, 2}},
      {"As", RawCastFindings, "OrvikTypeLib/As.h", casts, {}},
      {"system headers", SystemHeaderFindings, "instrument/A.cpp", system, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}},
      {"system headers in the host", SystemHeaderFindings, "host/A.cpp", system, {}},
      {"C++ headers", SystemHeaderFindings, "ui/A.h", "#include <chrono>\n#include <string_view>\n", {}},
      {"clocks and sleeps",
       ClockFindings,
       "instrument/A.cpp",
       "auto a = std::chrono::steady_clock::now();\nstd::this_thread::yield();\nusleep(1);\n"
       "auto b = std::chrono::milliseconds(3500);\n// sleep\nsleepy();\n",
       {1, 2, 3}},
      {"tester headers",
       TesterHeaderFindings,
       "tester/A.cpp",
       "#include <CLI/CLI.hpp>\n#include <termios.h>\n#include <sys/file.h>\n#include <thread>\n"
       "#include <QString>\n#include <gtest/gtest.h>\n",
       {1, 5, 6}},
      {"unfinished work",
       UnfinishedWorkFindings,
       "host/A.cpp",
       "// TO"
       "DO: b\nmkdtemp(\"a-XXXXXX\");\n/* a\nFIX"
       "ME */\n",
       {1, 4}},
      {"paths of one machine",
       PathFindings,
       "host/A.cpp",
       std::string("a(\"") + SOURCE_PATH +
           "/a\");\nb(\"/ho"
           "me/me/\");\nc(\"/tmp/\");\n",
       {1, 2}},
  };
  for (const auto& row : cases) {
    std::vector<std::string> expected;
    for (const int line : row.lines)
      expected.push_back(line == 0 ? row.path : row.path + (":" + std::to_string(line)));
    EXPECT_EQ(Places(row.rule(MakeSourceFile(row.path, row.text))), expected) << row.name;
  }
}

TEST(FileRules, HoldInTheRepository) {
  for (const auto& file : Tree())
    for (const Rule rule :
         {LengthFindings, HeaderGuardFindings, SwallowedErrorFindings, RawCastFindings, SystemHeaderFindings,
          ClockFindings, TesterHeaderFindings, UnfinishedWorkFindings, PathFindings})
      EXPECT_THAT(rule(file), IsEmpty());
}

TEST(SourceFile, NamesItsIncludes) {
  const auto file = MakeSourceFile(
      "a/A.cpp", "// #include <no>\n#include <string>\n  # include \"a/B.h\"  // why\nint c;\n");
  ASSERT_EQ(file.includes.size(), 2U);
  EXPECT_EQ(file.includes[0].name, "string");
  EXPECT_FALSE(file.includes[0].quoted);
  EXPECT_EQ(file.includes[0].line, 2);
  EXPECT_EQ(file.includes[1].name, "a/B.h");
  EXPECT_TRUE(file.includes[1].quoted);
  EXPECT_EQ(file.includes[1].line, 3);
}

TEST(HasWord, FindsWholeWordsOnly) {
  EXPECT_TRUE(HasWord("std::sleep(1)", "sleep"));
  EXPECT_TRUE(HasWord("sleepy sleep", "sleep"));
  EXPECT_FALSE(HasWord("no_sleep sleepy asleep", "sleep"));
}

}  // namespace
}  // namespace house

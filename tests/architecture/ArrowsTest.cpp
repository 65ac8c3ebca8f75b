#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "tests/architecture/Arrows.h"

namespace house {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::Field;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Key;

auto Where(const std::string& place) { return Field(&Finding::where, place); }

/// The arrows as the build has declared them.
const Arrows& Declared() {
  static const Arrows arrows = [] {
    std::ifstream file(FOLDERS_PATH);
    return ReadArrows(std::string(std::istreambuf_iterator<char>(file), {}));
  }();
  return arrows;
}

struct WrongInclude {
  const char* from;
  const char* to;
};

class WrongIncludeTest : public testing::TestWithParam<WrongInclude> {};

TEST_P(WrongIncludeTest, IsFound) {
  const std::string from = GetParam().from, to = GetParam().to;
  const auto findings =
      ArrowFindings({MakeSourceFile(to, "#pragma once\n"),
                     MakeSourceFile(from, "#pragma once\n#include <string>\n#include \"" + to + "\"\n")},
                    Declared());
  EXPECT_THAT(findings, Contains(Where(from + ":3")));
}

INSTANTIATE_TEST_SUITE_P(
    Arrows, WrongIncludeTest,
    testing::Values(
        WrongInclude{"OrvikTypeLib/A.h", "platform/B.h"}, WrongInclude{"OrvikTypeLib/A.h", "plugin/B.h"},
        WrongInclude{"platform/A.h", "OrvikTypeLib/B.h"}, WrongInclude{"platform/A.h", "host/base/B.h"},
        WrongInclude{"resources/A.cpp", "platform/B.h"}, WrongInclude{"plugin/A.h", "host/base/B.h"},
        WrongInclude{"plugin/base/A.h", "instrument/B.h"}, WrongInclude{"instrument/A.h", "results/B.h"},
        WrongInclude{"plugin/configuration/A.cpp", "ui/B.h"}, WrongInclude{"ui/A.cpp", "model/B.h"},
        WrongInclude{"model/A.cpp", "plugin/B.h"}, WrongInclude{"ui/A.h", "tester/B.h"},
        WrongInclude{"model/A.cpp", "tests/B.h"}, WrongInclude{"instrument/A.cpp", "windows/B.h"},
        WrongInclude{"results/A.cpp", "toolkit/loop/B.h"}, WrongInclude{"tester/A.cpp", "OrvikTypeLib/B.h"},
        WrongInclude{"tester/A.cpp", "host/serial/B.h"},
        WrongInclude{"toolkit/loop/A.h", "toolkit/headless/B.h"},
        WrongInclude{"toolkit/controls/A.h", "host/base/B.h"}, WrongInclude{"host/bench/A.cpp", "plugin/B.h"},
        WrongInclude{"host/run/A.cpp", "model/B.h"}, WrongInclude{"host/judge/A.cpp", "host/run/B.h"},
        WrongInclude{"host/bench/A.cpp", "host/cli/B.h"}, WrongInclude{"host/cli/A.cpp", "host/gui/B.h"},
        WrongInclude{"host/gui/A.cpp", "host/cli/B.h"}, WrongInclude{"host/base/A.cpp", "tester/B.h"}));

TEST(ArrowFindings, NameAnIncludeThatIsNotWrittenFromTheRoot) {
  const auto findings = ArrowFindings(
      {MakeSourceFile("toolkit/loop/A.h", ""), MakeSourceFile("toolkit/loop/B.h", "#include \"A.h\"\n")},
      Declared());
  EXPECT_THAT(findings, ElementsAre(Where("toolkit/loop/B.h:1")));
}

TEST(ArrowFindings, NameAFileInAFolderThatIsNotDeclared) {
  EXPECT_THAT(ArrowFindings({MakeSourceFile("attic/A.h", "")}, Declared()), ElementsAre(Where("attic/A.h")));
}

TEST(ArrowFindings, LetLowerFoldersAndOnesOwnBeIncluded) {
  EXPECT_THAT(ArrowFindings({MakeSourceFile("plugin/base/A.h", ""), MakeSourceFile("instrument/B.h", ""),
                             MakeSourceFile("instrument/C.cpp",
                                            "#include \"plugin/base/A.h\"\n#include \"instrument/B.h\"\n")},
                            Declared()),
              IsEmpty());
}

TEST(ArrowFindings, LetThePlugInIncludeTheInterfaceOfATest) {
  EXPECT_THAT(ArrowFindings({MakeSourceFile("model/IKELDTest.h", ""),
                             MakeSourceFile("ui/FTestGuide.cpp", "#include \"model/IKELDTest.h\"\n")},
                            Declared()),
              IsEmpty());
}

TEST(ArrowFindings, LetTestsIncludeEverything) {
  EXPECT_THAT(
      ArrowFindings({MakeSourceFile("host/base/A.h", ""), MakeSourceFile("plugin/B.h", ""),
                     MakeSourceFile("tests/C.cpp", "#include \"host/base/A.h\"\n#include \"plugin/B.h\"\n")},
                    Declared()),
      IsEmpty());
}

TEST(JudgeFindings, NameFilesWireWindowsAndClocks) {
  for (const auto* include : {"\"host/serial/Port.h\"", "\"host/base/Files.h\"", "\"host/bench/Workbench.h\"",
                              "\"host/document/Document.h\"", "<fstream>", "<chrono>"})
    EXPECT_THAT(
        JudgeFindings({MakeSourceFile("host/judge/Judge.cpp", std::string("#include ") + include + "\n")}),
        ElementsAre(Where("host/judge/Judge.cpp:1")))
        << include;
  EXPECT_THAT(
      JudgeFindings({MakeSourceFile("host/judge/CaseOf.cpp", "#include \"host/document/Document.h\"\n")}),
      IsEmpty());
}

TEST(CircleFindings, NameTheWayRound) {
  const auto findings = CircleFindings({MakeSourceFile("a/A.h", "#include \"a/B.h\"\n"),
                                        MakeSourceFile("a/B.h", "#include \"a/C.h\"\n"),
                                        MakeSourceFile("a/C.h", "#include \"a/A.h\"\n")});
  ASSERT_EQ(findings.size(), 1U);
  EXPECT_THAT(findings[0].what, HasSubstr("a/A.h -> a/B.h -> a/C.h -> a/A.h"));
}

TEST(CircleFindings, AreNoneWhereTwoWaysLeadToOnePlace) {
  EXPECT_THAT(CircleFindings({MakeSourceFile("a/A.h", "#include \"a/B.h\"\n#include \"a/C.h\"\n"),
                              MakeSourceFile("a/B.h", "#include \"a/C.h\"\n"), MakeSourceFile("a/C.h", "")}),
              IsEmpty());
}

TEST(Repository, HasItsFilesFound) { EXPECT_GT(Tree().size(), 100U); }

TEST(Repository, HasAllIncludesAlongTheDeclaredArrows) {
  EXPECT_THAT(Declared(), Contains(Key("host/judge")));
  EXPECT_THAT(ArrowFindings(Tree(), Declared()), IsEmpty());
}

TEST(Repository, HasNothingOfThePlugInInTheHost) {
  for (const auto& [folder, used] : Declared()) {
    if (FolderOf(folder + "/") != "host" && FolderOf(folder + "/") != "toolkit") continue;
    for (const auto& below : used) EXPECT_FALSE(IsPlugIn(below + "/x")) << folder << " uses " << below;
  }
}

TEST(Repository, HasAJudgeThatSeesDocumentsAlone) { EXPECT_THAT(JudgeFindings(Tree()), IsEmpty()); }

TEST(Repository, HasNoCircleAmongItsFiles) { EXPECT_THAT(CircleFindings(Tree()), IsEmpty()); }

}  // namespace
}  // namespace house

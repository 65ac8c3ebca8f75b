#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/house/Folders.h"

namespace house {
namespace {

using testing::ElementsAre;
using testing::Field;
using testing::HasSubstr;
using testing::IsEmpty;

auto Where(const std::string& place) { return Field(&Finding::where, place); }

// What each folder must not include, by example.
struct WrongWay {
  const char* from;
  const char* to;
};

class WrongWayTest : public testing::TestWithParam<WrongWay> {};

TEST_P(WrongWayTest, IsFound) {
  const std::string from = GetParam().from, to = GetParam().to;
  const auto findings =
      FolderFindings({MakeSourceFile(to, "#pragma once\n"),
                      MakeSourceFile(from, "#pragma once\n#include <string>\n#include \"" + to + "\"\n")});
  EXPECT_THAT(findings, ElementsAre(Where(from + ":3")));
}

INSTANTIATE_TEST_SUITE_P(
    Arrows, WrongWayTest,
    testing::Values(WrongWay{"OrvikTypeLib/A.h", "platform/B.h"}, WrongWay{"OrvikTypeLib/A.h", "plugin/B.h"},
                    WrongWay{"platform/A.h", "OrvikTypeLib/B.h"}, WrongWay{"platform/A.h", "host/B.h"},
                    WrongWay{"resources/A.cpp", "platform/B.h"}, WrongWay{"plugin/A.h", "host/B.h"},
                    WrongWay{"ui/A.h", "tester/B.h"}, WrongWay{"model/A.cpp", "tests/B.h"},
                    WrongWay{"instrument/A.cpp", "windows/B.h"}, WrongWay{"results/A.cpp", "host/loop/B.h"},
                    WrongWay{"tester/A.cpp", "OrvikTypeLib/B.h"}, WrongWay{"tester/A.cpp", "host/B.h"},
                    WrongWay{"host/A.cpp", "plugin/B.h"}, WrongWay{"host/run/A.cpp", "model/B.h"},
                    WrongWay{"host/A.cpp", "tester/B.h"}));

TEST(FolderFindings, NameAnIncludeThatIsNotWrittenFromTheRoot) {
  const auto findings = FolderFindings(
      {MakeSourceFile("host/loop/A.h", ""), MakeSourceFile("host/loop/B.h", "#include \"A.h\"\n")});
  EXPECT_THAT(findings, ElementsAre(Where("host/loop/B.h:1")));
}

TEST(FolderFindings, NameAFolderWithoutARule) {
  EXPECT_THAT(FolderFindings({MakeSourceFile("attic/A.h", "")}), ElementsAre(Where("attic/A.h")));
}

TEST(FolderFindings, LetTheTestsIncludeEverything) {
  EXPECT_THAT(
      FolderFindings({MakeSourceFile("host/A.h", ""), MakeSourceFile("plugin/B.h", ""),
                      MakeSourceFile("tests/C.cpp", "#include \"host/A.h\"\n#include \"plugin/B.h\"\n")}),
      IsEmpty());
}

TEST(RoomFindings, NameAnIncludeOfAHigherRoom) {
  EXPECT_THAT(RoomFindings({MakeSourceFile("instrument/CKELDData.h", "#include \"results/X.h\"\n")}),
              ElementsAre(Where("instrument/CKELDData.h:1")));
  EXPECT_THAT(RoomFindings({MakeSourceFile("plugin/Attempt.h", "#include \"instrument/X.h\"\n")}),
              ElementsAre(Where("plugin/Attempt.h:1")));
  EXPECT_THAT(RoomFindings({MakeSourceFile("plugin/FElementSetup.cpp", "#include \"ui/X.h\"\n")}),
              ElementsAre(Where("plugin/FElementSetup.cpp:1")));
  EXPECT_THAT(RoomFindings({MakeSourceFile("instrument/CKELDMeasurement.cpp", "#include \"ui/X.h\"\n")}),
              ElementsAre(Where("instrument/CKELDMeasurement.cpp:1")));
  EXPECT_THAT(RoomFindings({MakeSourceFile("ui/FTestGuide.cpp", "#include \"model/CKELDSequence.h\"\n")}),
              ElementsAre(Where("ui/FTestGuide.cpp:1")));
  EXPECT_THAT(RoomFindings({MakeSourceFile("model/X.cpp", "#include \"plugin/CKELDPlugin.h\"\n")}),
              ElementsAre(Where("model/X.cpp:1")));
}

TEST(RoomFindings, LetAFileIncludeItsOwnRoomAndLowerOnes) {
  EXPECT_THAT(RoomFindings({MakeSourceFile("instrument/CKELDMeasurement.cpp",
                                           "#include \"instrument/CKELDMeasurement.h\"\n"
                                           "#include \"instrument/CKELDData.h\"\n"
                                           "#include \"plugin/Attempt.h\"\n"
                                           "#include \"results/CKELDLimitData.h\"\n")}),
              IsEmpty());
}

TEST(RoomFindings, LetEveryRoomIncludeTheRunControlInterface) {
  EXPECT_THAT(RoomFindings({MakeSourceFile("ui/FTestGuide.cpp", "#include \"model/IKELDTest.h\"\n")}),
              IsEmpty());
}

TEST(RoomFindings, NameAPlugInFileWithoutARoom) {
  EXPECT_THAT(RoomFindings({MakeSourceFile("plugin/Stray.h", "")}), ElementsAre(Where("plugin/Stray.h")));
}

TEST(JudgeFindings, NameFilesWireWindowsAndClocks) {
  for (const auto* include :
       {"\"host/serial/Port.h\"", "\"host/services/Files.h\"", "\"host/app/Workbench.h\"",
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

TEST(Repository, HasAllArrowsBetweenFoldersOneWay) { EXPECT_THAT(FolderFindings(Tree()), IsEmpty()); }

TEST(Repository, HasNoRoomThatReachesIntoAHigherOne) { EXPECT_THAT(RoomFindings(Tree()), IsEmpty()); }

TEST(Repository, HasAJudgeThatSeesDocumentsAlone) { EXPECT_THAT(JudgeFindings(Tree()), IsEmpty()); }

TEST(Repository, HasNoCircleAmongItsFiles) { EXPECT_THAT(CircleFindings(Tree()), IsEmpty()); }

}  // namespace
}  // namespace house

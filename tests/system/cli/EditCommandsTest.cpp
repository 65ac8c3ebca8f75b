#include <regex>

#include "tests/system/cli/CliTest.h"

namespace cli {
namespace {

/// A document is made and changed without an editor.
class EditCommandsTest : public CliTest {
 protected:
  /// The identifiers in document order, with those of a sequence's tests behind it.
  std::vector<int> Order(const std::string& file) const {
    std::vector<int> order;
    const auto shown = Show(file);
    for (const auto& element : shown["elements"]) order.push_back(element["id"]);
    return order;
  }
};

using Order = std::vector<int>;

TEST_F(EditCommandsTest, Add_PrintsIdentifiersInTheOrderGiven) {
  const auto file = NewDocument({"210", "400"});  // 1, 2 with 3 and 4
  EXPECT_EQ(Done({"add", file, "610", "910"}),
            "   5   610  Earth leakage, NC\n"
            "   6   910  Patient leakage AC, NC\n");
  Done({"add", file, "1010", "1020", "--before", "1"});
  Done({"add", file, "710", "720", "--after", "1"});
  Done({"add", file, "410", "--to", "2"});
  EXPECT_EQ(Order(file), (cli::Order{7, 8, 1, 9, 10, 2, 3, 4, 11, 5, 6}));
  EXPECT_EQ(Show(file)["elements"][8]["parent"], 2);
}

TEST_F(EditCommandsTest, Add_BesideAChildAddsToItsSequence) {
  const auto file = NewDocument({"400"});
  Done({"add", file, "410", "--before", "3"});
  EXPECT_EQ(Order(file), (cli::Order{1, 2, 4, 3}));
  EXPECT_EQ(Show(file)["elements"][2]["parent"], 1);
}

TEST_F(EditCommandsTest, Move_ChangesTheOrderOfTesting) {
  const auto file = NewDocument({"210", "410", "610"});
  EXPECT_EQ(Done({"move", file, "--element", "3", "--before", "1"}),
            "   3   610  Earth leakage, NC\n"
            "   1   210  Mains voltage\n"
            "   2   410  Protective earth, with mains cord\n");
  Done({"move", file, "--element", "3", "--after", "1"});
  EXPECT_EQ(Order(file), (cli::Order{1, 3, 2}));
  Done({"move", file, "--element", "1", "--to-end"});
  EXPECT_EQ(Order(file), (cli::Order{3, 2, 1}));
  RunSound(file);
  Words tests;
  for (const auto& command : SentIn(file + ".wire.log"))
    if (command.starts_with("STST,") && !command.starts_with("STST,210")) tests.push_back(command);
  EXPECT_EQ(tests, (Words{"STST,610,0", "STST,410,0"}));
}

TEST_F(EditCommandsTest, Remove_IncludesTheTestsOfASequence) {
  const auto file = NewDocument({"210", "400", "610"});
  EXPECT_EQ(Done({"remove", file, "--element", "2", "3", "5"}),
            "removed: element 2 (Protective earth resistance)\n"
            "removed: element 5 (Earth leakage, NC)\n");
  EXPECT_EQ(Order(file), (cli::Order{1}));
}

TEST_F(EditCommandsTest, Remove_NamesARemovedResult) {
  const auto file = NewDocument({"410", "610"});
  SetLimit(file, "1", "100");
  SetLimit(file, "2", "100000");
  ASSERT_EQ(RunSound(file).status, 1);
  const auto removed = Done({"remove", file, "--element", "1"});
  EXPECT_THAT(removed, HasSubstr("element 1 is removed; its result was: failed\n"));
}

TEST_F(EditCommandsTest, Edit_ShowsAndChangesTheFields) {
  const auto file = Path("a.orvik");
  Done({"new", file, "--add", "410", "--asset", "A7", "--maker", "M"});
  EXPECT_EQ(Done({"edit", file}),
            "Asset number   A7\nSerial number  -\nMaker          M\nModel          -\nComment        -\n");
  const auto before = Contents(file);
  EXPECT_EQ(Done({"edit", file, "--asset", "A8", "--serial", "S", "--model", "X", "--maker", "", "--comment",
                  "after \"repair\""}),
            "Asset number   A8\nSerial number  S\nMaker          -\nModel          X\n"
            "Comment        after \"repair\"\n");
  EXPECT_THAT(Done({"edit", file}), HasSubstr("after \"repair\""));
  Done({"check", file});
  Done({"edit", file, "--asset", "A7", "--serial", "", "--model", "", "--maker", "M", "--comment", ""});
  EXPECT_EQ(Contents(file), before);
}

TEST_F(EditCommandsTest, Comment_IsInEveryOutput) {
  const auto file = NewDocument({"410"});
  Done({"edit", file, "--comment", "after <repair>"});
  EXPECT_THAT(Done({"show", file}), HasSubstr("Comment: after <repair>\n"));
  EXPECT_EQ(Show(file)["comment"], "after <repair>");
  Done({"report", file, "--to", Path("d.txt")});
  EXPECT_THAT(Contents(Path("d.txt")), HasSubstr("after <repair>"));
  Done({"report", file, "--to", Path("d.html")});
  EXPECT_THAT(Contents(Path("d.html")), HasSubstr("after &lt;repair&gt;"));
}

TEST_F(EditCommandsTest, AnotherDevice_HasNoResults) {
  const auto file = NewDocument({"410"});
  SetLimit(file, "1", "300");
  ASSERT_EQ(RunSound(file).status, 0);
  EXPECT_THAT(Done({"edit", file, "--comment", "c"}), Not(HasSubstr("no longer counts")));
  const auto changed = Done({"edit", file, "--asset", "A8"});
  EXPECT_THAT(changed, HasSubstr("element 1 no longer counts: not tested (was: passed): "));
  EXPECT_THAT(changed, HasSubstr("the document is now: incomplete (was: passed)\n"));
  const auto back = Done({"edit", file, "--asset", ""});
  EXPECT_THAT(
      back,
      HasSubstr(
          "element 1 counts now: passed (was: not tested)\nthe document is now: passed (was: incomplete)\n"));
  EXPECT_EQ(Show(file)["outcome"], "passed");
}

TEST_F(EditCommandsTest, AddedChild_InvalidatesItsGroupsResult) {
  const auto file = NewDocument({"400"});
  Done({"limit", file, "--element", "2", "3", "--standard", "S", "--high", "300"});
  Done({"limit", file, "--element", "1", "--record-only"});
  RunSound(file);
  const auto added = Done({"add", file, "410", "--to", "1"});
  EXPECT_THAT(added, HasSubstr("element 1 no longer counts: "));
  EXPECT_THAT(Done({"remove", file, "--element", "4"}), HasSubstr("element 1 counts now: "));
}

TEST_F(EditCommandsTest, NewFrom_CopiesThePlanWithoutResults) {
  const auto first = Path("a.orvik");
  Done({"new", first, "--add", "410", "910", "--asset", "A7", "--serial", "S7"});
  Done({"edit", first, "--comment", "only of the first"});
  SetLimit(first, "1", "300");
  Done({"config", first, "--element", "2", "--options", "4"});
  Done({"move", first, "--element", "2", "--before", "1"});
  RunSound(first);
  EXPECT_EQ(Done({"new", Path("b.orvik"), "--from", first, "--asset", "A8", "--add", "210"}),
            "   1   910  Patient leakage AC, NC\n"
            "   2   410  Protective earth, with mains cord\n"
            "   3   210  Mains voltage\n");
  const auto text = Contents(Path("b.orvik"));
  for (const auto* planned : {"Asset=\"A8\" Serial=\"\"", "High=\"300\"", "Options=\"4\""})
    EXPECT_THAT(text, HasSubstr(planned));
  for (const auto* past : {"ResultItem", "<Run", "SIM-0001", "only of the first", "S7"})
    EXPECT_THAT(text, Not(HasSubstr(past)));
  EXPECT_EQ(Show(Path("b.orvik"))["outcome"], "incomplete");
}

TEST_F(EditCommandsTest, NewFrom_NeverOverwritesItsSource) {
  const auto file = NewDocument({"410"});
  const auto before = Contents(file);
  EXPECT_EQ(Bench({"new", file, "--from", file}).status, 3);
  EXPECT_EQ(Contents(file), before);
}

class RefusedEdit : public EditCommandsTest, public testing::WithParamInterface<Refusal> {};

TEST_P(RefusedEdit, NamesTheOptionAndChangesNothing) {
  const auto file = NewDocument({"410", "400"});
  auto words = GetParam().words;
  words.insert(words.begin() + 1, file);
  ExpectRefused(words, GetParam().named);
}

INSTANTIATE_TEST_SUITE_P(
    Table, RefusedEdit,
    testing::Values(
        Refusal{"AddNothing", {"add"}, {"TESTID"}}, Refusal{"AddUnknown", {"add", "411"}, {"411", "tests"}},
        Refusal{"AddUnknownAfterOthers", {"add", "410", "411"}, {"411"}},
        Refusal{"AddAList", {"add", "410,610"}, {"410,610", "one by one: 410 610"}},
        Refusal{"AddToATest", {"add", "410", "--to", "1"}, {"--to 1", "sequence"}},
        Refusal{"AddToNoElement", {"add", "410", "--to", "9"}, {"--to 9", "d.orvik"}},
        Refusal{"AddBeforeNoElement", {"add", "410", "--before", "9"}, {"--before 9"}},
        Refusal{"AddInTwoPlaces", {"add", "410", "--to", "2", "--after", "1"}, {"--to", "--after"}},
        Refusal{"RemoveNothing", {"remove"}, {"--element"}},
        Refusal{"RemoveNoElement", {"remove", "--element", "1", "9"}, {"--element 9"}},
        Refusal{"MoveNowhere", {"move", "--element", "1"}, {"--before", "--after", "--to-end"}},
        Refusal{"MoveNoElement", {"move", "--element", "9", "--to-end"}, {"--element 9"}},
        Refusal{"MoveBesideItself", {"move", "--element", "1", "--after", "1"}, {"--after 1"}},
        Refusal{"MoveIntoItself", {"move", "--element", "2", "--after", "3"}, {"element 2", "inside itself"}},
        Refusal{"MoveToTwoPlaces", {"move", "--element", "1", "--after", "2", "--to-end"}, {"--to-end"}}),
    kNamed);

}  // namespace
}  // namespace cli

#include "tests/system/cli/CliTest.h"

namespace cli {
namespace {

class CheckCommandTest : public CliTest {
 protected:
  /// The document with a part of its text replaced.
  void Change(const std::string& file, const std::string& from, const std::string& to) const {
    auto text = Contents(file);
    const auto at = text.find(from);
    ASSERT_NE(at, std::string::npos) << from;
    text.replace(at, from.size(), to);
    std::ofstream(file) << text;
  }
};

TEST_F(CheckCommandTest, FindsNoProblemAfterARun) {
  const auto file = NewDocument({"400", "1220"});
  Done({"limit", file, "--from", "iec-62353-class-1-bf"});
  Done({"run", file, "--simulate", "sound-class-1", "--time-scale", kTimeScale});
  const auto checked = Bench({"check", file});
  EXPECT_EQ(checked.status, 0);
  EXPECT_EQ(checked.out, file + ": no problems found\n");
  const auto json = Json({"check", file, "--json"});
  EXPECT_EQ(json["wrong"], 0);
  EXPECT_TRUE(json["findings"].empty());
}

TEST_F(CheckCommandTest, NotesAreNotProblems) {
  const auto file = NewDocument({"410"});
  Change(file, "<Instruments", "<Signature>x</Signature>\n  <Instruments");
  const auto checked = Bench({"check", file});
  EXPECT_EQ(checked.status, 0);
  EXPECT_THAT(checked.out, HasSubstr("column 3: note: the element \"Signature\" is not known; it is kept"));
  EXPECT_THAT(checked.out, HasSubstr("no problems found"));
}

TEST_F(CheckCommandTest, ReportsEveryProblemWithItsPlace) {
  const auto file = NewDocument({"410", "420"});
  SetLimit(file, "1", "300");
  Change(file, "ID=\"2\" TestID=\"420\"", "ID=\"1\" TestID=\"421\"");
  Change(file, "Unit=\"mOhm\" High=\"300\"", "Unit=\"Ohm\" High=\"30O\"");
  const auto before = Contents(file);
  const auto checked = Bench({"check", file});
  EXPECT_EQ(checked.status, 3);
  for (const char* part : {"is used twice", "the catalogue has no test 421", "\"30O\" is not a number",
                           "the bounds are in Ohm", "4 problems found"})
    EXPECT_THAT(checked.out, HasSubstr(part));
  const auto json = Json({"check", file, "--json"});
  EXPECT_EQ(json["wrong"], 4);
  for (const auto& found : json["findings"]) {
    EXPECT_EQ(found["kind"], "wrong");
    EXPECT_GT(found["line"], 5);
    EXPECT_GT(found["column"], 4);
  }
  EXPECT_EQ(Contents(file), before);
}

TEST_F(CheckCommandTest, NewerDocument_IsRefusedByEveryCommand) {
  const auto file = NewDocument({"410"});
  Change(file, "OrvikDocument Version=\"1\"", "OrvikDocument Version=\"2\"");
  const auto before = Contents(file);
  for (const Words& words : {Words{"check", file}, Words{"show", file}, Words{"run", file, "--simulate"},
                             Words{"limit", file, "--element", "1", "--standard", "S", "--high", "1"},
                             Words{"config", file, "--element", "1", "--options", "1"}}) {
    const auto refused = Bench(words);
    EXPECT_EQ(refused.status, 3) << words[0];
    EXPECT_THAT(refused.out + refused.error, HasSubstr("newer version of this program (format 2"))
        << words[0];
  }
  EXPECT_EQ(Contents(file), before);
}

TEST_F(CheckCommandTest, NamesAMissingFile) {
  const auto refused = Bench({"check", Path("none.orvik")});
  EXPECT_EQ(refused.status, 3);
  EXPECT_THAT(refused.error, HasSubstr("none.orvik"));
}

}  // namespace
}  // namespace cli

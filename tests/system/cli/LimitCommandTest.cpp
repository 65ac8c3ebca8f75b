#include "tests/system/cli/CliTest.h"

namespace cli {
namespace {

class LimitCommandTest : public CliTest {
 protected:
  /// Sets limits or marks; the command must end with 0. Returns what it printed.
  std::string Limit(const std::string& file, const Words& more) const {
    Words words{"limit", file};
    words.insert(words.end(), more.begin(), more.end());
    const auto done = Bench(words);
    EXPECT_EQ(done.status, 0) << done.error;
    return done.out;
  }
  static bool Holds(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
  }
};

TEST_F(LimitCommandTest, SetsALimitForSeveralElements) {
  const auto file = NewDocument({"410", "420", "610"});
  EXPECT_EQ(Limit(file, {"--element", "1", "2", "--standard", "S", "--description", "d", "--high", "0.2",
                         "--unit", "Ohm"}),
            "element 1 (Protective earth, with mains cord): S, d: at most 200 mOhm\n"
            "element 2 (Protective earth, without mains cord): S, d: at most 200 mOhm\n");
}

TEST_F(LimitCommandTest, ASetReplacesTheFiguresOfAnEarlierSetOfTheStandard) {
  const auto file = NewDocument({"410", "740"});
  Limit(file, {"--from", "iec-62353-class-1-bf"});
  const auto applied = Limit(file, {"--from", "iec-62353-class-2-bf"});
  EXPECT_TRUE(Holds(applied, "2  Enclosure leakage, NC, mains reversed                  at most 100 µA\n"))
      << applied;
  EXPECT_TRUE(Holds(applied, "removed: IEC 62353, 2014, class I, type BF: at most 300 mOhm; not judged"))
      << applied;
  EXPECT_FALSE(Holds(Contents(file), "class I,"));
  const auto back = Limit(file, {"--from", "iec-62353-class-1-cf", "--element", "1"});
  EXPECT_TRUE(Holds(Contents(file), "class II,")) << "element 2 was not named: " << back;
}

TEST_F(LimitCommandTest, ASetReplacesAFigureInItsLine) {
  const auto file = NewDocument({"410"});
  Limit(file, {"--from", "iec-62353-class-1-bf"});
  EXPECT_TRUE(Holds(Limit(file, {"--from", "iec-62353-class-1-cf"}),
                    "at most 300 mOhm; replaces IEC 62353, 2014, class I, type BF: at most 300 mOhm\n"));
}

TEST_F(LimitCommandTest, AlsoKeepsTheFiguresOfAnEarlierSet) {
  const auto file = NewDocument({"410"});
  Limit(file, {"--from", "iec-62353-class-1-bf"});
  const auto second = Limit(file, {"--from", "iec-62353-class-1-cf", "--also"});
  EXPECT_TRUE(Holds(second, "judged by IEC 62353, 2014, class I, type BF: at most 300 mOhm too")) << second;
  EXPECT_TRUE(Holds(Contents(file), "type BF"));
  EXPECT_TRUE(Holds(Contents(file), "type CF"));
}

TEST_F(LimitCommandTest, ASetLeavesOtherStandardsAndLimitsSetByHand) {
  const auto file = NewDocument({"410"});
  Limit(file, {"--element", "1", "--standard", "IEC 62353", "--high", "100"});
  Limit(file, {"--element", "1", "--standard", "House", "--description", "1", "--high", "50"});
  const auto applied = Limit(file, {"--from", "iec-62353-class-1-bf"});
  EXPECT_TRUE(Holds(applied, "judged by IEC 62353: at most 100 mOhm too")) << applied;
  EXPECT_TRUE(Holds(Contents(file), "High=\"100\""));
  EXPECT_TRUE(Holds(Contents(file), "High=\"50\""));
}

TEST_F(LimitCommandTest, RecordOnlyMarksAndALimitTakesTheMarkAway) {
  const auto file = NewDocument({"210", "410"});
  EXPECT_EQ(Limit(file, {"--element", "1", "2", "--record-only"}),
            "element 1 (Mains voltage): recorded, not judged\n"
            "element 2 (Protective earth, with mains cord): recorded, not judged\n");
  EXPECT_TRUE(Holds(Contents(file), "RecordOnly=\"1\""));
  EXPECT_TRUE(Holds(Limit(file, {"--element", "1", "--standard", "S", "--low", "200"}),
                    "S: at least 200 V; no longer record-only\n"));
  EXPECT_TRUE(
      Holds(Limit(file, {"--from", "iec-62353-class-1-b"}), "at most 300 mOhm; no longer record-only\n"));
  EXPECT_FALSE(Holds(Contents(file), "RecordOnly"));
}

TEST_F(LimitCommandTest, RecordOnlyIsRefusedBesideALimit) {
  const auto file = NewDocument({"210", "410"});
  SetLimit(file, "2", "300");
  const auto before = Contents(file);
  const auto refused = Bench({"limit", file, "--element", "1", "2", "--record-only"});
  EXPECT_EQ(refused.status, 3);
  EXPECT_TRUE(Holds(refused.error, "element 2")) << refused.error;
  EXPECT_TRUE(Holds(refused.error, "--element 2 --remove")) << refused.error;
  EXPECT_EQ(Contents(file), before);
}

TEST_F(LimitCommandTest, RemoveTakesOneStandardOrAllAndTheMark) {
  const auto file = NewDocument({"410", "210"});
  Limit(file, {"--from", "iec-62353-class-1-bf"});
  Limit(file, {"--element", "1", "--standard", "House", "--high", "50"});
  EXPECT_EQ(
      Limit(file, {"--element", "1", "--remove", "--standard", "IEC 62353"}),
      "element 1 (Protective earth, with mains cord): removed: IEC 62353, 2014, class I, type BF: at most "
      "300 mOhm\n");
  EXPECT_TRUE(Holds(Contents(file), "House"));
  Limit(file, {"--element", "2", "--record-only"});
  const auto all = Limit(file, {"--element", "1", "2", "--remove"});
  EXPECT_TRUE(Holds(all, "element 1 (Protective earth, with mains cord): removed: House: at most 50 mOhm\n"));
  EXPECT_TRUE(Holds(all, "element 2 (Mains voltage): no longer record-only\n")) << all;
  EXPECT_TRUE(Holds(all, "element 2 (Mains voltage): not judged: it needs a limit or --record-only\n"));
  EXPECT_FALSE(Holds(Contents(file), "<Limit "));
  EXPECT_FALSE(Holds(Contents(file), "RecordOnly"));
}

TEST_F(LimitCommandTest, RemoveWithADescriptionTakesThatOneAlone) {
  const auto file = NewDocument({"410"});
  Limit(file, {"--from", "iec-62353-class-1-bf"});
  Limit(file, {"--from", "iec-62353-class-1-cf", "--also"});
  Limit(file,
        {"--element", "1", "--remove", "--standard", "IEC 62353", "--description", "2014, class I, type BF"});
  EXPECT_FALSE(Holds(Contents(file), "type BF"));
  EXPECT_TRUE(Holds(Contents(file), "type CF"));
}

TEST_F(LimitCommandTest, ALimitOfAFurtherStandardCountsAtOnce) {
  const auto file = NewDocument({"410"});
  SetLimit(file, "1", "300");
  ASSERT_EQ(Bench(Simulated(file, "sound-class-1")).status, 0);
  const auto set = Limit(file, {"--element", "1", "--standard", "House", "--high", "50"});
  EXPECT_TRUE(Holds(set, "element 1 ")) << set;
  EXPECT_TRUE(Holds(set, "(was: passed)")) << set;
  EXPECT_NE(Show(file)["outcome"], "passed");
}

struct LimitRefusal {
  const char* name;
  std::vector<std::string> words;
  std::vector<std::string> told;
};

class RefusedChange : public LimitCommandTest, public testing::WithParamInterface<LimitRefusal> {};

TEST_P(RefusedChange, NamesTheOptionAndChangesNothing) {
  const auto file = NewDocument({"410", "210"});
  SetLimit(file, "1", "300");
  const auto before = Contents(file);
  Words words{"limit", file};
  words.insert(words.end(), GetParam().words.begin(), GetParam().words.end());
  const auto refused = Bench(words);
  EXPECT_EQ(refused.status, 3) << refused.out;
  EXPECT_EQ(refused.out, "");
  for (const auto& told : GetParam().told)
    EXPECT_TRUE(Holds(refused.error, told)) << told << " is not in: " << refused.error;
  EXPECT_EQ(Contents(file), before);
}

INSTANTIATE_TEST_SUITE_P(
    Table, RefusedChange,
    testing::Values(
        LimitRefusal{
            "AlsoWithoutASet", {"--element", "1", "--standard", "S", "--high", "1", "--also"}, {"--also"}},
        LimitRefusal{"RecordOnlyAndALimit", {"--element", "2", "--record-only", "--high", "1"}, {"--high"}},
        LimitRefusal{"RecordOnlyAndRemove", {"--element", "2", "--record-only", "--remove"}, {"--remove"}},
        LimitRefusal{"RecordOnlyOfNoElement", {"--record-only"}, {"--element"}},
        LimitRefusal{"RemoveAndABound", {"--element", "1", "--remove", "--low", "1"}, {"--low", "--remove"}},
        LimitRefusal{"RemoveOfNoElement", {"--remove"}, {"--element"}},
        LimitRefusal{"RemoveNothing", {"--element", "1", "2", "--remove"}, {"element 2", "no limits"}},
        LimitRefusal{"RemoveAnotherStandard", {"--element", "1", "--remove", "--standard", "X"}, {"\"X\""}},
        LimitRefusal{
            "RemoveADescriptionAlone", {"--element", "1", "--remove", "--description", "d"}, {"--standard"}},
        LimitRefusal{"FromAndRemove", {"--from", "iec-62353-class-1-b", "--remove"}, {"--from", "--remove"}},
        LimitRefusal{"LaterElementIsNotThere",
                     {"--element", "1", "9", "--standard", "S", "--high", "1"},
                     {"--element 9"}}),
    [](const auto& tested) { return std::string(tested.param.name); });

}  // namespace
}  // namespace cli

#include "tests/system/cli/CliTest.h"

namespace cli {
namespace {

class LimitCommandTest : public CliTest {
 protected:
  /// Sets limits or marks; returns what the command printed.
  std::string Limit(const std::string& file, const Words& more) const {
    return Done(Join({"limit", file}, more));
  }
};

TEST_F(LimitCommandTest, SetsALimitForSeveralElements) {
  const auto file = NewDocument({"410", "420", "610"});
  EXPECT_EQ(Limit(file, {"--element", "1", "2", "--standard", "S", "--description", "d", "--high", "0.2",
                         "--unit", "Ohm"}),
            "element 1 (Protective earth, with mains cord): S, d: at most 200 mOhm\n"
            "element 2 (Protective earth, without mains cord): S, d: at most 200 mOhm\n");
}

TEST_F(LimitCommandTest, Set_ReplacesAnEarlierSetOfTheStandard) {
  const auto file = NewDocument({"410", "740"});
  Limit(file, {"--from", "iec-62353-class-1-bf"});
  const auto applied = Limit(file, {"--from", "iec-62353-class-2-bf"});
  EXPECT_THAT(applied,
              HasSubstr("2  Enclosure leakage, NC, mains reversed                  at most 100 µA\n"));
  EXPECT_THAT(applied, HasSubstr("removed: IEC 62353, 2014, class I, type BF: at most 300 mOhm; not judged"));
  EXPECT_THAT(Contents(file), Not(HasSubstr("class I,")));
  const auto back = Limit(file, {"--from", "iec-62353-class-1-cf", "--element", "1"});
  EXPECT_THAT(Contents(file), HasSubstr("class II,")) << "element 2 was not named: " << back;
}

TEST_F(LimitCommandTest, Set_NamesAReplacedFigure) {
  const auto file = NewDocument({"410"});
  Limit(file, {"--from", "iec-62353-class-1-bf"});
  EXPECT_THAT(Limit(file, {"--from", "iec-62353-class-1-cf"}),
              HasSubstr("at most 300 mOhm; replaces IEC 62353, 2014, class I, type BF: at most 300 mOhm\n"));
}

TEST_F(LimitCommandTest, Also_KeepsAnEarlierSet) {
  const auto file = NewDocument({"410"});
  Limit(file, {"--from", "iec-62353-class-1-bf"});
  const auto second = Limit(file, {"--from", "iec-62353-class-1-cf", "--also"});
  EXPECT_THAT(second, HasSubstr("judged by IEC 62353, 2014, class I, type BF: at most 300 mOhm too"));
  EXPECT_THAT(Contents(file), HasSubstr("type BF"));
  EXPECT_THAT(Contents(file), HasSubstr("type CF"));
}

TEST_F(LimitCommandTest, Set_KeepsOtherStandardsAndManualLimits) {
  const auto file = NewDocument({"410"});
  Limit(file, {"--element", "1", "--standard", "IEC 62353", "--high", "100"});
  Limit(file, {"--element", "1", "--standard", "House", "--description", "1", "--high", "50"});
  const auto applied = Limit(file, {"--from", "iec-62353-class-1-bf"});
  EXPECT_THAT(applied, HasSubstr("judged by IEC 62353: at most 100 mOhm too"));
  EXPECT_THAT(Contents(file), HasSubstr("High=\"100\""));
  EXPECT_THAT(Contents(file), HasSubstr("High=\"50\""));
}

TEST_F(LimitCommandTest, RecordOnly_IsRemovedByALimit) {
  const auto file = NewDocument({"210", "410"});
  EXPECT_EQ(Limit(file, {"--element", "1", "2", "--record-only"}),
            "element 1 (Mains voltage): recorded, not judged\n"
            "element 2 (Protective earth, with mains cord): recorded, not judged\n");
  EXPECT_THAT(Contents(file), HasSubstr("RecordOnly=\"1\""));
  EXPECT_THAT(Limit(file, {"--element", "1", "--standard", "S", "--low", "200"}),
              HasSubstr("S: at least 200 V; no longer record-only\n"));
  EXPECT_THAT(Limit(file, {"--from", "iec-62353-class-1-b"}),
              HasSubstr("at most 300 mOhm; no longer record-only\n"));
  EXPECT_THAT(Contents(file), Not(HasSubstr("RecordOnly")));
}

TEST_F(LimitCommandTest, RecordOnly_IsRefusedBesideALimit) {
  const auto file = NewDocument({"210", "410"});
  SetLimit(file, "2", "300");
  const auto before = Contents(file);
  const auto refused = Bench({"limit", file, "--element", "1", "2", "--record-only"});
  EXPECT_EQ(refused.status, 3);
  EXPECT_THAT(refused.error, HasSubstr("element 2"));
  EXPECT_THAT(refused.error, HasSubstr("--element 2 --remove"));
  EXPECT_EQ(Contents(file), before);
}

TEST_F(LimitCommandTest, Remove_RemovesOneStandardOrAll) {
  const auto file = NewDocument({"410", "210"});
  Limit(file, {"--from", "iec-62353-class-1-bf"});
  Limit(file, {"--element", "1", "--standard", "House", "--high", "50"});
  EXPECT_EQ(
      Limit(file, {"--element", "1", "--remove", "--standard", "IEC 62353"}),
      "element 1 (Protective earth, with mains cord): removed: IEC 62353, 2014, class I, type BF: at most "
      "300 mOhm\n");
  EXPECT_THAT(Contents(file), HasSubstr("House"));
  Limit(file, {"--element", "2", "--record-only"});
  const auto all = Limit(file, {"--element", "1", "2", "--remove"});
  EXPECT_THAT(all,
              HasSubstr("element 1 (Protective earth, with mains cord): removed: House: at most 50 mOhm\n"));
  EXPECT_THAT(all, HasSubstr("element 2 (Mains voltage): no longer record-only\n"));
  EXPECT_THAT(all, HasSubstr("element 2 (Mains voltage): not judged: it needs a limit or --record-only\n"));
  EXPECT_THAT(Contents(file), Not(HasSubstr("<Limit ")));
  EXPECT_THAT(Contents(file), Not(HasSubstr("RecordOnly")));
}

TEST_F(LimitCommandTest, Remove_WithADescriptionRemovesThatOne) {
  const auto file = NewDocument({"410"});
  Limit(file, {"--from", "iec-62353-class-1-bf"});
  Limit(file, {"--from", "iec-62353-class-1-cf", "--also"});
  Limit(file,
        {"--element", "1", "--remove", "--standard", "IEC 62353", "--description", "2014, class I, type BF"});
  EXPECT_THAT(Contents(file), Not(HasSubstr("type BF")));
  EXPECT_THAT(Contents(file), HasSubstr("type CF"));
}

TEST_F(LimitCommandTest, NewLimit_JudgesAtOnce) {
  const auto file = NewDocument({"410"});
  SetLimit(file, "1", "300");
  ASSERT_EQ(RunSound(file).status, 0);
  const auto set = Limit(file, {"--element", "1", "--standard", "House", "--high", "50"});
  EXPECT_THAT(set, HasSubstr("element 1 "));
  EXPECT_THAT(set, HasSubstr("(was: passed)"));
  EXPECT_NE(Show(file)["outcome"], "passed");
}

class RefusedChange : public LimitCommandTest, public testing::WithParamInterface<Refusal> {};

TEST_P(RefusedChange, NamesTheOptionAndChangesNothing) {
  const auto file = NewDocument({"410", "210"});
  SetLimit(file, "1", "300");
  ExpectRefused(Join({"limit", file}, GetParam().words), GetParam().named);
}

INSTANTIATE_TEST_SUITE_P(
    Table, RefusedChange,
    testing::Values(
        Refusal{
            "AlsoWithoutASet", {"--element", "1", "--standard", "S", "--high", "1", "--also"}, {"--also"}},
        Refusal{"RecordOnlyAndALimit", {"--element", "2", "--record-only", "--high", "1"}, {"--high"}},
        Refusal{"RecordOnlyAndRemove", {"--element", "2", "--record-only", "--remove"}, {"--remove"}},
        Refusal{"RecordOnlyOfNoElement", {"--record-only"}, {"--element"}},
        Refusal{"RemoveAndABound", {"--element", "1", "--remove", "--low", "1"}, {"--low", "--remove"}},
        Refusal{"RemoveOfNoElement", {"--remove"}, {"--element"}},
        Refusal{"RemoveNothing", {"--element", "1", "2", "--remove"}, {"element 2", "no limits"}},
        Refusal{"RemoveAnotherStandard", {"--element", "1", "--remove", "--standard", "X"}, {"\"X\""}},
        Refusal{
            "RemoveADescriptionAlone", {"--element", "1", "--remove", "--description", "d"}, {"--standard"}},
        Refusal{"FromAndRemove", {"--from", "iec-62353-class-1-b", "--remove"}, {"--from", "--remove"}},
        Refusal{"LaterElementIsNotThere",
                {"--element", "1", "9", "--standard", "S", "--high", "1"},
                {"--element 9"}}),
    kNamed);

}  // namespace
}  // namespace cli

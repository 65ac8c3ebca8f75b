#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/unit/judge/CaseBuilder.h"

namespace judge_tests {
namespace {

using host::document::RecordedTest;
using host::judge::Outcome;
using host::judge::Verdict;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

using Codes = std::vector<std::string>;

TEST(Judge, PassesAReadingWithinItsLimit) {
  auto earth = PassedEarth();
  const auto judged = earth.Judged(1);
  EXPECT_EQ(judged.verdict, Verdict::kPassed);
  EXPECT_THAT(judged.reasons, IsEmpty());
  EXPECT_TRUE(judged.judged);
  EXPECT_EQ(judged.value, 123);
  EXPECT_EQ(judged.unit, "mOhm");
  EXPECT_EQ(judged.run, 1);
  EXPECT_EQ(judged.by, "M. Holm");
  EXPECT_EQ(judged.at, "2026-11-21T14:03:22+01:00");
  ASSERT_EQ(judged.limits.size(), 1U);
  EXPECT_EQ(judged.limits[0].verdict, host::judge::LimitVerdict::kWithin);
  EXPECT_EQ(earth.Judged().outcome, Outcome::kPassed);
}

TEST(Judge, FailsAReadingBeyondALimitThatWasSetAfterTheRun) {
  auto earth = PassedEarth();
  earth.Element(1).standards.push_back(CaseBuilder::Limit("mOhm", {}, 100, "IEC 60601-1"));
  EXPECT_EQ(earth.Verdict(), Verdict::kFailed);
  EXPECT_THAT(earth.Codes(), ElementsAre("above-limit"));
  EXPECT_THAT(earth.Judged(1).FailedStandards(), ElementsAre("IEC 60601-1"));
  EXPECT_EQ(earth.Judged().outcome, Outcome::kFailed);
}

TEST(Judge, FailsAReadingBelowALowerBound) {
  CaseBuilder insulation;
  insulation.Add(1, 1010, "MOhm").standards = {CaseBuilder::Limit("MOhm", 2, {})};
  insulation.Begin({1});
  insulation.Measure(1, "1.5,0,MOhm", 1.5, "MOhm", 2);
  EXPECT_EQ(insulation.Verdict(), Verdict::kFailed);
  EXPECT_THAT(insulation.Codes(), ElementsAre("below-limit"));
}

TEST(Judge, TakesTheBoundItselfAsWithin) {
  auto earth = PassedEarth();
  earth.Element(1).standards = {CaseBuilder::Limit("mOhm", 123, 123)};
  EXPECT_EQ(earth.Verdict(), Verdict::kPassed);
}

TEST(Judge, KeepsFailedWhatThePlugInFailed) {
  auto earth = PassedEarth();
  earth.Measure(1, "0.4,0,Ohm", 400, "mOhm", 2);
  earth.Element(1).standards = {CaseBuilder::Limit("mOhm", {}, 500)};  // relaxed after the run
  EXPECT_EQ(earth.Verdict(), Verdict::kFailed);
  EXPECT_THAT(earth.Codes(), ElementsAre("failed-by-plug-in"));
}

// --- not judged, recorded

TEST(Judge, DoesNotPassAReadingWithoutALimit) {
  auto earth = PassedEarth();
  earth.Element(1).standards.clear();
  EXPECT_EQ(earth.Verdict(), Verdict::kNotJudged);
  EXPECT_THAT(earth.Codes(), ElementsAre("no-limit"));
  EXPECT_EQ(earth.Judged().outcome, Outcome::kIncomplete);
}

TEST(Judge, RecordsAReadingThatIsMarkedRecordOnly) {
  auto earth = PassedEarth();
  earth.Element(1).standards.clear();
  earth.Element(1).recordOnly = true;
  EXPECT_EQ(earth.Verdict(), Verdict::kRecorded);
  EXPECT_EQ(earth.Judged().outcome, Outcome::kIncomplete) << "nothing was judged";
}

TEST(Judge, JudgesByALimitAlsoWhereRecordOnlyIsSet) {
  auto earth = PassedEarth();
  earth.Element(1).recordOnly = true;
  EXPECT_EQ(earth.Verdict(), Verdict::kPassed);
  earth.Element(1).standards[0].limits[0].high = 100;
  EXPECT_EQ(earth.Verdict(), Verdict::kFailed);
}

TEST(Judge, ALimitWithoutBoundsJudgesNothing) {
  auto earth = PassedEarth();
  earth.Element(1).standards = {CaseBuilder::Limit("mOhm", {}, {})};
  EXPECT_EQ(earth.Verdict(), Verdict::kNotJudged);
}

TEST(Judge, LeavesOutStandardsThatAreNotSelectedAndNamesThem) {
  auto earth = PassedEarth();
  earth.Element(1).standards.push_back(CaseBuilder::Limit("mOhm", {}, 100, "IEC 60601-1"));
  earth.document.selected = {"IEC 62353"};
  EXPECT_EQ(earth.Verdict(), Verdict::kPassed);
  EXPECT_THAT(earth.Judged().standards, ElementsAre("IEC 62353"));
  EXPECT_THAT(earth.Judged().leftOut, ElementsAre("IEC 60601-1"));
  earth.Element(1).standards.erase(earth.Element(1).standards.begin());
  EXPECT_EQ(earth.Verdict(), Verdict::kNotJudged);
  EXPECT_THAT(earth.Codes(), ElementsAre("limits-left-out"));
}

// --- current

TEST(Judge, IgnoresAResultWithoutARun) {
  auto earth = PassedEarth();
  earth.runs.clear();
  EXPECT_EQ(earth.Verdict(), Verdict::kNotTested);
  EXPECT_THAT(earth.Codes(), ElementsAre("not-recorded"));
  earth.Element(1).result.reset();
  EXPECT_THAT(earth.Codes(), ElementsAre("never-run"));
}

TEST(Judge, IgnoresAResultThatALaterRunStartedAgain) {
  auto earth = PassedEarth();
  earth.Begin({1}).end = host::document::RunRecord::End::kNone;
  EXPECT_EQ(earth.Verdict(), Verdict::kNotTested);
  EXPECT_THAT(earth.Codes(), ElementsAre("not-finished"));
}

TEST(Judge, IgnoresAResultThatTheSameRunStartedAgain) {
  auto earth = PassedEarth();
  earth.runs.back().steps.emplace_back(host::document::RecordedTakes{{1}});
  EXPECT_EQ(earth.Verdict(), Verdict::kNotTested);
  EXPECT_THAT(earth.Codes(), ElementsAre("not-finished"));
}

TEST(Judge, CountsTheLastResultAlone) {
  auto earth = PassedEarth();
  earth.Begin({1});
  earth.Measure(1, "1.85,0,Ohm", 1850, "mOhm", 2);
  EXPECT_EQ(earth.Verdict(), Verdict::kFailed);
  EXPECT_EQ(earth.Judged(1).run, 2);
  earth.Begin({1});
  earth.Measure(1, "0.1,0,Ohm", 100, "mOhm", 1);
  EXPECT_EQ(earth.Verdict(), Verdict::kPassed);
  EXPECT_EQ(earth.Judged(1).run, 3);
}

struct Change {
  const char* what;
  void (*change)(CaseBuilder&);
  const char* code;
};

class NotCurrent : public testing::TestWithParam<Change> {};

TEST_P(NotCurrent, MakesAResultNotTested) {
  auto earth = PassedEarth();
  GetParam().change(earth);
  EXPECT_EQ(earth.Verdict(), Verdict::kNotTested);
  EXPECT_THAT(earth.Codes(), ElementsAre(GetParam().code));
  EXPECT_EQ(earth.Judged(1).run, 0);
  EXPECT_EQ(earth.Judged(1).value, std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(
    Judge, NotCurrent,
    testing::Values(
        Change{"asset", [](CaseBuilder& b) { b.document.equipment.asset = "PUMP-8"; }, "other-equipment"},
        Change{"serial", [](CaseBuilder& b) { b.document.equipment.serial = "1"; }, "other-equipment"},
        Change{"maker", [](CaseBuilder& b) { b.document.equipment.maker = ""; }, "other-equipment"},
        Change{"model", [](CaseBuilder& b) { b.document.equipment.model = "M"; }, "other-equipment"},
        Change{"leads", [](CaseBuilder& b) { b.Element(1).settings = 4096; }, "other-settings"},
        Change{"test", [](CaseBuilder& b) { b.Element(1).testId = 420; }, "other-test"},
        Change{"status", [](CaseBuilder& b) { b.Element(1).result->status = 2; }, "other-status"},
        Change{"result", [](CaseBuilder& b) { b.Element(1).result.reset(); }, "other-status"},
        Change{"value", [](CaseBuilder& b) { b.Element(1).result->value = 12; }, "other-reading"},
        Change{"noValue", [](CaseBuilder& b) { b.Element(1).result->value.reset(); }, "other-reading"},
        Change{"unit", [](CaseBuilder& b) { b.Element(1).result->unit = "Ohm"; }, "other-reading"},
        Change{"flags", [](CaseBuilder& b) { b.Element(1).result->flags = "O"; }, "other-reading"},
        Change{"measured", [](CaseBuilder& b) { b.Element(1).result->measured = false; }, "other-reading"},
        Change{"reading", [](CaseBuilder& b) { b.Element(1).result->measurementStatus = 2; },
               "other-reading"}),
    [](const auto& row) { return row.param.what; });

TEST(Judge, NamesTheFieldOfTheEquipmentThatChanged) {
  auto earth = PassedEarth();
  earth.document.equipment.serial = "2210";
  const auto reasons = earth.Judged(1).reasons;
  ASSERT_EQ(reasons.size(), 1U);
  EXPECT_THAT(reasons[0].arguments, ElementsAre("1", "serial", "2209", "2210"));
}

TEST(Judge, DoubtsEverythingUpToAChangedRecord) {
  auto earth = PassedEarth();
  earth.runs[0].intact = false;
  EXPECT_EQ(earth.Verdict(), Verdict::kDoubtful);
  EXPECT_THAT(earth.Codes(), ElementsAre("record-changed"));
  // A later run that was changed may have taken the element up.
  earth.runs[0].intact = true;
  earth.Begin({2}).intact = false;
  EXPECT_EQ(earth.Verdict(), Verdict::kDoubtful);
  // So may one that is missing.
  earth.runs[1].intact = true;
  EXPECT_EQ(earth.Verdict(), Verdict::kPassed);
  earth.runs[0].gapAfter = true;
  EXPECT_EQ(earth.Verdict(), Verdict::kDoubtful);
  // What was measured after it counts.
  earth.Begin({1});
  earth.Measure(1, "0.123,0,Ohm", 123, "mOhm", 1);
  EXPECT_EQ(earth.Verdict(), Verdict::kPassed);
}

TEST(Judge, FailsAReadingOfAChangedRecord) {
  auto earth = PassedEarth();
  earth.runs[0].intact = false;
  earth.Element(1).standards[0].limits[0].high = 100;
  EXPECT_EQ(earth.Verdict(), Verdict::kFailed);
  EXPECT_THAT(earth.Codes(), Contains("record-changed"));
}

// --- doubts

TEST(Judge, DoubtsAResultWhoseRecordHoldsADoubt) {
  auto earth = PassedEarth();
  std::get<RecordedTest>(earth.runs[0].steps.back()).doubts = {{"late-reply", {"STST,410,0"}}};
  EXPECT_EQ(earth.Verdict(), Verdict::kDoubtful);
  EXPECT_THAT(earth.Codes(), ElementsAre("late-reply"));
  EXPECT_EQ(earth.Judged().outcome, Outcome::kIncomplete);
}

TEST(Judge, DoubtsATestThatTheCatalogueDoesNotKnow) {
  auto earth = PassedEarth();
  earth.Element(1).fault = "the catalogue has no test 410";
  EXPECT_EQ(earth.Verdict(), Verdict::kDoubtful);
  EXPECT_THAT(earth.Codes(), ElementsAre("unknown-test"));
}

TEST(Judge, DoubtsAServiceCodeBesideAnotherStatus) {
  auto earth = PassedEarth();
  earth.Element(1).result->serviceCode = "F";
  EXPECT_EQ(earth.Verdict(), Verdict::kDoubtful);
  EXPECT_THAT(earth.Codes(), ElementsAre("service-code"));
}

struct Doubtful {
  const char* what;
  std::int32_t testId;
  const char* expectedUnit;
  const char* reply;
  double recorded;
  const char* recordedUnit;
  const char* code;
};

class DoubtfulReading : public testing::TestWithParam<Doubtful> {};

TEST_P(DoubtfulReading, IsDoubtfulWithinItsLimit) {
  const auto& row = GetParam();
  CaseBuilder builder;
  builder.Add(1, row.testId, row.expectedUnit).standards = {CaseBuilder::Limit(row.expectedUnit, {}, 1e9)};
  builder.Begin({1});
  builder.Measure(1, row.reply, row.recorded, row.recordedUnit, 1);
  EXPECT_EQ(builder.Verdict(), Verdict::kDoubtful);
  EXPECT_THAT(builder.Codes(), Contains(row.code));
}

INSTANTIATE_TEST_SUITE_P(
    Judge, DoubtfulReading,
    testing::Values(
        // The plug-in multiplies ohms by a thousand whatever the unit of the test is.
        Doubtful{"ohmsOfInsulation", 1010, "MOhm", "500,0,Ohm", 500000, "MOhm", "arithmetic-differs"},
        Doubtful{"wrongQuantity", 610,
                 "\xC2\xB5"
                 "A",
                 "3,0,V", 3, "V", "unit-of-test"},
        Doubtful{"otherValue", 410, "mOhm", "0.2,0,Ohm", 123, "mOhm", "arithmetic-differs"},
        Doubtful{"otherUnit", 410, "mOhm", "0.123,0,Ohm", 123, "Ohm", "arithmetic-differs"},
        Doubtful{"negative", 610,
                 "\xC2\xB5"
                 "A",
                 "-3,0,\xC2\xB5"
                 "A",
                 -3,
                 "\xC2\xB5"
                 "A",
                 "negative-reading"},
        Doubtful{"noNumber", 410, "mOhm", "abc,0,Ohm", 0, "mOhm", "no-reading"},
        Doubtful{"fewFields", 410, "mOhm", "0.1", 100, "mOhm", "no-reading"}),
    [](const auto& row) { return row.param.what; });

TEST(Judge, DoubtsTwoDifferentReadings) {
  auto earth = PassedEarth();
  std::get<RecordedTest>(earth.runs[0].steps.back()).said.push_back("gres,410,0,1.85,0,Ohm");
  EXPECT_EQ(earth.Verdict(), Verdict::kDoubtful);
  EXPECT_THAT(earth.Codes(), Contains("several-readings"));
}

TEST(Judge, DoubtsAPassWithoutAReply) {
  auto earth = PassedEarth();
  std::get<RecordedTest>(earth.runs[0].steps.back()).said.clear();
  EXPECT_EQ(earth.Verdict(), Verdict::kDoubtful);
  EXPECT_THAT(earth.Codes(), Contains("no-reading"));
}

TEST(Judge, DoubtsAnOverload) {
  auto earth = PassedEarth();
  auto& test = std::get<RecordedTest>(earth.runs[0].steps.back());
  test.said = {"gres,410,0,0.123,1,Ohm"};
  test.recorded->flags = "O";
  earth.Element(1).result->flags = "O";
  EXPECT_EQ(earth.Verdict(), Verdict::kDoubtful);
  EXPECT_THAT(earth.Codes(), Contains("overload"));
  EXPECT_EQ(earth.Judged(1).limits[0].verdict, host::judge::LimitVerdict::kNotComparable);
}

TEST(Judge, FailsAnOverloadThatThePlugInFailed) {
  auto earth = PassedEarth();
  auto& test = std::get<RecordedTest>(earth.runs[0].steps.back());
  test.said = {"gres,410,0,0.123,1,Ohm"};
  test.status = 2;
  test.recorded->flags = "O";
  earth.Element(1).result->flags = "O";
  earth.Element(1).result->status = earth.Element(1).result->measurementStatus = 2;
  earth.Element(1).result->serviceCode = "F";
  EXPECT_EQ(earth.Verdict(), Verdict::kFailed);
  EXPECT_THAT(earth.Codes(), ElementsAre("overload"));
}

// --- test leads

TEST(Judge, TakesTheTestLeadsAway) {
  CaseBuilder earth;
  earth.Add(1, 410, "mOhm").standards = {CaseBuilder::Limit("mOhm", {}, 300)};
  earth.Begin({1}).testers[0].leads = 35;
  earth.Measure(1, "0.123,0,Ohm", 88, "mOhm", 1);
  EXPECT_EQ(earth.Verdict(), Verdict::kPassed);
  EXPECT_EQ(earth.Judged(1).value, 88);
  // Only protective-earth tests are corrected.
  earth.Element(1).testId = 400 + 30;
  std::get<RecordedTest>(earth.runs[0].steps.back()).testId = 430;
  EXPECT_THAT(earth.Codes(), Contains("arithmetic-differs"));
}

TEST(Judge, DoubtsAReadingBelowTheTestLeads) {
  CaseBuilder earth;
  earth.Add(1, 420, "mOhm").standards = {CaseBuilder::Limit("mOhm", {}, 300)};
  earth.Begin({1}).testers[0].leads = 200;
  earth.Measure(1, "0.150,0,Ohm", 0, "mOhm", 1);
  EXPECT_EQ(earth.Verdict(), Verdict::kDoubtful);
  EXPECT_THAT(earth.Codes(), ElementsAre("below-leads"));
  earth.runs[0].testers[0].leads = 170;  // what clips and sockets do to two readings of the same leads
  EXPECT_EQ(earth.Verdict(), Verdict::kPassed);
}

TEST(Judge, DoubtsImpossibleTestLeads) {
  for (const auto leads : {501, -1}) {
    CaseBuilder earth;
    earth.Add(1, 410, "mOhm").standards = {CaseBuilder::Limit("mOhm", {}, 2000)};
    earth.Begin({1}).testers[0].leads = leads;
    earth.Measure(1, "1,0,Ohm", 1000 - leads, "mOhm", 1);
    EXPECT_EQ(earth.Verdict(), Verdict::kDoubtful) << leads;
    EXPECT_THAT(earth.Codes(), ElementsAre("leads-implausible")) << leads;
  }
  CaseBuilder earth;
  earth.Add(1, 410, "mOhm").standards = {CaseBuilder::Limit("mOhm", {}, 2000)};
  earth.Begin({1}).testers[0].leads = 500;
  earth.Measure(1, "1,0,Ohm", 500, "mOhm", 1);
  EXPECT_EQ(earth.Verdict(), Verdict::kPassed);
}

// --- limits in other units and with other keys

TEST(Judge, ComparesInTheUnitOfTheLimit) {
  CaseBuilder leakage;
  leakage
      .Add(1, 610,
           "\xC2\xB5"
           "A")
      .standards = {
      CaseBuilder::Limit("\xC2\xB5"
                         "A",
                         {}, 500)};
  leakage.Begin({1});
  leakage.Measure(1, "0.9,0,mA", 0.9, "mA", 1);  // by number 0.9 is within 500
  EXPECT_EQ(leakage.Verdict(), Verdict::kDoubtful);
  EXPECT_THAT(leakage.Codes(), Contains("judged-differently"));
  EXPECT_EQ(leakage.Judged(1).limits[0].value, 900);
  leakage.Measure(1, "0.3,0,mA", 0.3, "mA", 1);
  EXPECT_EQ(leakage.Verdict(), Verdict::kPassed);
}

TEST(Judge, DoubtsKiloohmsThatPassByTheirNumber) {
  CaseBuilder earth;
  earth.Add(1, 410, "mOhm").standards = {CaseBuilder::Limit("mOhm", {}, 300)};
  earth.Begin({1});
  earth.Measure(1, "0.1,0,kOhm", 0.1, "kOhm", 1);
  EXPECT_EQ(earth.Verdict(), Verdict::kDoubtful);
  EXPECT_THAT(earth.Codes(), ElementsAre("above-limit", "judged-differently"));
}

TEST(Judge, DoubtsALimitWithoutAUnit) {
  auto earth = PassedEarth();
  earth.Element(1).standards[0].limits[0].unit = "";
  EXPECT_EQ(earth.Verdict(), Verdict::kDoubtful);
  EXPECT_THAT(earth.Codes(), ElementsAre("limit-unit"));
}

TEST(Judge, DoubtsALimitThatThePlugInDoesNotLookAt) {
  auto earth = PassedEarth();
  earth.Element(1).standards[0].limits[0].key = "OTHER";
  EXPECT_EQ(earth.Verdict(), Verdict::kDoubtful);
  EXPECT_THAT(earth.Codes(), ElementsAre("limit-key"));
  earth.Element(1).standards[0].limits[0].high = 100;
  EXPECT_EQ(earth.Verdict(), Verdict::kFailed);
}

TEST(Judge, JudgesByEachOfTwoLimitsOfOneStandard) {
  auto earth = PassedEarth();
  earth.Element(1).standards.push_back(CaseBuilder::Limit("mOhm", {}, 100));  // the same name once more
  EXPECT_EQ(earth.Verdict(), Verdict::kFailed);
}

// --- not applicable, skipped, aborted

TEST(Judge, AcceptsNotApplicableFromTheOperator) {
  CaseBuilder earth;
  earth.Add(1, 410, "mOhm").standards = {CaseBuilder::Limit("mOhm", {}, 300)};
  earth.Begin({1});
  earth.Finish(1, 3, RecordedTest::By::kOperator);
  EXPECT_EQ(earth.Verdict(), Verdict::kNotApplicable);
  EXPECT_THAT(earth.Codes(), ElementsAre("set-aside-by-operator"));
  EXPECT_EQ(earth.Judged().outcome, Outcome::kIncomplete) << "nothing was judged";
}

TEST(Judge, DoubtsTheOperatorsWordInAChangedRecord) {
  CaseBuilder earth;
  earth.Add(1, 410, "mOhm");
  earth.Begin({1});
  // It was the tester's before somebody changed it, or that of another element.
  earth.Finish(1, 3, RecordedTest::By::kOperator);
  earth.runs[0].intact = false;
  EXPECT_EQ(earth.Verdict(), Verdict::kDoubtful);
  EXPECT_THAT(earth.Codes(), ElementsAre("record-changed"));

  CaseBuilder group;
  group.Add(1, 400, "").group = true;
  group.Begin({1});
  group.Finish(1, 3, RecordedTest::By::kOperator);
  EXPECT_EQ(group.Verdict(), Verdict::kNotApplicable);
  group.runs[0].intact = false;
  EXPECT_EQ(group.Verdict(), Verdict::kDoubtful);
}

TEST(Judge, DoubtsARefusalWhereLimitsAreSelected) {
  CaseBuilder earth;
  earth.Add(1, 410, "mOhm").standards = {CaseBuilder::Limit("mOhm", {}, 300)};
  earth.Begin({1});
  earth.Finish(1, 3, RecordedTest::By::kTester);
  EXPECT_EQ(earth.Verdict(), Verdict::kDoubtful);
  EXPECT_THAT(earth.Codes(), ElementsAre("refused-with-limits"));
  earth.Element(1).standards.clear();
  EXPECT_EQ(earth.Verdict(), Verdict::kNotApplicable);
  EXPECT_THAT(earth.Codes(), ElementsAre("refused-by-tester"));
}

TEST(Judge, DoubtsARefusalThatHasADoubt) {
  CaseBuilder earth;
  earth.Add(1, 410, "mOhm");
  earth.Begin({1});
  earth.Finish(1, 3, RecordedTest::By::kTester).doubts = {{"refused-now", {}}};
  EXPECT_EQ(earth.Verdict(), Verdict::kDoubtful);
}

TEST(Judge, DistinguishesSkippedFromEndedWithoutAResult) {
  CaseBuilder earth;
  earth.Add(1, 410, "mOhm");
  earth.Begin({1});
  earth.Finish(1, 0, RecordedTest::By::kOperator);
  EXPECT_EQ(earth.Verdict(), Verdict::kNotTested);
  EXPECT_THAT(earth.Codes(), ElementsAre("skipped"));
  earth.Finish(1, 0, RecordedTest::By::kTester);
  EXPECT_THAT(earth.Codes(), ElementsAre("no-result"));
  earth.Finish(1, 4, RecordedTest::By::kOperator);
  EXPECT_EQ(earth.Verdict(), Verdict::kAborted);
}

TEST(Judge, IsIncompleteWithoutAnyElement) {
  CaseBuilder empty;
  EXPECT_EQ(empty.Judged().outcome, Outcome::kIncomplete);
}

TEST(Judge, SaysThatRunsWereSimulated) {
  auto earth = PassedEarth();
  EXPECT_FALSE(earth.Judged().simulated);
  earth.runs[0].simulated = true;
  EXPECT_TRUE(earth.Judged().simulated);
}

}  // namespace
}  // namespace judge_tests

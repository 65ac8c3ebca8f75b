#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/unit/judge/CaseBuilder.h"

namespace judge_tests {
namespace {

using host::document::RecordedTest;
using host::judge::Filter;
using host::judge::Outcome;
using host::judge::Verdict;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr char kMicroampere[] =
    "\xC2\xB5"
    "A";

/// A group (1) of two earth tests (2, 3), each within its limit.
CaseBuilder PassedGroup(Filter filter = Filter::kNoValue, std::optional<double> summary = {}) {
  CaseBuilder builder;
  builder.Add(1, 400, "").filter = filter;
  builder.Add(2, 410, "mOhm", 1).standards = {CaseBuilder::Limit("mOhm", {}, 300)};
  builder.Add(3, 420, "mOhm", 1).standards = {CaseBuilder::Limit("mOhm", {}, 300)};
  builder.Begin({1, 2, 3});
  builder.Measure(2, "0.123,0,Ohm", 123, "mOhm", 1);
  builder.Measure(3, "0.058,0,Ohm", 58, "mOhm", 1);
  builder.Sum(1, summary, 1);
  return builder;
}

TEST(JudgeGroup, PassesWhenItsChildrenDo) {
  auto group = PassedGroup();
  EXPECT_EQ(group.Verdict(), Verdict::kPassed);
  EXPECT_THAT(group.Codes(), IsEmpty());
  EXPECT_EQ(group.Judged().outcome, Outcome::kPassed);
}

TEST(JudgeGroup, TakesTheWorstOfItsChildren) {
  auto group = PassedGroup();
  group.Element(3).standards[0].limits[0].high = 50;
  EXPECT_EQ(group.Verdict(), Verdict::kFailed);
  EXPECT_THAT(group.Codes(), ElementsAre("child"));
  group = PassedGroup();
  group.Element(3).standards.clear();
  EXPECT_EQ(group.Verdict(), Verdict::kNotJudged);
  group.Element(3).recordOnly = true;
  EXPECT_EQ(group.Verdict(), Verdict::kPassed);
  group.Element(2).standards.clear();
  group.Element(2).recordOnly = true;
  EXPECT_EQ(group.Verdict(), Verdict::kRecorded);
}

TEST(JudgeGroup, IsNotTestedWithAChildThatWasNot) {
  auto group = PassedGroup();
  group.Add(4, 410, "mOhm", 1);  // added afterwards
  EXPECT_EQ(group.Verdict(), Verdict::kNotTested);
  EXPECT_THAT(group.Codes(), ElementsAre("child"));
}

TEST(JudgeGroup, SaysWhyItIsNotTestedWithoutTests) {
  CaseBuilder builder;
  builder.Add(1, 400, "");
  builder.Begin({1, 2});
  builder.Sum(1, {}, 1);  // of a test that was removed afterwards
  EXPECT_EQ(builder.Verdict(), Verdict::kNotTested);
  EXPECT_THAT(builder.Codes(), ElementsAre("no-children"));
}

TEST(JudgeGroup, IsOlderThanAChildThatWasRunAgain) {
  auto group = PassedGroup(Filter::kMaximum, 123);
  group.Begin({2});
  group.Measure(2, "1.85,0,Ohm", 1850, "mOhm", 1);
  EXPECT_EQ(group.Verdict(), Verdict::kNotTested);
  EXPECT_THAT(group.Codes(), ElementsAre("older-than-child"));
}

TEST(JudgeGroup, ComparesItsValueWithItsOwnLimit) {
  auto group = PassedGroup(Filter::kMaximum, 123);
  group.Element(1).standards = {CaseBuilder::Limit("mOhm", {}, 150)};
  EXPECT_EQ(group.Verdict(), Verdict::kPassed);
  EXPECT_TRUE(group.Judged(1).judged);
  group.Element(1).standards[0].limits[0].high = 120;  // set after its run
  EXPECT_EQ(group.Verdict(), Verdict::kFailed);
  EXPECT_THAT(group.Codes(), ElementsAre("above-limit"));

  group = PassedGroup(Filter::kMinimum, 58);
  group.Element(1).standards = {CaseBuilder::Limit("mOhm", 60, {})};
  EXPECT_EQ(group.Verdict(), Verdict::kFailed);
  EXPECT_THAT(group.Codes(), ElementsAre("below-limit"));
}

TEST(JudgeGroup, ComparesItsValueInTheUnitOfTheLimit) {
  CaseBuilder group;
  auto& top = group.Add(1, 600, "");
  top.filter = Filter::kMaximum;
  top.standards = {CaseBuilder::Limit(kMicroampere, {}, 500)};
  group.Add(2, 610, kMicroampere, 1).standards = {CaseBuilder::Limit("mA", {}, 5)};
  group.Begin({1, 2});
  group.Measure(2, "0.9,0,mA", 0.9, "mA", 1);
  group.Sum(1, 0.9, 1);
  EXPECT_EQ(group.Verdict(2), Verdict::kPassed);
  EXPECT_EQ(group.Verdict(1), Verdict::kDoubtful);
  EXPECT_THAT(group.Codes(1), Contains("judged-differently"));
}

TEST(JudgeGroup, DoubtsASummaryThatIsNotTheChildrens) {
  auto group = PassedGroup(Filter::kMaximum, 100);
  group.Element(1).standards = {CaseBuilder::Limit("mOhm", {}, 150)};
  EXPECT_EQ(group.Verdict(), Verdict::kDoubtful);
  EXPECT_THAT(group.Codes(), ElementsAre("summary-differs"));
}

TEST(JudgeGroup, DoubtsTheSummaryOfAnotherFilter) {
  auto group = PassedGroup(Filter::kMaximum, 58);  // run with "Minimum value", changed afterwards
  group.Element(1).standards = {CaseBuilder::Limit("mOhm", {}, 150)};
  EXPECT_EQ(group.Verdict(), Verdict::kDoubtful);
}

TEST(JudgeGroup, IsNotJudgedByALimitWithoutAValue) {
  auto group = PassedGroup();
  group.Element(1).standards = {CaseBuilder::Limit("mOhm", {}, 150)};
  EXPECT_EQ(group.Verdict(), Verdict::kNotJudged);
  EXPECT_THAT(group.Codes(), ElementsAre("group-without-value"));
  EXPECT_EQ(group.Judged().outcome, Outcome::kIncomplete);
  EXPECT_THAT(group.Judged(1).FailedStandards(), IsEmpty());
}

TEST(JudgeGroup, DoubtsChildrenThatCannotBeCompared) {
  auto group = PassedGroup(Filter::kMaximum, 123);
  group.Element(1).standards = {CaseBuilder::Limit("mOhm", {}, 150)};
  group.Element(3).expectedUnit = "V";
  auto& test = std::get<RecordedTest>(group.runs[0].steps[2]);
  test.said = {"gres,420,0,58,0,V"};
  test.recorded->unit = group.Element(3).result->unit = "V";
  group.Element(3).standards = {CaseBuilder::Limit("V", {}, 300)};
  EXPECT_EQ(group.Verdict(3), Verdict::kPassed);
  EXPECT_EQ(group.Verdict(1), Verdict::kDoubtful);
  EXPECT_THAT(group.Codes(1), Contains("units-of-children"));
}

TEST(JudgeGroup, FollowsTheOperatorWhoSetItAside) {
  auto group = PassedGroup();
  group.Begin({1, 2, 3});
  for (const auto id : {2, 3, 1}) group.Finish(id, 3, RecordedTest::By::kOperator);
  EXPECT_EQ(group.Verdict(1), Verdict::kNotApplicable);
  EXPECT_EQ(group.Verdict(2), Verdict::kNotApplicable);
}

TEST(JudgeGroup, FailsWhatThePlugInFailedByAnEarlierLimit) {
  auto group = PassedGroup(Filter::kMaximum, 123);
  std::get<RecordedTest>(group.runs[0].steps.back()).status = 2;
  group.Element(1).result->status = group.Element(1).result->measurementStatus = 2;
  group.Element(1).result->serviceCode = "F";
  EXPECT_EQ(group.Verdict(), Verdict::kFailed);
  EXPECT_THAT(group.Codes(), ElementsAre("failed-by-plug-in"));
}

TEST(JudgeGroup, JudgesGroupsInGroups) {
  CaseBuilder nested;
  nested.Add(1, 300, "");
  nested.Add(2, 400, "", 1);
  nested.Add(3, 410, "mOhm", 2).standards = {CaseBuilder::Limit("mOhm", {}, 300)};
  nested.Begin({1, 2, 3});
  nested.Measure(3, "0.123,0,Ohm", 123, "mOhm", 1);
  nested.Sum(2, {}, 1);
  nested.Sum(1, {}, 1);
  EXPECT_EQ(nested.Verdict(1), Verdict::kPassed);
  nested.Element(3).standards[0].limits[0].high = 100;
  EXPECT_EQ(nested.Verdict(2), Verdict::kFailed);
  EXPECT_EQ(nested.Verdict(1), Verdict::kFailed);
  // A grandchild that is run again leaves both groups behind.
  nested.Begin({3});
  nested.Measure(3, "0.05,0,Ohm", 50, "mOhm", 1);
  EXPECT_EQ(nested.Verdict(2), Verdict::kNotTested);
  EXPECT_EQ(nested.Verdict(1), Verdict::kNotTested);
}

}  // namespace
}  // namespace judge_tests

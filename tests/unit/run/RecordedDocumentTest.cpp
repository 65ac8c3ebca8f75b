#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/RecordedDocument.h"

namespace {

using host::judge::Outcome;
using host::judge::Verdict;
using support::RecordedDocument;
using testing::ElementsAre;

Verdict VerdictOf(RecordedDocument& file, std::int32_t element) {
  const auto judged = file.Judged();
  const auto* found = judged.Find(element);
  EXPECT_TRUE(found);
  return found ? found->verdict : Verdict::kNotTested;
}

TEST(RecordedDocument, JudgesWhatTheTesterReads) {
  RecordedDocument file;
  file.Add(410);
  file.Add(420);
  file.Limit(1, "", "300");
  file.Limit(2, "", "300");
  file.Reads(410, "0.123,0,Ohm");
  file.Reads(420, "1.85,0,Ohm");
  EXPECT_EQ(file.Run(), host::run::DocumentRunner::End::kFinished);
  EXPECT_EQ(VerdictOf(file, 1), Verdict::kPassed);
  EXPECT_EQ(VerdictOf(file, 2), Verdict::kFailed);
  ASSERT_EQ(file.Runs().size(), 1U);
  EXPECT_EQ(file.Runs()[0].by, "M. Holm");
  EXPECT_EQ(file.Runs()[0].begun, "2026-11-21T14:03:22+01:00");
}

TEST(RecordedDocument, RunsChosenElementsOfASequence) {
  RecordedDocument file;
  file.Add(400);
  file.Add(410);
  file.RecordOnly(4);
  file.Run({.elements = {4}});
  EXPECT_EQ(VerdictOf(file, 1), Verdict::kNotTested);
  EXPECT_EQ(VerdictOf(file, 4), Verdict::kRecorded);
  EXPECT_THAT(file.Runs().at(0).Elements(), ElementsAre(4));
}

TEST(RecordedDocument, SetsAsideWhatTheOperatorOrTheTesterDoes) {
  RecordedDocument file;
  file.Add(410);
  file.Run({.button = host::plugins::keld::guide::kNotApplicable});
  EXPECT_EQ(VerdictOf(file, 1), Verdict::kNotApplicable);
  file.Run({.button = host::plugins::keld::guide::kSkip});
  EXPECT_EQ(VerdictOf(file, 1), Verdict::kNotTested);
  EXPECT_EQ(file.Run({.button = host::plugins::keld::guide::kAbort}),
            host::run::DocumentRunner::End::kAborted);
  EXPECT_EQ(VerdictOf(file, 1), Verdict::kAborted);
  file.Refuses(410);
  file.Run();
  EXPECT_EQ(VerdictOf(file, 1), Verdict::kNotApplicable);
  EXPECT_EQ(file.Runs().back().steps.size(), 2U);
}

TEST(RecordedDocument, KilledRunHasNoEnd) {
  RecordedDocument file;
  file.Add(410);
  file.Add(420);
  file.RecordOnly(1);
  // At its begin, and after the first test.
  file.Run({.killedAfterSaves = 2});
  EXPECT_EQ(file.Runs().at(0).end, host::document::RunRecord::End::kNone);
  EXPECT_EQ(VerdictOf(file, 1), Verdict::kRecorded);
  EXPECT_EQ(VerdictOf(file, 2), Verdict::kNotTested);
}

TEST(RecordedDocument, KnowsTestersAndTheirLeads) {
  RecordedDocument file;
  file.Add(410);
  file.Answers("IREM", "irem,KELD(IN),S-9,3.10");
  file.Leads("S-9", 35, "2026-11-01T08:00:00+01:00");
  file.Run();
  ASSERT_EQ(file.Runs().at(0).testers.size(), 1U);
  const host::document::RecordedTester expected{"KELD(IN)", "S-9", "3.10", 35, "2026-11-01T08:00:00+01:00"};
  EXPECT_EQ(file.Runs()[0].testers[0], expected);
}

}  // namespace

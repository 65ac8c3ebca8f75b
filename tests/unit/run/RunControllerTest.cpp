#include <gtest/gtest.h>

#include "OrvikTypeLib/HostError.h"
#include "OrvikTypeLib/IResultData.h"
#include "host/judge/ReasonText.h"
#include "tests/unit/run/RunFixture.h"

namespace run {
namespace {

using namespace host::plugins::keld::guide;
using host::document::RunRecord;

class RunControllerTest : public RunFixture {
 protected:
  /// The document is saved, apart from the times that are named, counted from 1.
  void FailSaves(std::set<int> times) {
    parts_.save = [this, times, count = 0]() mutable {
      if (times.contains(++count))
        throw orvik::HostError(orvik::HostError::kPathError, "test", "the disk is full");
      document_->Save();
    };
  }
};

TEST_F(RunControllerTest, ADoubtfulResultStaysDoubtfulUntilItIsMeasuredAgain) {
  AddLimited(410);
  AddLimited(420);
  ReadEverywhere("0.1,1,Ohm");
  // The first guide is opened again and left without a run.
  RunByHand({{host::plugins::keld::guide::kPlay, host::plugins::keld::guide::kNext},
             {host::plugins::keld::guide::kPrevious},
             {host::plugins::keld::guide::kNext},
             {host::plugins::keld::guide::kNext}});
  EXPECT_EQ(Verdict(1), "doubtful: overload");
  EXPECT_EQ(Verdict(2), "not tested: not-finished");

  ReadEverywhere("0.1,0,Ohm");
  Run();
  EXPECT_EQ(Verdict(1), "passed");
  EXPECT_EQ(Verdict(2), "passed");
}

TEST_F(RunControllerTest, AStartedElementNotMeasuredHasNoResult) {
  AddLimited(410);
  Run();
  EXPECT_EQ(Verdict(1), "passed");
  RunByHand({{host::plugins::keld::guide::kNext}});
  EXPECT_EQ(document_->Find(1)->Result()->Status(), 1) << "the plug-in's own result stays";
  EXPECT_EQ(Verdict(1), "not tested: not-finished");
}

TEST_F(RunControllerTest, DoesNotCompareDifferentUnitsByNumber) {
  AddLimited(610);
  Read("610", "0.9,0,mA");  // 900 times a thousandth of the limit's unit
  Run();
  EXPECT_EQ(Judged(1).status, 1) << "the plug-in compares by number";
  EXPECT_EQ(Verdict(1), "doubtful: above-limit, judged-differently");
}

TEST_F(RunControllerTest, ASequenceWithADoubtfulChildIsIncomplete) {
  Add(400);
  Limit(2, "", "300");
  Limit(3, "", "300");
  ReadEverywhere("0.1,1,Ohm");
  Run();
  EXPECT_EQ(Judged(1).status, 1);
  EXPECT_EQ(Verdict(1), "doubtful: child");
  EXPECT_EQ(Outcome(), host::judge::Outcome::kIncomplete);
}

TEST_F(RunControllerTest, SavesAtTheBeginningAfterEachElementAndAtTheEnd) {
  Add(400);
  Texts saved;
  parts_.save = [&] {
    const auto steps = StepsOf(Runs().back());
    saved.push_back(steps.back() + (Runs().back().end == RunRecord::End::kNone ? "" : ", ended"));
  };
  Run();
  EXPECT_EQ(saved, (Texts{"takes 1 2 3", "2 status 1 by tester", "3 status 1 by tester",
                          "1 status 1 by tester",  // finished
                          "1 status 1 by tester",  // its session is closed
                          "1 status 1 by tester, ended"}));
}

TEST_F(RunControllerTest, MeasuresNothingWhenTheBeginningCannotBeSaved) {
  AddLimited(410);
  document_->Save();
  FailSaves({1});
  EXPECT_EQ(Run(), End::kNotSaved);
  EXPECT_EQ(parts_.runner.Reason(), "the disk is full") << "though the end could be saved";
  EXPECT_TRUE(bench_.Wire().All().empty());
  EXPECT_FALSE(document_->Find(1)->Result());
  EXPECT_EQ(bench_.Application().Now().count(), 0) << "no guide was opened";
}

TEST_F(RunControllerTest, ADocumentThatCannotBeSavedEndsTheRun) {
  AddLimited(410);
  AddLimited(420);
  FailSaves({2, 3, 4, 5, 6});
  EXPECT_EQ(Run(), End::kNotSaved);
  EXPECT_EQ(parts_.runner.Reason(), "the disk is full");
  EXPECT_FALSE(document_->Find(2)->Result());
  EXPECT_EQ(StepsOf(OnDisk()->Runs().All().back()), Texts{"takes 1 2"});
  EXPECT_EQ(VerdictIn(*OnDisk(), 1), "not tested: not-finished");
}

// Each save writes the whole document: one that succeeds makes up for those that failed.
TEST_F(RunControllerTest, GoesOnWhenALaterSaveSucceeds) {
  Add(400);
  Limit(2, "", "300");
  Limit(3, "", "300");
  FailSaves({2});  // the first child has finished
  EXPECT_EQ(Run(), End::kFinished);
  EXPECT_EQ(parts_.controller->SaveFailure(), "");
  for (const std::int32_t id : {1, 2, 3}) EXPECT_EQ(VerdictIn(*OnDisk(), id), "passed") << id;
}

TEST_F(RunControllerTest, StartsNothingWhileTheDocumentCannotBeSaved) {
  Add(400);
  FailSaves({2, 3, 4, 5, 6, 7, 8, 9});  // from the first child on
  EXPECT_EQ(Run(), End::kNotSaved);
  EXPECT_EQ(bench_.Wire().Sent(), (Texts{"IREM", "STST,410,0", "GRES,410,0", "STST,210,0", "EREM"}));
}

// The element has no current result once it is to be measured again, and that is on disk before.
TEST_F(RunControllerTest, MeasuresNothingAgainThatIsNotOnRecord) {
  AddLimited(410);
  ReadEverywhere("1.85,0,Ohm");  // fails, so that play measures again
  FailSaves({3, 4});             // each press of play but the first
  RunByHand({{host::plugins::keld::guide::kPlay, host::plugins::keld::guide::kPlay,
              host::plugins::keld::guide::kPlay, host::plugins::keld::guide::kNext}});
  EXPECT_EQ(bench_.Wire().Sent().size(), 5U) << "the first session alone";
  EXPECT_EQ(StepsOf(Runs().back()), (Texts{"takes 1", "1 status 2 by tester", "takes 1"}));
  EXPECT_EQ(Verdict(1), "not tested: not-finished");
}

TEST_F(RunControllerTest, AResultChangedWhileClosingDoesNotCount) {
  AddLimited(410);
  // The tester's last word of the session makes the test "not applicable", passed or failed as it was.
  Answer("STST,210,0", "ERRM,6002");
  Run();
  EXPECT_EQ(Verdict(1), "not tested: other-status");
  EXPECT_EQ(TestOf(OnDisk()->Runs().All().back(), 1).doubts,
            (std::vector<host::document::Reason>{{"changed-after-finish", {"1", "3"}}}));
  EXPECT_EQ(host::judge::ReasonText({"changed-after-finish", {"1", "3"}}),
            "the result was \"passed\" when the test had finished and was changed to \"not applicable\" "
            "afterwards");
}

TEST_F(RunControllerTest, ATestRejectedAtItsResultDoesNotCount) {
  Add(410);
  Answer("GRES,410,0", "ERRM,+6002.0");
  Run();
  EXPECT_EQ(Judged(1).status, 3);
  EXPECT_EQ(Verdict(1), "doubtful: refused-elsewhere");
}

TEST_F(RunControllerTest, ASequenceDoesNotCountWhenATestOfItDoesNot) {
  struct Row {
    std::string child, reply, verdict, ofSequence;
  };
  const Row rows[] = {
      {"410", "ERRM,77", "not tested: no-result", "not tested: child"},
      {"410", "gres,410,0,0.1,1,Ohm", "doubtful: overload", "doubtful: child"},
      {"420", "ERRM,77", "not tested: no-result", "not tested: child"},
      {"420", "gres,420,0,0.1,1,Ohm", "doubtful: overload", "doubtful: child"},
  };
  Add(400);
  Limit(2, "", "300");
  Limit(3, "", "300");
  for (const auto& [child, reply, verdict, ofSequence] : rows) {
    SCOPED_TRACE(child + " " + reply);
    replies_->Clear();
    ReadEverywhere("0.1,0,Ohm");
    Answer("GRES," + child + ",0", reply);
    Run();
    EXPECT_EQ(Verdict(child == "410" ? 2 : 3), verdict);
    EXPECT_EQ(Verdict(child == "410" ? 3 : 2), "passed");
    EXPECT_EQ(Judged(1).status, 1) << "one test that passed makes a sequence pass";
    EXPECT_EQ(Verdict(1), ofSequence);
  }
}

TEST_F(RunControllerTest, RejectsUnknownNavigation) {
  orvik::IRunController& controller = *parts_.controller;
  EXPECT_THROW(controller.NavigationRequest(5), orvik::HostError);
  EXPECT_THROW(controller.NavigationRequest(-1), orvik::HostError);
  EXPECT_THROW(controller.StartQuery(nullptr), orvik::HostError);
  EXPECT_THROW(controller.FinishedNotice(nullptr), orvik::HostError);
}

TEST_F(RunControllerTest, PreviousGoesBackAndStaysAtTheFirst) {
  Add(410);
  Add(420);
  std::vector<std::size_t> places;
  const auto reached = parts_.runner.Reached().Subscribe(
      [&](std::size_t place, std::size_t, const auto&) { places.push_back(place); });
  EXPECT_EQ(RunByHand({{host::plugins::keld::guide::kPrevious},
                       {host::plugins::keld::guide::kPlay, host::plugins::keld::guide::kNext},
                       {host::plugins::keld::guide::kPrevious},
                       {host::plugins::keld::guide::kPlay, host::plugins::keld::guide::kNext},
                       {host::plugins::keld::guide::kPlay, host::plugins::keld::guide::kNext}}),
            End::kFinished);
  EXPECT_EQ(places, (std::vector<std::size_t>{1, 1, 2, 1, 2}));
}

TEST_F(RunControllerTest, SkippedIsNotTestedAndNotApplicableIsDone) {
  AddLimited(410);
  AddLimited(420);
  EXPECT_EQ(RunByHand({{host::plugins::keld::guide::kSkip}, {host::plugins::keld::guide::kNotApplicable}}),
            End::kFinished);
  EXPECT_EQ(Verdict(1), "not tested: skipped");
  EXPECT_EQ(Verdict(2), "not applicable: set-aside-by-operator");
  EXPECT_TRUE(bench_.Wire().Sent().empty());
}

// What the tester said of a test that is then set aside is no longer about its result.
TEST_F(RunControllerTest, SettingAsideForgetsTheDoubtsOfTheMeasurement) {
  AddLimited(410);
  ReadEverywhere("0.1,1,Ohm");
  RunByHand({{host::plugins::keld::guide::kPlay, host::plugins::keld::guide::kNotApplicable}});
  EXPECT_EQ(StepsOf(Runs().back()), (Texts{"takes 1", "1 status 1 by tester", "1 status 3 by operator"}));
  EXPECT_TRUE(TestOf(Runs().back(), 1).doubts.empty());
  EXPECT_EQ(Verdict(1), "not applicable: set-aside-by-operator");
}

// Another test's reading says nothing of one that the operator sets aside.
TEST_F(RunControllerTest, SettingAsideKeepsTheTestBefore) {
  AddLimited(410);
  AddLimited(420);
  host::run::StoreLeads(*bench_.Host().Registry(), "SIM-0001", 290, "2026-11-01T08:00:00+01:00");
  ReadEverywhere("0.1,0,Ohm");  // less than the leads
  RunByHand({{host::plugins::keld::guide::kPlay, host::plugins::keld::guide::kNext},
             {host::plugins::keld::guide::kNotApplicable}});
  EXPECT_EQ(Verdict(1), "doubtful: below-leads");
  const auto& aside = TestOf(Runs().back(), 2);
  EXPECT_TRUE(aside.doubts.empty());
  EXPECT_TRUE(aside.said.empty());
  EXPECT_EQ(aside.tester, 0);
  EXPECT_EQ(Verdict(2), "not applicable: set-aside-by-operator");
}

TEST_F(RunControllerTest, ASilentTesterEndsTheRunAfterItsTimeouts) {
  AddLimited(410);
  AddLimited(420);
  bench_.Line().AnswerBy([](const std::string&) {});
  EXPECT_EQ(Run(), End::kTesterLost);
  EXPECT_EQ(bench_.Wire().Sent(), (Texts{"IREM", "IREM", "IREM"}));
  EXPECT_EQ(bench_.Application().Now(), std::chrono::milliseconds(3 * (3500 + 2000)));
  EXPECT_EQ(Runs().back().end, RunRecord::End::kLost);
}

}  // namespace
}  // namespace run

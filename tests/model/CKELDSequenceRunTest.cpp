#include "platform/IListView.h"
#include "tests/model/HostElements.h"
#include "tests/model/ModelTest.h"

// A sequence is performed: its children on one session, its summary, and what the operator does to it as a
// whole.
namespace keld {

class CKELDSequenceRunTest : public support::ModelTest {
 protected:
  /// Answers each test with its own value, overload flag and unit; tests that are not in the list are
  /// lacking.
  void AnswerValues(const std::vector<std::pair<std::int32_t, std::string>>& values) {
    bench.Line().AnswerBy([this, values](const std::string& command) {
      if (command == "IREM") return bench.Line().Reply("irem,KELD(IN),0815,2.1");
      if (command == "EREM") return bench.Line().Reply("erem");
      if (command == "STST,210,0") return bench.Line().Reply("stst,210,0");
      for (const auto& [id, value] : values) {
        const std::string rest = "," + std::to_string(id) + ",0";
        if (command == "STST" + rest) return bench.Line().Reply("stst" + rest);
        if (command == "GRES" + rest) return bench.Line().Reply("gres" + rest + "," + value);
      }
      bench.Line().Reply("ERRM,6002");
    });
  }
  /// Three tests that answer 5, 12 and 7.
  Element ThreeTests() {
    AnswerValues({{411, "5,0,V"}, {412, "12,0,V"}, {413, "7,0,V"}});
    return MakeSequence({MakeTest(411, 1), MakeTest(412, 2), MakeTest(413, 3)});
  }
  std::vector<std::int32_t> ChildStatus(const Element& sequence) {
    std::vector<std::int32_t> found;
    for (std::int32_t i = 1; i <= Container(sequence)->Count(); ++i)
      found.push_back(Status(Container(sequence)->item(i)));
    return found;
  }
  using Codes = std::vector<std::int32_t>;
};

TEST_F(CKELDSequenceRunTest, AllChildrenRunOnOneSession) {
  const auto sequence = ThreeTests();
  Perform(sequence);
  EXPECT_EQ(bench.Wire().Sent(), (Texts{"IREM", "STST,411,0", "GRES,411,0", "STST,412,0", "GRES,412,0",
                                        "STST,413,0", "GRES,413,0", "STST,210,0", "EREM"}));
  EXPECT_EQ(controller->told,
            (Texts{"start 100", "navigate 0", "start 100", "start 411", "finished 411", "start 412",
                   "finished 412", "start 413", "finished 413", "finished 100", "navigate 0"}));
  EXPECT_EQ(Status(sequence), 1);
  EXPECT_EQ(ChildStatus(sequence), (Codes{1, 1, 1}));
  EXPECT_TRUE(Test(sequence)->Stopped());
}

TEST_F(CKELDSequenceRunTest, NestedSequencesRunOnTheSameSession) {
  AnswerValues({{411, "5,0,V"}, {412, "12,0,V"}});
  const auto inner = MakeSequence({MakeTest(412, 3)}, 2);
  const auto sequence = MakeSequence({MakeTest(411, 1), inner});
  Perform(sequence);
  EXPECT_EQ(bench.Wire().Sent(),
            (Texts{"IREM", "STST,411,0", "GRES,411,0", "STST,412,0", "GRES,412,0", "STST,210,0", "EREM"}));
  EXPECT_EQ(Status(inner), 1);
  EXPECT_EQ(Status(sequence), 1);
}

TEST_F(CKELDSequenceRunTest, TheSummaryValueFollowsTheFilter) {
  const auto sequence = ThreeTests();
  Configuration(sequence).SetValueFilter(3);
  Perform(sequence);
  EXPECT_EQ(Value(sequence), "12");
  const auto summary = sequence->Result()->Measurement(1);
  EXPECT_EQ(summary->Unit(), "");
  EXPECT_EQ(summary->Description(), "");
  EXPECT_EQ(summary->Flags(), "");
  EXPECT_EQ(summary->LimitKey(), "NO LIMIT KEY");
  Configuration(sequence).SetValueFilter(4);
  Perform(sequence);
  EXPECT_EQ(Value(sequence), "5");
  Configuration(sequence).SetValueFilter(2);
  Perform(sequence);
  EXPECT_EQ(Value(sequence), "");
}

TEST_F(CKELDSequenceRunTest, TheSummaryIsJudgedByTheSequencesOwnLimits) {
  const auto sequence = ThreeTests();
  Configuration(sequence).SetValueFilter(3);
  Limit(sequence, "", "10");
  Perform(sequence);
  EXPECT_EQ(ChildStatus(sequence), (Codes{1, 1, 1}));
  EXPECT_EQ(Status(sequence), 2);
  EXPECT_EQ(sequence->Result()->Measurement(1)->Status(), 2);
}

TEST_F(CKELDSequenceRunTest, WithoutAValueTheLimitsAreNotLookedAt) {
  const auto sequence = ThreeTests();
  Limit(sequence, "1000", "");
  for (const std::int32_t filter : {1, 2}) {
    Configuration(sequence).SetValueFilter(filter);
    Perform(sequence);
    EXPECT_EQ(Status(sequence), 1) << filter;
  }
}

TEST_F(CKELDSequenceRunTest, ChildrenWithoutAnyValueLeaveTheSummaryEmptyAndUnjudged) {
  AnswerValues({});
  const auto sequence = MakeSequence({MakeTest(411, 1), MakeTest(412, 2)});
  Limit(sequence, "1000", "");
  for (const std::int32_t filter : {3, 4}) {
    Configuration(sequence).SetValueFilter(filter);
    Perform(sequence);
    EXPECT_EQ(Value(sequence), "") << filter;
    EXPECT_EQ(Status(sequence), 3) << filter;
  }
}

TEST_F(CKELDSequenceRunTest, ASummaryThatCannotBeJudgedIsNotPassed) {
  const auto sequence = ThreeTests();
  Configuration(sequence).SetValueFilter(3);
  // The children are judged, then the standards are gone.
  controller->onTold = [this](const std::string& what) {
    if (what == "finished 413") controller->standards = nullptr;
  };
  Perform(sequence);
  EXPECT_EQ(ChildStatus(sequence), (Codes{1, 1, 1}));
  EXPECT_FALSE(sequence->Result());
}

TEST_F(CKELDSequenceRunTest, AFailedChildFailsASummaryThatCannotBeJudged) {
  const auto sequence = ThreeTests();
  Configuration(sequence).SetValueFilter(3);
  Limit(Container(sequence)->item(2), "", "10");
  controller->onTold = [this](const std::string& what) {
    if (what == "finished 413") controller->standards = nullptr;
  };
  Perform(sequence);
  EXPECT_EQ(ChildStatus(sequence), (Codes{1, 2, 1}));
  ASSERT_EQ(Status(sequence), 2);
  EXPECT_EQ(sequence->Result()->Measurement(1)->Status(), 2);
  EXPECT_EQ(sequence->Result()->ServiceRecord()->Code(), "F");
}

TEST_F(CKELDSequenceRunTest, ASummaryWhoseLimitsCannotBeReadIsNotPassed) {
  const auto onLimits = support::RegisterLimitsWatchedElements(bench.Host());
  const auto sequence = ThreeTests();
  Configuration(sequence).SetValueFilter(3);
  Perform(sequence);
  ASSERT_EQ(Status(sequence), 1);
  // The children are judged, then no limits can be read any more.
  controller->onTold = [&](const std::string& what) {
    if (what == "finished 413") *onLimits = [] { throw orvik::HostError(5, "host", "no"); };
  };
  Perform(sequence);
  EXPECT_EQ(ChildStatus(sequence), (Codes{1, 1, 1}));
  EXPECT_FALSE(sequence->Result());
}

TEST_F(CKELDSequenceRunTest, TheSummaryOfANestedSequenceIsAValueLikeAnyOther) {
  AnswerValues({{411, "5,0,V"}, {412, "12,0,V"}, {413, "70,0,V"}});
  const auto inner = MakeSequence({MakeTest(412, 3), MakeTest(413, 4)}, 2);
  Configuration(inner).SetValueFilter(4);
  const auto sequence = MakeSequence({MakeTest(411, 1), inner});
  Configuration(sequence).SetValueFilter(3);
  Perform(sequence);
  EXPECT_EQ(Value(inner), "12");
  EXPECT_EQ(Value(sequence), "12");
}

TEST_F(CKELDSequenceRunTest, OneFailedChildFailsIt) {
  const auto sequence = ThreeTests();
  Limit(Container(sequence)->item(2), "", "10");
  Perform(sequence);
  EXPECT_EQ(ChildStatus(sequence), (Codes{1, 2, 1}));
  EXPECT_EQ(Status(sequence), 2);
  EXPECT_EQ(sequence->Result()->ServiceRecord()->Code(), "F");
}

TEST_F(CKELDSequenceRunTest, ChildrenThatAreAllNotApplicableMakeItSo) {
  AnswerValues({});
  const auto sequence = MakeSequence({MakeTest(411, 1), MakeTest(412, 2)});
  Perform(sequence);
  EXPECT_EQ(Status(sequence), 3);
}

TEST_F(CKELDSequenceRunTest, WithoutAnyChildResultItHasNone) {
  bench.Line().AnswerBy([](const std::string&) {});
  const auto sequence = MakeSequence({MakeTest(411, 1)});
  Perform(sequence);
  EXPECT_FALSE(sequence->Result());
}

TEST_F(CKELDSequenceRunTest, AnEmptySequenceComputesNoSummary) {
  const auto sequence = MakeSequence({});
  Perform(sequence);
  EXPECT_EQ(Status(sequence), 0);
  EXPECT_EQ(Value(sequence), "none");
  EXPECT_TRUE(bench.Wire().All().empty());
}

TEST_F(CKELDSequenceRunTest, ARefusedStartRemovesTheResult) {
  const auto sequence = MakeSequence({MakeTest(411, 1)});
  int asked = 0;
  controller->mayStart = [&](const auto&) { return ++asked == 1; };
  Perform(sequence);
  EXPECT_FALSE(sequence->Result());
  EXPECT_EQ(controller->Count("finished 100"), 0u);
}

TEST_F(CKELDSequenceRunTest, ResultsAreResetBeforeTheHostIsAsked) {
  const auto sequence = ThreeTests();
  Perform(sequence);
  ASSERT_EQ(ChildStatus(sequence), (Codes{1, 1, 1}));
  std::vector<Codes> seen;
  controller->mayStart = [&](const auto& asked) {
    if (asked == sequence) seen.push_back(ChildStatus(sequence));
    return true;
  };
  Perform(sequence);
  // First for the guide, then for the run.
  EXPECT_EQ(seen, (std::vector<Codes>{{1, 1, 1}, {0, 0, 0}}));
}

TEST_F(CKELDSequenceRunTest, ARefusedChildHasNoResultAndTheNextOneRuns) {
  const auto sequence = ThreeTests();
  controller->mayStart = [](const auto& asked) { return asked->TestID() != 412; };
  Perform(sequence);
  EXPECT_EQ(ChildStatus(sequence), (Codes{1, -1, 1}));
  EXPECT_EQ(controller->Count("finished 412"), 0u);
  EXPECT_EQ(Status(sequence), 1);
}

TEST_F(CKELDSequenceRunTest, AChildThatTheSequenceCannotRunIsPassedOver) {
  const auto foreign =
      orvik::As<orvik::ITestElement>(bench.Host().CreateObject(orvik::HostClasses::kTestElement));
  foreign->Initialize("SOMEBODY ELSE", 9, 900);
  AnswerValues({{411, "5,0,V"}, {412, "12,0,V"}});
  const auto sequence = MakeSequence({MakeTest(411, 1), foreign, MakeTest(412, 2)});
  Perform(sequence);
  EXPECT_EQ(controller->Count("start 900"), 0u);
  EXPECT_EQ(ChildStatus(sequence), (Codes{1, -1, 1}));
  EXPECT_EQ(Status(sequence), 1);
}

TEST_F(CKELDSequenceRunTest, TheResultIsShownThenTheHostIsToldThenTheSessionIsEnded) {
  const auto sequence = ThreeTests();
  int rows = -1;
  Texts sent;
  controller->onTold = [&](const std::string& what) {
    if (what != "finished 100") return;
    const auto view =
        orvik::As<orvik::platform::IContainerSite>(person.Guide()->Find("xrvResultView"))->Panel();
    rows = orvik::As<orvik::platform::IListView>(view->Find("lvwResults"))->RowCount();
    sent = bench.Wire().Sent();
  };
  Perform(sequence);
  EXPECT_EQ(rows, 4);
  EXPECT_EQ(sent.back(), "GRES,413,0");
  EXPECT_EQ(bench.Wire().Sent().back(), "EREM");
  ASSERT_TRUE(sequence->Result()->ServiceRecord());
  EXPECT_EQ(sequence->Result()->ServiceRecord()->Code(), "P");
  EXPECT_EQ(orvik::As<CKELDResultData>(sequence->Result())->Owner(), sequence);
}

TEST_F(CKELDSequenceRunTest, ADrivenSequenceLeavesTheLinkOpen) {
  const auto sequence = ThreeTests();
  const auto link = CKELDInstrument::Create();
  Test(sequence)->InitAutoRun(link, nullptr, controller);
  Test(sequence)->RunTest();
  EXPECT_FALSE(Test(sequence)->Stopped());
  EXPECT_EQ(bench.Wire().Sent().back(), "GRES,413,0");
  EXPECT_EQ(Status(sequence), 1);
  link->DisconnectMTI();
}

TEST_F(CKELDSequenceRunTest, NextAndPreviousLeaveTheResultAsItIs) {
  const auto sequence = ThreeTests();
  person.guide = {support::GuideOperator::kPlay, support::GuideOperator::kPrevious};
  Perform(sequence);
  EXPECT_EQ(controller->told.back(), "navigate 1");
  person.guide = {support::GuideOperator::kNext};
  Perform(sequence);
  EXPECT_EQ(controller->told.back(), "navigate 0");
  EXPECT_EQ(Status(sequence), 1);
  EXPECT_EQ(ChildStatus(sequence), (Codes{1, 1, 1}));
}

TEST_F(CKELDSequenceRunTest, WithoutAPortTheLoopEndsAtTheFirstChild) {
  bench.Unassign();
  const auto sequence = MakeSequence({MakeTest(411, 1), MakeTest(412, 2)});
  Perform(sequence);
  EXPECT_EQ(controller->Count("start 411"), 1u);
  EXPECT_EQ(controller->Count("start 412"), 0u);
  EXPECT_FALSE(sequence->Result());
}

TEST_F(CKELDSequenceRunTest, AStopDropsTheSummaryAndResetsTheChildren) {
  const auto sequence = ThreeTests();
  // The second child is being measured.
  const auto call = bench.Application().CallAt(bench.Application().Now() + std::chrono::seconds(13),
                                               [&] { person.Press(support::GuideOperator::kStop); });
  Perform(sequence);
  bench.Application().Forget(call);
  EXPECT_EQ(controller->Count("start 413"), 0u);
  EXPECT_EQ(ChildStatus(sequence).front(), 0);
  EXPECT_EQ(Status(sequence), 0);
  EXPECT_EQ(Value(sequence), "none");
  EXPECT_EQ(bench.Wire().Sent().back(), "EREM");
  EXPECT_TRUE(Test(sequence)->Stopped());
  EXPECT_EQ(controller->Count("finished 100"), 1u);
}

TEST_F(CKELDSequenceRunTest, AStopReachesTheRunningChildOfANestedSequence) {
  AnswerValues({{411, "5,0,V"}, {412, "12,0,V"}, {413, "7,0,V"}});
  const auto inner = MakeSequence({MakeTest(412, 3), MakeTest(413, 4)}, 2);
  const auto sequence = MakeSequence({MakeTest(411, 1), inner, MakeTest(414, 5)});
  // The nested sequence's first child is being measured.
  const auto call = bench.Application().CallAt(bench.Application().Now() + std::chrono::seconds(13),
                                               [&] { person.Press(support::GuideOperator::kStop); });
  Perform(sequence);
  bench.Application().Forget(call);
  EXPECT_EQ(controller->Count("start 412"), 1u);
  EXPECT_EQ(controller->Count("start 413"), 0u);
  EXPECT_EQ(controller->Count("start 414"), 0u);
  EXPECT_EQ(Status(sequence), 0);
  EXPECT_LE(Status(inner), 0);
  EXPECT_LE(ChildStatus(inner).front(), 0);
  EXPECT_EQ(Value(Container(inner)->item(1)), "none");
  EXPECT_EQ(bench.Wire().Sent().back(), "EREM");
}

TEST_F(CKELDSequenceRunTest, AnAbortLeavesItNotTestedAndTellsNobodyOfALostTester) {
  const auto sequence = ThreeTests();
  const auto call = bench.Application().CallAt(bench.Application().Now() + std::chrono::seconds(13),
                                               [&] { person.Press(support::GuideOperator::kAbort); });
  Perform(sequence);
  bench.Application().Forget(call);
  EXPECT_EQ(person.prompts, (Texts{"Do you want to end this test and discard all previous test results?"}));
  EXPECT_EQ(Status(sequence), 0);
  EXPECT_EQ(Value(sequence), "none");
  EXPECT_EQ(controller->Count("navigate 2"), 1u);
  EXPECT_EQ(bench.Wire().Sent().back(), "EREM");
  for (const std::int32_t status : ChildStatus(sequence)) EXPECT_LE(status, 0);
}

TEST_F(CKELDSequenceRunTest, AbortBeforeTheRunRecordsNotTestedUnlikeASingleTest) {
  const auto sequence = ThreeTests();
  person.guide = {support::GuideOperator::kAbort};
  Perform(sequence);
  EXPECT_EQ(Status(sequence), 0);
  EXPECT_EQ(controller->told.back(), "navigate 2");
}

TEST_F(CKELDSequenceRunTest, AnAbortAnsweredNoLetsItGoOn) {
  const auto sequence = ThreeTests();
  person.abort = false;
  const auto call = bench.Application().CallAt(bench.Application().Now() + std::chrono::seconds(13),
                                               [&] { person.Press(support::GuideOperator::kAbort); });
  Perform(sequence);
  bench.Application().Forget(call);
  EXPECT_EQ(person.prompts.size(), 1u);
  EXPECT_EQ(controller->Count("navigate 2"), 0u);
  EXPECT_EQ(ChildStatus(sequence), (Codes{1, 1, 1}));
  EXPECT_EQ(Status(sequence), 1);
}

TEST_F(CKELDSequenceRunTest, AnAbortAfterTheRunRecordsNotTestedWithoutAServiceRecord) {
  const auto sequence = ThreeTests();
  person.guide = {support::GuideOperator::kPlay, support::GuideOperator::kAbort};
  Perform(sequence);
  EXPECT_EQ(Status(sequence), 0);
  EXPECT_FALSE(sequence->Result()->ServiceRecord());
  EXPECT_EQ(controller->told.back(), "navigate 2");
}

TEST_F(CKELDSequenceRunTest, NotApplicableGoesToEveryChild) {
  const auto inner = MakeSequence({MakeTest(412, 3)}, 2);
  const auto sequence = MakeSequence({MakeTest(411, 1), inner});
  person.guide = {support::GuideOperator::kNotApplicable};
  Perform(sequence);
  EXPECT_EQ(Status(sequence), 3);
  EXPECT_EQ(ChildStatus(sequence), (Codes{3, 3}));
  EXPECT_EQ(ChildStatus(inner), (Codes{3}));
  // The children meet empty objects: one notice and one request, the sequence's own.
  EXPECT_EQ(controller->told, (Texts{"start 100", "navigate 0", "finished 100", "navigate 4"}));
}

TEST_F(CKELDSequenceRunTest, SkipTakesEveryResultAway) {
  const auto sequence = ThreeTests();
  person.guide = {support::GuideOperator::kPlay, support::GuideOperator::kSkip};
  Perform(sequence);
  EXPECT_FALSE(sequence->Result());
  EXPECT_EQ(ChildStatus(sequence), (Codes{-1, -1, -1}));
  EXPECT_EQ(controller->told.back(), "navigate 3");
}

TEST_F(CKELDSequenceRunTest, AutoRunObjectsAreLetGo) {
  const auto sequence = MakeSequence({});
  Test(sequence)->InitAutoRun(CKELDInstrument::Create(), nullptr, controller);
  EXPECT_FALSE(Test(sequence)->Stopped());
  Test(sequence)->ResetAutoRun();
  EXPECT_TRUE(Test(sequence)->Stopped());
}

TEST_F(CKELDSequenceRunTest, ARunLeavesNothingBehind) {
  std::weak_ptr<orvik::ITestElement> gone;
  {
    const auto sequence = ThreeTests();
    gone = sequence;
    Perform(sequence);
  }
  EXPECT_TRUE(gone.expired());
  EXPECT_TRUE(bench.Application().Forms().empty());
}

}  // namespace keld

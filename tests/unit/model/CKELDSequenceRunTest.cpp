#include "model/CKELDSequence.h"
#include "tests/unit/model/HostElements.h"
#include "tests/unit/model/ModelTest.h"

// How a sequence runs its children on one session, and its summary.
namespace keld {

class CKELDSequenceRunTest : public support::ModelTest {
 protected:
  CKELDSequenceRunTest() { AnswerTests({{411, "5,0,V"}, {412, "12,0,V"}, {413, "7,0,V"}}, "ERRM,6002"); }

  Element Child(std::int32_t index) { return Container(sequence)->item(index); }
  /// The states of a run with that filter.
  Texts Run(std::int32_t filter) {
    Configuration(sequence).SetValueFilter(filter);
    Perform(sequence);
    return States(sequence);
  }
  /// Runs `step` after the last child has finished, before the summary.
  void AfterTheChildren(std::function<void()> step) {
    controller->onTold = [step](const std::string& what) {
      if (what == "finished 413") step();
    };
  }
  /// Replaces the three children by these.
  void Hold(const std::vector<Element>& children) { sequence = MakeSequence(children); }

  /// Three tests that measure 5, 12 and 7.
  Element sequence = MakeSequence({MakeTest(411, 1), MakeTest(412, 2), MakeTest(413, 3)});
};

// --- children ---

TEST_F(CKELDSequenceRunTest, RunsNestedSequencesOnTheSameSession) {
  Hold({MakeTest(411, 1), MakeSequence({MakeTest(412, 3)}, 2)});
  Perform(sequence);
  EXPECT_EQ(bench.Wire().Sent(),
            (Texts{"IREM", "STST,411,0", "GRES,411,0", "STST,412,0", "GRES,412,0", "STST,210,0", "EREM"}));
  EXPECT_EQ(States(sequence), (Texts{"1  P", "1 5 P", "1  P", "1 12 P"}));
}

TEST_F(CKELDSequenceRunTest, ContinuesAfterARefusedChild) {
  controller->mayStart = [](const auto& asked) { return asked->TestID() != 412; };
  EXPECT_EQ(Run(1), (Texts{"1  P", "1 5 P", "-1 none", "1 7 P"}));
  EXPECT_EQ(controller->Count("finished 412"), 0u);
}

TEST_F(CKELDSequenceRunTest, SkipsAChildOfAnotherPlugIn) {
  const auto foreign =
      orvik::As<orvik::ITestElement>(bench.Host().CreateObject(orvik::HostClasses::kTestElement));
  foreign->Initialize("SOMEBODY ELSE", 9, 900);
  Hold({MakeTest(411, 1), foreign, MakeTest(412, 2)});
  EXPECT_EQ(Run(1), (Texts{"1  P", "1 5 P", "-1 none", "1 12 P"}));
  EXPECT_EQ(controller->Count("start 900"), 0u);
}

TEST_F(CKELDSequenceRunTest, NotifiesTheHostOnceForAllChildren) {
  Hold({MakeTest(411, 1), MakeSequence({MakeTest(412, 3)}, 2)});
  person.guide = {support::GuideOperator::kNotApplicable};
  Perform(sequence);
  EXPECT_EQ(States(sequence), Texts(4, "3 none NA"));
  // The children have no controller: one notice and one request, the sequence's own.
  EXPECT_EQ(controller->told, (Texts{"start 100", "navigate 0", "finished 100", "navigate 4"}));
}

// --- stop and abort, while the second child measures ---

TEST_F(CKELDSequenceRunTest, StopsTheRunningChildAndDropsTheSummary) {
  Perform(sequence, support::GuideOperator::kStop, std::chrono::seconds(13));
  EXPECT_EQ(controller->Count("start 413"), 0u);
  EXPECT_EQ(States(sequence), (Texts{"0 none", "0 none", "0 none", "-1 none"}));
  EXPECT_EQ(bench.Wire().Sent().back(), "EREM");
  EXPECT_EQ(controller->Count("finished 100"), 1u);
}

TEST_F(CKELDSequenceRunTest, StopsTheRunningChildOfANestedSequence) {
  Hold({MakeTest(411, 1), MakeSequence({MakeTest(412, 3), MakeTest(413, 4)}, 2), MakeTest(414, 5)});
  Perform(sequence, support::GuideOperator::kStop, std::chrono::seconds(13));
  EXPECT_EQ(controller->Count("start 412"), 1u);
  EXPECT_EQ(controller->Count("start 413"), 0u);
  EXPECT_EQ(controller->Count("start 414"), 0u);
  EXPECT_EQ(State(sequence), "0 none");
  for (const auto& state : States(sequence)) EXPECT_TRUE(state == "0 none" || state == "-1 none") << state;
  EXPECT_EQ(bench.Wire().Sent().back(), "EREM");
}

TEST_F(CKELDSequenceRunTest, AbortsWithoutAMessageAboutALostTester) {
  Perform(sequence, support::GuideOperator::kAbort, std::chrono::seconds(13));
  EXPECT_EQ(person.prompts, Texts{support::kEndQuestion});
  EXPECT_EQ(States(sequence), (Texts{"0 none", "0 none", "-1 none", "-1 none"}));
  EXPECT_EQ(controller->Count("navigate 2"), 1u);
  EXPECT_EQ(bench.Wire().Sent().back(), "EREM");
}

TEST_F(CKELDSequenceRunTest, ContinuesTheRunWhenAbortIsAnsweredNo) {
  person.abort = false;
  Perform(sequence, support::GuideOperator::kAbort, std::chrono::seconds(13));
  EXPECT_EQ(person.prompts.size(), 1u);
  EXPECT_EQ(controller->Count("navigate 2"), 0u);
  EXPECT_EQ(States(sequence), (Texts{"1  P", "1 5 P", "1 12 P", "1 7 P"}));
}

// --- summary ---

TEST_F(CKELDSequenceRunTest, SummarisesByItsFilter) {
  for (const auto& [filter, value] : {std::pair{1, ""}, {2, ""}, {3, "12"}, {4, "5"}}) {
    EXPECT_EQ(Run(filter).front(), std::string("1 ") + value + " P") << filter;
    ASSERT_EQ(sequence->Result()->MeasurementCount(), 1) << filter;
    const auto summary = sequence->Result()->Measurement(1);
    EXPECT_EQ(summary->Status(), 1) << filter;
    EXPECT_EQ(summary->Unit(), "");
    EXPECT_EQ(summary->Description(), "");
    EXPECT_EQ(summary->Flags(), "");
    EXPECT_EQ(summary->LimitKey(), "NO LIMIT KEY");
  }
}

TEST_F(CKELDSequenceRunTest, SummarisesANestedSummaryLikeAnyValue) {
  AnswerTests({{411, "5,0,V"}, {412, "12,0,V"}, {413, "70,0,V"}}, "ERRM,6002");
  const auto inner = MakeSequence({MakeTest(412, 3), MakeTest(413, 4)}, 2);
  Configuration(inner).SetValueFilter(4);
  Hold({MakeTest(411, 1), inner});
  EXPECT_EQ(Run(3), (Texts{"1 12 P", "1 5 P", "1 12 P", "1 12 P", "1 70 P"}));
}

TEST_F(CKELDSequenceRunTest, JudgesTheSummaryByItsOwnLimits) {
  Limit(sequence, "", "10");
  EXPECT_EQ(Run(3), (Texts{"2 12 F", "1 5 P", "1 12 P", "1 7 P"}));
  EXPECT_EQ(sequence->Result()->Measurement(1)->Status(), 2);
}

TEST_F(CKELDSequenceRunTest, IgnoresItsLimitsWithoutAValue) {
  Limit(sequence, "1000", "");
  for (const std::int32_t filter : {1, 2}) EXPECT_EQ(Run(filter).front(), "1  P") << filter;
  Hold({MakeTest(421, 1), MakeTest(422, 2)});  // not supported
  Limit(sequence, "1000", "");
  for (const std::int32_t filter : {1, 3, 4}) EXPECT_EQ(Run(filter).front(), "3  NA") << filter;
}

TEST_F(CKELDSequenceRunTest, FailsWithAFailedChild) {
  Limit(Child(2), "", "10");
  EXPECT_EQ(Run(1), (Texts{"2  F", "1 5 P", "2 12 F", "1 7 P"}));
}

TEST_F(CKELDSequenceRunTest, NeverPassesIfTheSummaryCannotBeJudged) {
  const auto watch = support::RegisterWatchedElements(bench.Host());
  Hold({MakeTest(411, 1), MakeTest(412, 2), MakeTest(413, 3)});
  const auto standards = controller->standards;
  ASSERT_EQ(Run(3).front(), "1 12 P");
  AfterTheChildren([&] { controller->standards = nullptr; });
  EXPECT_EQ(Run(3), (Texts{"-1 none", "1 5 P", "1 12 P", "1 7 P"}));
  controller->standards = standards;
  AfterTheChildren([&] { watch->onLimits = support::RaiseHostError; });
  EXPECT_EQ(Run(3), (Texts{"-1 none", "1 5 P", "1 12 P", "1 7 P"}));
}

TEST_F(CKELDSequenceRunTest, FailsWithAFailedChildIfNotJudged) {
  Limit(Child(2), "", "10");
  AfterTheChildren([&] { controller->standards = nullptr; });
  EXPECT_EQ(Run(3), (Texts{"2 12 F", "1 5 P", "2 12 F", "1 7 P"}));
  EXPECT_EQ(sequence->Result()->Measurement(1)->Status(), 2);
}

TEST_F(CKELDSequenceRunTest, HasNoResultIfItsChildrenHaveNone) {
  AnswerNothing();
  Hold({MakeTest(411, 1)});
  Perform(sequence);
  EXPECT_FALSE(sequence->Result());
}

TEST_F(CKELDSequenceRunTest, HasNoSummaryWithoutChildren) {
  Hold({});
  EXPECT_EQ(Run(1), Texts{"0 none"});
  EXPECT_TRUE(bench.Wire().All().empty());
}

}  // namespace keld

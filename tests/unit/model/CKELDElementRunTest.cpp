#include <ostream>

#include "host/serial/PortManager.h"
#include "model/CKELDElement.h"
#include "tests/unit/model/ModelTest.h"

// The frame of a run, which single tests and sequences share: the questions to the host, the guide, the order
// of the steps, and each way to end.
namespace keld {

using support::GuideOperator;

struct ElementKind {
  const char* name;
  bool sequence;
  std::string id;                        ///< its test identifier
  std::vector<std::string> measuring;    ///< the commands that measure
  std::vector<std::string> children;     ///< the host's notices about children
  std::vector<std::string> passed;       ///< the states after a run: its own, then its children's
  std::vector<std::string> stopped;      ///< after a stop in the first measurement
  std::vector<std::string> aborted;      ///< after an abort in the first measurement
  std::vector<std::string> abortedLate;  ///< after an abort at the end of the run
  std::vector<std::string> notRun;       ///< after a run without a tester
  int rows;                              ///< shown in the guide after a run

  friend std::ostream& operator<<(std::ostream& out, const ElementKind& kind) { return out << kind.name; }
};

class CKELDElementRunTest : public support::DrivenTest, public testing::WithParamInterface<ElementKind> {
 protected:
  CKELDElementRunTest() { AnswerResult("5,0,V"); }

  static Texts Joined(std::initializer_list<Texts> parts) {
    Texts all;
    for (const auto& part : parts) all.insert(all.end(), part.begin(), part.end());
    return all;
  }
  static Texts All(const std::string& state) { return Texts(GetParam().passed.size(), state); }
  /// Records "finished visible", "navigate hidden", ...: the guide at each notice.
  void WatchGuide(Texts& seen) {
    controller->onTold = [&](const std::string& what) {
      if (person.Guide())
        seen.push_back(what.substr(0, what.find(' ')) + (person.Guide()->Visible() ? " visible" : " hidden"));
    };
  }

  const std::string start = "start " + GetParam().id;
  const std::string finished = "finished " + GetParam().id;
  Element element = GetParam().sequence ? MakeSequence({MakeTest(411, 1), MakeTest(412, 2)}) : MakeTest(415);
};

TEST_P(CKELDElementRunTest, RunsOnOneSession) {
  Perform(element);
  EXPECT_EQ(bench.Wire().Sent(), Joined({{"IREM"}, GetParam().measuring, {"STST,210,0", "EREM"}}));
  EXPECT_EQ(controller->told,
            Joined({{start, "navigate 0", start}, GetParam().children, {finished, "navigate 0"}}));
  EXPECT_EQ(States(element), GetParam().passed);
  EXPECT_TRUE(Test(element)->Stopped());
  EXPECT_EQ(orvik::As<results::CKELDResultData>(element->Result())->Owner(), element);
}

TEST_P(CKELDElementRunTest, CreatesItsResultBeforeTheHostIsAsked) {
  Element owner;
  controller->mayStart = [&](const auto& asked) {
    if (const auto created = orvik::As<results::CKELDResultData>(asked->Result())) owner = created->Owner();
    return false;
  };
  Perform(element);
  EXPECT_EQ(owner, element);
  EXPECT_EQ(person.guidesShown, 0);
  EXPECT_EQ(controller->told, Texts{start});
}

TEST_P(CKELDElementRunTest, RemovesItsResultIfTheRunIsRefused) {
  int asked = 0;
  controller->mayStart = [&](const auto&) { return ++asked == 1; };
  Perform(element);
  EXPECT_FALSE(element->Result());
  EXPECT_TRUE(bench.Wire().All().empty());
  EXPECT_EQ(controller->Count(finished), 0u);
}

TEST_P(CKELDElementRunTest, ResetsItsResultsBeforeTheHostIsAsked) {
  Perform(element);
  std::vector<Texts> states;
  controller->mayStart = [&](const auto& asked) {
    if (asked == element) states.push_back(States(element));
    return true;
  };
  Perform(element);
  EXPECT_EQ(states, (std::vector<Texts>{GetParam().passed, All("0 none")})) << "for the guide, for the run";
}

TEST_P(CKELDElementRunTest, AsksForTheNextTestBeforeTheGuideOpens) {
  int guides = -1;
  controller->onTold = [&](const std::string& what) {
    if (what == "navigate 0" && guides < 0) guides = person.guidesShown;
  };
  Perform(element);
  EXPECT_EQ(guides, 0);
  EXPECT_EQ(person.guidesShown, 1);
}

TEST_P(CKELDElementRunTest, ShowsItsResultThenNotifiesThenDisconnects) {
  Texts sent, states;
  int rows = -1;
  controller->onTold = [&](const std::string& what) {
    if (what != finished) return;
    sent = bench.Wire().Sent();
    states = States(element);
    rows = Rows(*person.Guide());
  };
  Perform(element);
  EXPECT_EQ(sent, Joined({{"IREM"}, GetParam().measuring}));
  EXPECT_EQ(states, GetParam().passed);
  EXPECT_EQ(rows, GetParam().rows);
  EXPECT_EQ(bench.Wire().Sent().back(), "EREM");
}

TEST_P(CKELDElementRunTest, LeavesTheGuideByEachButton) {
  struct Row {
    int command;
    std::string request;
    Texts states;
    bool notifies;
  };
  for (const Row& row : {Row{GuideOperator::kNext, "navigate 0", GetParam().passed, false},
                         Row{GuideOperator::kPrevious, "navigate 1", GetParam().passed, false},
                         Row{GuideOperator::kSkip, "navigate 3", All("-1 none"), true},
                         Row{GuideOperator::kNotApplicable, "navigate 4", All("3 none NA"), true},
                         Row{GuideOperator::kAbort, "navigate 2", GetParam().abortedLate, false}}) {
    person.guide = {GuideOperator::kPlay};
    Perform(element);
    ASSERT_EQ(States(element), GetParam().passed) << row.command;
    controller->told.clear();
    Texts seen, atNotice;
    WatchGuide(seen);
    controller->onTold = [&, watch = controller->onTold](const std::string& what) {
      watch(what);
      if (what == finished) atNotice = States(element);
    };
    person.guide = {row.command};
    Perform(element);
    controller->onTold = nullptr;
    const Texts notice = row.notifies ? Texts{finished} : Texts{};
    EXPECT_EQ(controller->told, Joined({{start, "navigate 0"}, notice, {row.request}})) << row.command;
    EXPECT_EQ(seen, row.notifies ? (Texts{"finished visible", "navigate hidden"}) : Texts{"navigate hidden"});
    EXPECT_EQ(States(element), row.states) << row.command;
    EXPECT_EQ(atNotice, row.notifies ? row.states : Texts{}) << row.command;
  }
  EXPECT_EQ(person.prompts, Texts{support::kEndQuestion});
}

TEST_P(CKELDElementRunTest, StopsOrAbortsAndThenRunsAgain) {
  for (const int command : {GuideOperator::kStop, GuideOperator::kAbort}) {
    const bool abort = command == GuideOperator::kAbort;
    controller->told.clear();
    bench.Wire().Clear();
    Texts sent, states;
    bool visible = true;
    controller->onTold = [&](const std::string& what) {
      if (what != "navigate 2") return;
      sent = bench.Wire().Sent();
      states = States(element);
      visible = person.Guide()->Visible();
    };
    Perform(element, command, std::chrono::seconds(5));
    const Texts expected = abort ? Texts{} : Texts{GetParam().measuring.front()};
    EXPECT_EQ(bench.Wire().Sent(), Joined({{"IREM"}, expected, {"STST,210,0", "EREM"}})) << command;
    EXPECT_EQ(controller->Count(finished), 1u) << command;
    EXPECT_EQ(controller->Count("navigate 2"), abort ? 1u : 0u);
    EXPECT_TRUE(Test(element)->Stopped()) << command;
    EXPECT_EQ(States(element), abort ? GetParam().aborted : GetParam().stopped);
    if (abort) {
      EXPECT_EQ(sent, bench.Wire().Sent()) << "the session ends before the request";
      EXPECT_EQ(states.front(), GetParam().aborted.front());
      EXPECT_FALSE(visible);
    }
    Perform(element);
    EXPECT_EQ(States(element), GetParam().passed) << command;
    element = element->Clone();
    Base(element).SetResult(nullptr);
    for (std::int32_t i = 1; GetParam().sequence && i <= 2; ++i)
      Base(Container(element)->item(i)).SetResult(nullptr);
  }
  EXPECT_EQ(person.prompts, Texts{support::kEndQuestion});
}

TEST_P(CKELDElementRunTest, ContinuesWhenAbortIsAnsweredNo) {
  person.abort = false;
  person.guide = {GuideOperator::kPlay, GuideOperator::kAbort};
  Perform(element);
  EXPECT_EQ(person.prompts.size(), 1u);
  EXPECT_EQ(States(element), GetParam().passed);
  EXPECT_EQ(controller->Count("navigate 2"), 0u);
  EXPECT_EQ(controller->told.back(), "navigate 0");
}

TEST_P(CKELDElementRunTest, DoesNotReuseAnEarlierYes) {
  person.guide = {GuideOperator::kAbort};
  Perform(element);
  ASSERT_EQ(controller->told.back(), "navigate 2");
  // The prompt unloads without an answer; closing it would be one.
  const auto unloadPrompt = bench.Application().FormShown().Subscribe([](const auto& form) {
    if (form->Name() == "FYesNoPrompt") form->Unload();
  });
  controller->told.clear();
  Perform(element);
  EXPECT_EQ(person.prompts.size(), 2u);
  EXPECT_EQ(controller->Count("navigate 2"), 0u);
}

TEST_P(CKELDElementRunTest, RecordsAnAbortAfterTheSessionHasEnded) {
  Test(element)->InitAutoRun(link, nullptr, controller);
  Test(element)->RunTest();
  Texts states;
  const auto listening = bench.Ports().TheWire()->Subscribe([&](const host::serial::WireRecord& record) {
    if (record.kind == host::serial::WireRecord::Kind::kClosed) states = States(element);
  });
  Test(element)->AbortTest();
  EXPECT_EQ(bench.Wire().Sent().back(), "EREM");
  EXPECT_EQ(states, GetParam().passed);
  EXPECT_EQ(States(element), GetParam().abortedLate);
}

TEST_P(CKELDElementRunTest, StopsWhenStoppedWhileTheHostIsAsked) {
  int asked = 0;
  controller->mayStart = [&](const auto& iteElement) {
    if (iteElement == element && ++asked == 2) Test(element)->StopTest();
    return true;
  };
  Perform(element);
  EXPECT_EQ(controller->Count("start 412"), 0u);
  EXPECT_EQ(State(element), "0 none");
  EXPECT_TRUE(Test(element)->Stopped());
}

TEST_P(CKELDElementRunTest, LeavesTheLinkOpenWhenDriven) {
  Test(element)->InitAutoRun(link, nullptr, controller);
  Test(element)->StopTest();
  Test(element)->RunTest();
  EXPECT_EQ(States(element), GetParam().passed) << "the earlier stop is cleared";
  EXPECT_FALSE(Test(element)->Stopped());
  EXPECT_EQ(bench.Wire().Sent(), Joined({{"IREM"}, GetParam().measuring}));
  Test(element)->ResetAutoRun();
  EXPECT_TRUE(Test(element)->Stopped());
  link->DisconnectMTI();
}

TEST_P(CKELDElementRunTest, ReleasesGuideAndControllerOnReset) {
  Drive(element);
  Test(element)->ResetAutoRun();
  const std::weak_ptr<ui::FTestGuide> released = std::exchange(guide, nullptr);
  EXPECT_TRUE(released.expired());
  Test(element)->NextTest();
  EXPECT_TRUE(controller->told.empty());
}

TEST_P(CKELDElementRunTest, EndsWithoutAMessageIfThereIsNoPort) {
  bench.Unassign();
  Perform(element);
  EXPECT_TRUE(person.prompts.empty());
  EXPECT_TRUE(Test(element)->Stopped());
  EXPECT_EQ(States(element), GetParam().notRun);
  EXPECT_EQ(controller->Count(finished), 1u);
  EXPECT_EQ(controller->Count("start 412"), 0u);
}

TEST_P(CKELDElementRunTest, DoesNotStartWithoutAnAnswer) {
  controller->mayStart = [](const auto&) -> bool { throw orvik::HostError(5, "test", "broken"); };
  Perform(element);
  Test(element)->RunTest();
  EXPECT_FALSE(element->Result());
  element->Perform(nullptr);
  EXPECT_EQ(person.guidesShown, 0);
  EXPECT_TRUE(bench.Wire().All().empty());
}

TEST_P(CKELDElementRunTest, LeavesNothingBehind) {
  Perform(element);
  const std::weak_ptr<orvik::ITestElement> watched = std::exchange(element, nullptr);
  EXPECT_TRUE(watched.expired());
  link.reset();
  guide.reset();
  EXPECT_TRUE(bench.Application().Forms().empty());
}

INSTANTIATE_TEST_SUITE_P(
    Both, CKELDElementRunTest,
    testing::Values(ElementKind{.name = "SingleTest",
                                .sequence = false,
                                .id = "415",
                                .measuring = {"STST,415,0", "GRES,415,0"},
                                .children = {},
                                .passed = {"1 5 P"},
                                .stopped = {"0 none"},
                                .aborted = {"4 none"},
                                .abortedLate = {"4 5"},
                                .notRun = {"0 none"},
                                .rows = 1},
                    ElementKind{.name = "Sequence",
                                .sequence = true,
                                .id = "100",
                                .measuring = {"STST,411,0", "GRES,411,0", "STST,412,0", "GRES,412,0"},
                                .children = {"start 411", "finished 411", "start 412", "finished 412"},
                                .passed = {"1  P", "1 5 P", "1 5 P"},
                                .stopped = {"0 none", "-1 none", "-1 none"},
                                .aborted = {"0 none", "-1 none", "-1 none"},
                                .abortedLate = {"0 ", "1 5 P", "1 5 P"},
                                .notRun = {"-1 none", "-1 none", "-1 none"},
                                .rows = 3}),
    [](const auto& tested) { return tested.param.name; });

}  // namespace keld

#include "model/CKELDTestElement.h"
#include "platform/IForm.h"
#include "platform/IListView.h"
#include "tests/model/HostElements.h"
#include "tests/model/ModelTest.h"
#include "ui/FPretestPrompt.h"
#include "ui/FTestGuide.h"

// What a single test has done, and what not yet, at the moment in which somebody looks; and a second run.
namespace keld {

class CKELDTestElementOrderTest : public support::ModelTest {
 protected:
  /// Status, value and service-record code.
  static std::string State(const Element& element) {
    const auto record = element->Result() ? element->Result()->ServiceRecord() : nullptr;
    return std::to_string(Status(element)) + " " + Value(element) + (record ? " " + record->Code() : "");
  }
  /// An element that is driven from outside.
  Element Driven() {
    const auto element = MakeTest(415);
    guide->Initialize(element, controller);
    guide->Form()->Show();
    Test(element)->InitAutoRun(link, guide, controller);
    return element;
  }
  void Measure(std::int16_t testNo = 415) {
    link->SetMtiData(2, std::string("5"));
    link->SetMtiData(4, std::string("V"));
    Raise(5, testNo);
  }
  void Raise(std::int32_t status, std::int16_t testNo = 415) { link->ResultReceived().Raise(status, testNo); }
  int Rows() const {
    const auto view = orvik::As<orvik::platform::IContainerSite>(guide->Form()->Find("xrvResultView"));
    return orvik::As<orvik::platform::IListView>(view->Panel()->Find("lvwResults"))->RowCount();
  }

  std::shared_ptr<CKELDInstrument> link = CKELDInstrument::Create();
  std::shared_ptr<FTestGuide> guide = FTestGuide::Create();
};

TEST_F(CKELDTestElementOrderTest, NotApplicableIsRecordedAfterTheMessage) {
  const auto element = Driven();
  Measure();
  std::string before;
  person.onAnswer = [&](const std::string&) { before = State(element); };
  Raise(6002);
  EXPECT_EQ(before, "1 5 P");
  EXPECT_EQ(State(element), "3 none NA");
}

TEST_F(CKELDTestElementOrderTest, MessagesCarryTheKeyOfTheirPicture) {
  const auto element = orvik::As<CKELDTestElement>(Driven());
  Texts keys;
  person.onAnswer = [&](const std::string&) { keys.push_back(element->FailureMessage()->Tag()); };
  Raise(7);
  Raise(6002);
  EXPECT_EQ(keys, (Texts{"CommsError", "CommsError"}));
  EXPECT_FALSE(element->FailureMessage());
}

TEST_F(CKELDTestElementOrderTest, AbortedIsRecordedAfterTheSessionHasEnded) {
  // The test that ends the session is one that this tester lacks: not applicable, until the abort is
  // recorded.
  bench.Line().AnswerBy([this](const std::string& command) {
    bench.Line().Reply(command == "IREM"         ? "irem,KELD(IN),0815,2.1"
                       : command == "STST,210,0" ? "ERRM,6002"
                       : command == "EREM"       ? "erem"
                                                 : "stst,415,0");
  });
  const auto element = MakeTest(415);
  const auto abort = bench.Application().CallAt(bench.Application().Now() + std::chrono::seconds(5),
                                                [&] { person.Press(support::GuideOperator::kAbort); });
  Perform(element);
  bench.Application().Forget(abort);
  EXPECT_EQ(bench.Wire().Sent().back(), "EREM");
  EXPECT_EQ(person.prompts.size(), 2u);
  EXPECT_EQ(State(element), "4 none");
}

TEST_F(CKELDTestElementOrderTest, TheHostHearsOfTheEndWithTheResultAsItIsThen) {
  for (const auto& [command, state] : {std::pair{support::GuideOperator::kSkip, "-1 none"},
                                       {support::GuideOperator::kNotApplicable, "3 none NA"}}) {
    const auto element = MakeTest(415);
    AnswerResult("1,0,V");
    person.guide = {support::GuideOperator::kPlay, command};
    Texts states;
    controller->onTold = [&](const std::string& what) {
      if (what == "finished 415") states.push_back(State(element));
    };
    Perform(element);
    EXPECT_EQ(states, (Texts{"1 1 P", state})) << command;
  }
}

TEST_F(CKELDTestElementOrderTest, AMeasurementIsJudgedThenOwnedThenShownThenGivenToTheHost) {
  const auto onLimits = support::RegisterLimitsWatchedElements(bench.Host());
  const auto element = MakeTest(415);
  Limit(element, "", "100");
  guide->Initialize(element, controller);
  guide->Form()->Show();
  Test(element)->InitAutoRun(link, guide, controller);
  Texts states;
  // The limits are read by the judgement, and then by the guide that shows them beside the value.
  *onLimits = [&] {
    states.push_back(State(element) + ", " + std::to_string(controller->instruments->Count()) + " testers");
  };
  Measure();
  EXPECT_EQ(states, (Texts{"0 5, 0 testers", "1 5 P, 0 testers"}));
  EXPECT_EQ(Rows(), 1);
  EXPECT_EQ(element->Result()->MTIID(), 1);
}

TEST_F(CKELDTestElementOrderTest, TheTesterIsRecordedOnceTheResultIsShown) {
  const auto element = Driven();
  int rows = -1;
  std::string state;
  controller->onInstruments = [&] {
    rows = Rows();
    state = State(element) + ", record " + std::to_string(element->Result()->MTIID());
  };
  Measure();
  EXPECT_EQ(rows, 1);
  EXPECT_EQ(state, "1 5 P, record 0");
}

// --- another run ---

TEST_F(CKELDTestElementOrderTest, AStopOfTheRunBeforeIsForgotten) {
  AnswerResult("1,0,V");
  const auto element = Driven();
  Test(element)->StopTest();
  Test(element)->RunTest();
  EXPECT_EQ(State(element), "1 1 P");
  link->DisconnectMTI();
}

TEST_F(CKELDTestElementOrderTest, AStopWhileTheHostIsAskedCounts) {
  AnswerResult("1,0,V");
  const auto element = Driven();
  controller->mayStart = [&](const auto&) {
    Test(element)->StopTest();
    return true;
  };
  Test(element)->RunTest();
  EXPECT_EQ(Value(element), "none");
  EXPECT_TRUE(Test(element)->Stopped());
}

TEST_F(CKELDTestElementOrderTest, ARunAfterAnAbortIsWhole) {
  AnswerResult("1,0,V");
  const auto element = MakeTest(415);
  const auto abort = bench.Application().CallAt(bench.Application().Now() + std::chrono::seconds(5),
                                                [&] { person.Press(support::GuideOperator::kAbort); });
  Perform(element);
  bench.Application().Forget(abort);
  ASSERT_EQ(Status(element), 4);
  Perform(element);
  EXPECT_EQ(State(element), "1 1 P");
}

}  // namespace keld

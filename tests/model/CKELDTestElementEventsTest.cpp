#include "model/CKELDTestElement.h"
#include "platform/IForm.h"
#include "platform/IListView.h"
#include "tests/model/ModelTest.h"
#include "ui/FTestGuide.h"

// What a single test does with each event of its link, and in which order it tells the others.
namespace keld {

class CKELDTestElementEventsTest : public support::ModelTest {
 protected:
  /// The element is driven from outside, with link, guide and run controller of the test.
  void Drive() {
    guide->Initialize(element, controller);
    guide->Form()->Show();
    Test(element)->InitAutoRun(link, guide, controller);
  }
  void Answer(const std::string& value, const std::string& unit) {
    link->SetMtiData(2, value);
    link->SetMtiData(4, unit);
  }
  void Raise(std::int32_t status, std::int16_t testNo = 415) { link->ResultReceived().Raise(status, testNo); }
  std::shared_ptr<orvik::platform::IContainerSite> Site(const char* name) {
    return orvik::As<orvik::platform::IContainerSite>(guide->Form()->Find(name));
  }
  /// A field of the guide's instrument data.
  std::string Shown(const char* field) {
    for (const auto& control : Site("xstShowMTI")->Panel()->Controls()) {
      const auto tabs = orvik::As<orvik::platform::ITabs>(control);
      const auto page = tabs ? tabs->Page("tab:MtiData") : nullptr;
      const auto site =
          page ? orvik::As<orvik::platform::IContainerSite>(page->Find("tab:MtiData")) : nullptr;
      if (site) return orvik::As<orvik::platform::ITextBox>(site->Panel()->Find(field))->Text();
    }
    return "not found";
  }

  Element element = MakeTest(415);
  std::shared_ptr<CKELDInstrument> link = CKELDInstrument::Create();
  std::shared_ptr<FTestGuide> guide = FTestGuide::Create();
};

// --- events ---

TEST_F(CKELDTestElementEventsTest, OtherCodesAreIgnored) {
  Drive();
  Answer("5", "V");
  for (const std::int32_t status : {0, 1, 2, 4, 6, 8, 9, -1, 1003, 6001}) {
    Raise(status);
    EXPECT_FALSE(element->Result()) << status;
    EXPECT_FALSE(Test(element)->Stopped()) << status;
  }
  EXPECT_TRUE(person.prompts.empty());
  EXPECT_TRUE(controller->told.empty());
}

TEST_F(CKELDTestElementEventsTest, AMeasurementMakesAResultWhereThereIsNone) {
  Drive();
  Answer("5", "V");
  Raise(5);
  EXPECT_EQ(Status(element), 1);
  EXPECT_EQ(Value(element), "5");
  EXPECT_EQ(orvik::As<CKELDResultData>(element->Result())->Owner(), element);
}

TEST_F(CKELDTestElementEventsTest, TheTestNumberOfTheEventDecidesAboutTheLeads) {
  CKELDData::Shared()->SetSerialNumber("0815");
  CKELDData::Shared()->SetCalibValue(100);
  Drive();
  Answer("150", "mOhm");
  const std::pair<std::int16_t, const char*> cases[] = {{400, "150"}, {409, "150"}, {410, "50"}, {411, "150"},
                                                        {420, "50"},  {421, "150"}, {430, "150"}};
  for (const auto& [testNo, value] : cases) {
    Raise(5, testNo);
    EXPECT_EQ(Value(element), value) << testNo;
  }
}

TEST_F(CKELDTestElementEventsTest, TheMeasurementIsShownInTheGuide) {
  Drive();
  const auto rows = orvik::As<orvik::platform::IListView>(Site("xrvResultView")->Panel()->Find("lvwResults"));
  ASSERT_EQ(rows->RowCount(), 0);
  Answer("5", "V");
  Raise(5);
  EXPECT_EQ(rows->RowCount(), 1);
}

TEST_F(CKELDTestElementEventsTest, ATestThatTheTesterLacksMakesAResultToo) {
  Drive();
  Raise(6002);
  EXPECT_EQ(Status(element), 3);
  EXPECT_EQ(Value(element), "none");
  EXPECT_EQ(person.prompts.size(), 1u);
}

TEST_F(CKELDTestElementEventsTest, ATestThatTheTesterLacksTakesTheMeasurementAway) {
  Drive();
  Answer("5", "V");
  Raise(5);
  Raise(6002);
  EXPECT_EQ(Status(element), 3);
  EXPECT_EQ(Value(element), "none");
}

TEST_F(CKELDTestElementEventsTest, NoAnswerIsReportedAndWritesNoStatus) {
  Drive();
  Raise(7);
  EXPECT_FALSE(element->Result());
  Answer("5", "V");
  Raise(5);
  Raise(7);
  EXPECT_EQ(Status(element), 1);
  EXPECT_EQ(person.prompts.size(), 2u);
  EXPECT_FALSE(Test(element)->Stopped());
}

TEST_F(CKELDTestElementEventsTest, AStopDropsTheNextEventWhateverItIsAndNoLaterOne) {
  for (const std::int32_t status : {3, 4, 5, 7, 6002}) {
    Drive();
    Answer("5", "V");
    Test(element)->StopTest();
    Raise(status);
    EXPECT_TRUE(Test(element)->Stopped()) << status;
    EXPECT_FALSE(element->Result()) << status;
    EXPECT_TRUE(person.prompts.empty()) << status;
  }
  Drive();
  Raise(5);
  EXPECT_EQ(Value(element), "5");
}

TEST_F(CKELDTestElementEventsTest, AnIdentityUpdateIsStoredAndShown) {
  Drive();
  link->SetMtiData(2, std::string("3.4"));
  Raise(3);
  EXPECT_EQ(CKELDData::Shared()->FirmwareVersion(), "3.4");
  EXPECT_EQ(Shown("txtFwVer"), "3.4");
  EXPECT_FALSE(element->Result());
}

TEST_F(CKELDTestElementEventsTest, TheIdentityIsStoredAndShown) {
  Drive();
  const MtiDataArray identity{std::string("KELD(IN)-2"), std::string("0815"), std::string("2.1"),
                              std::string(), std::string()};
  link->GotMtiData().Raise(identity);
  EXPECT_EQ(CKELDData::Shared()->SerialNumber(), "0815");
  EXPECT_EQ(Shown("txtMTIType"), "KELD(IN)-2");
  EXPECT_EQ(Shown("txtFwVer"), "2.1");
}

TEST_F(CKELDTestElementEventsTest, WithoutAGuideEventsDoTheirOtherWork) {
  Test(element)->InitAutoRun(link, nullptr, controller);
  link->SetMtiData(2, std::string("3.4"));
  Raise(3);
  EXPECT_EQ(CKELDData::Shared()->FirmwareVersion(), "3.4");
  Raise(5);
  EXPECT_EQ(element->Result()->MTIID(), 1);
}

TEST_F(CKELDTestElementEventsTest, NobodyListensToALinkThatWasLetGo) {
  Drive();
  Test(element)->ResetAutoRun();
  Raise(5);
  EXPECT_FALSE(element->Result());
}

// --- driven from outside ---

TEST_F(CKELDTestElementEventsTest, ResettingLetsGoOfGuideAndController) {
  Drive();
  Test(element)->ResetAutoRun();
  const std::weak_ptr<FTestGuide> gone = std::exchange(guide, nullptr);
  EXPECT_TRUE(gone.expired());
  Test(element)->NextTest();
  EXPECT_TRUE(controller->told.empty());
}

TEST_F(CKELDTestElementEventsTest, AbortAnsweredNoLeavesLinkGuideAndResult) {
  Drive();
  Answer("5", "V");
  Raise(5);
  person.abort = false;
  Test(element)->AbortTest();
  EXPECT_EQ(person.prompts.size(), 1u);
  EXPECT_FALSE(Test(element)->Stopped());
  EXPECT_TRUE(guide->Form()->Visible());
  EXPECT_EQ(Status(element), 1);
  EXPECT_TRUE(controller->told.empty());
}

TEST_F(CKELDTestElementEventsTest, AnOpenLinkIsNotOpenedAgain) {
  AnswerResult("1,0,V");
  link->ConnectMTI();
  ASSERT_GE(link->PortNumber(), 1);
  // Whoever asked for the port now would be told that there is none.
  bench.Unassign();
  Drive();
  Test(element)->RunTest();
  EXPECT_EQ(Status(element), 1);
  link->DisconnectMTI();
}

TEST_F(CKELDTestElementEventsTest, ALinkFromOutsideIsUsedEvenWhileTheElementIsPerformed) {
  AnswerResult("1,0,V");
  person.guide = {};
  const auto shown = bench.Application().FormShown().Subscribe([&](const auto& form) {
    if (form->Name() != "FTestGuide") return;
    Test(element)->InitAutoRun(link, nullptr, controller);
    Test(element)->RunTest();
    EXPECT_FALSE(Test(element)->Stopped());
    form->Hide();
  });
  Perform(element);
  EXPECT_EQ(bench.Wire().Sent(), (Texts{"IREM", "STST,415,0", "GRES,415,0"}));
  link->DisconnectMTI();
}

TEST_F(CKELDTestElementEventsTest, AfterItWasPerformedItOpensNoLinkOfItsOwn) {
  person.guide = {};
  Perform(element);
  controller->told.clear();
  Test(element)->RunTest();
  EXPECT_TRUE(bench.Wire().All().empty());
  EXPECT_TRUE(Test(element)->Stopped());
  EXPECT_EQ(controller->told, (Texts{"start 415", "finished 415"}));
}

// --- order ---

TEST_F(CKELDTestElementEventsTest, TheHostIsAskedForTheNextTestBeforeTheGuideOpens) {
  int guides = -1;
  controller->onTold = [&](const std::string& what) {
    if (what == "navigate 0" && guides < 0) guides = person.guidesShown;
  };
  Perform(element);
  EXPECT_EQ(guides, 0);
  EXPECT_EQ(person.guidesShown, 1);
}

TEST_F(CKELDTestElementEventsTest, TheResultIsWipedBeforeTheHostIsAsked) {
  AnswerResult("1,0,V");
  Perform(element);
  ASSERT_EQ(Status(element), 1);
  Texts states;
  controller->mayStart = [&](const auto& asked) {
    states.push_back(std::to_string(Status(asked)) + " " + Value(asked));
    return true;
  };
  Perform(element);
  // First for the guide, then for the run.
  EXPECT_EQ(states, (Texts{"1 1", "0 none"}));
}

TEST_F(CKELDTestElementEventsTest, TheHostHearsOfTheEndBeforeTheSessionIsEnded) {
  Texts sent;
  std::int32_t status = -1;
  controller->onTold = [&](const std::string& what) {
    if (what != "finished 415") return;
    sent = bench.Wire().Sent();
    status = Status(element);
  };
  AnswerResult("1,0,V");
  Perform(element);
  EXPECT_EQ(sent, (Texts{"IREM", "STST,415,0", "GRES,415,0"}));
  EXPECT_EQ(status, 1);
  EXPECT_EQ(bench.Wire().Sent().back(), "EREM");
}

TEST_F(CKELDTestElementEventsTest, TheGuideIsHiddenAfterTheNoticeAndBeforeTheRequest) {
  using support::GuideOperator;
  for (const int command : {GuideOperator::kSkip, GuideOperator::kNotApplicable, GuideOperator::kNext,
                            GuideOperator::kPrevious}) {
    Texts seen;
    controller->onTold = [&](const std::string& what) {
      if (const auto form = person.Guide())
        seen.push_back(what.substr(0, what.find(' ')) + (form->Visible() ? " visible" : " hidden"));
    };
    person.guide = {command};
    Perform(element);
    if (command == GuideOperator::kSkip || command == GuideOperator::kNotApplicable) {
      EXPECT_EQ(seen, (Texts{"finished visible", "navigate hidden"})) << command;
    } else {
      EXPECT_EQ(seen, Texts{"navigate hidden"}) << command;
    }
  }
}

TEST_F(CKELDTestElementEventsTest, AnAbortEndsTheSessionThenRecordsThenLeaves) {
  AnswerResult("1,0,V");
  Texts sent;
  std::int32_t status = -1;
  bool visible = true;
  controller->onTold = [&](const std::string& what) {
    if (what != "navigate 2") return;
    sent = bench.Wire().Sent();
    status = Status(element);
    visible = person.Guide()->Visible();
  };
  const auto abort = bench.Application().CallAt(bench.Application().Now() + std::chrono::seconds(5),
                                                [&] { person.Press(support::GuideOperator::kAbort); });
  Perform(element);
  bench.Application().Forget(abort);
  EXPECT_EQ(sent, (Texts{"IREM", "STST,210,0", "EREM"}));
  EXPECT_EQ(status, 4);
  EXPECT_FALSE(visible);
}

// --- a host that fails ---

TEST_F(CKELDTestElementEventsTest, AControllerThatFailsCostsOnlyItsOwnSteps) {
  controller->broken = true;
  AnswerResult("1,0,V");
  Perform(element);
  EXPECT_EQ(Status(element), 1);
  EXPECT_EQ(element->Result()->ServiceRecord()->Code(), "P");
  EXPECT_EQ(element->Result()->MTIID(), 0);
  EXPECT_EQ(bench.Wire().Sent().back(), "EREM");
  EXPECT_EQ(controller->told, (Texts{"start 415", "navigate 0", "start 415", "finished 415", "navigate 0"}));
  link.reset();
  EXPECT_TRUE(bench.Application().Forms().empty());
}

TEST_F(CKELDTestElementEventsTest, AQuestionThatFailsIsNoLeaveToStart) {
  controller->mayStart = [](const auto&) -> bool { throw orvik::HostError(5, "test", "broken"); };
  Perform(element);
  EXPECT_EQ(person.guidesShown, 0);
  Test(element)->RunTest();
  EXPECT_FALSE(element->Result());
  EXPECT_TRUE(bench.Wire().All().empty());
}

TEST_F(CKELDTestElementEventsTest, WithoutAControllerNothingStarts) {
  element->Perform(nullptr);
  EXPECT_EQ(person.guidesShown, 0);
  EXPECT_TRUE(bench.Wire().All().empty());
}

}  // namespace keld

#include "platform/IForm.h"
#include "tests/model/HostElements.h"
#include "tests/model/ModelTest.h"

// A single test is performed: what goes over the wire, what is recorded, what the run controller is told.
namespace keld {

class CKELDTestElementRunTest : public support::ModelTest {
 protected:
  static constexpr char kNoInstrument[] =
      "Can not find a KELD attached to this system. Make sure that the cable is properly connected, and that "
      "the unit is "
      "powered on.";

  Texts SentFor(std::int32_t testId, std::int32_t options) {
    const auto element = MakeTest(testId);
    Configuration(element).SetOptions(options);
    bench.Wire().Clear();
    Perform(element);
    return bench.Wire().Sent();
  }
};

TEST_F(CKELDTestElementRunTest, AWholeTestGoesOverTheWireInOrder) {
  const auto element = bench.CreateTest(410);
  Perform(element);
  EXPECT_EQ(bench.Wire().Sent(), (Texts{"IREM", "STST,410,0", "GRES,410,0", "STST,210,0", "EREM"}));
  EXPECT_EQ(Status(element), 1);
  EXPECT_TRUE(Test(element)->Stopped());
  EXPECT_EQ(controller->told, (Texts{"start 410", "navigate 0", "start 410", "finished 410", "navigate 0"}));
}

TEST_F(CKELDTestElementRunTest, AResultIsMadeBeforeTheHostIsAsked) {
  const auto element = MakeTest(210);
  Element owner;
  controller->mayStart = [&](const auto& asked) {
    const auto made = orvik::As<CKELDResultData>(asked->Result());
    if (made) owner = made->Owner();
    return false;
  };
  Perform(element);
  EXPECT_EQ(owner, element);
  EXPECT_EQ(person.guidesShown, 0);
  EXPECT_EQ(controller->told, (Texts{"start 210"}));
}

TEST_F(CKELDTestElementRunTest, ARefusedRunRemovesTheResult) {
  const auto element = MakeTest(210);
  int asked = 0;
  controller->mayStart = [&](const auto&) { return ++asked == 1; };
  Perform(element);
  EXPECT_FALSE(element->Result());
  EXPECT_TRUE(bench.Wire().All().empty());
  EXPECT_EQ(controller->Count("finished 210"), 0u);
}

TEST_F(CKELDTestElementRunTest, TheTestModeGoesOutAsTheSetting) {
  EXPECT_EQ(SentFor(410, 3 | 4)[1], "STST,410,1");
  EXPECT_EQ(SentFor(410, 3 | 2048)[1], "STST,410,10");
  EXPECT_EQ(SentFor(410, 4 | 4096)[1], "STST,410,1");
  // 99, 999 and 9999 go out as 0.
  EXPECT_EQ(SentFor(410, 4096)[1], "STST,410,0");
  EXPECT_EQ(SentFor(1220, 0)[1], "STST,1220,0");
  EXPECT_EQ(SentFor(1210, 0)[1], "STST,1210,0");
}

TEST_F(CKELDTestElementRunTest, OhmIsRecordedAThousandfoldInTheExpectedUnitWhateverThatIs) {
  for (const std::string unit : {"mOhm", "furlongs", ""}) {
    const auto element = MakeTest(400 + 15);
    Test(element)->SetExpectedUnits(unit);
    AnswerResult("0.123,0,Ohm");
    Perform(element);
    EXPECT_EQ(Value(element), "123");
    EXPECT_EQ(element->Result()->Measurement(1)->Unit(), unit);
  }
}

TEST_F(CKELDTestElementRunTest, AnyOtherUnitIsRecordedUnchanged) {
  for (const std::string unit : {"ohm", "OHM", "mOhm", "V"}) {
    const auto element = MakeTest(415);
    Test(element)->SetExpectedUnits("x");
    AnswerResult("0.123,0," + unit);
    Perform(element);
    EXPECT_EQ(Value(element), "0.123");
    EXPECT_EQ(element->Result()->Measurement(1)->Unit(), unit);
  }
}

TEST_F(CKELDTestElementRunTest, ProtectiveEarthIsFreedOfTheLeads) {
  CKELDData::Shared()->SetSerialNumber("0815");
  CKELDData::Shared()->SetCalibValue(100);
  AnswerResult("0.15,0,Ohm");
  for (const std::int32_t id : {410, 420}) {
    const auto element = MakeTest(id);
    Perform(element);
    EXPECT_EQ(Value(element), "50") << id;
  }
  const auto other = MakeTest(415);
  Perform(other);
  EXPECT_EQ(Value(other), "150");
}

TEST_F(CKELDTestElementRunTest, ProtectiveEarthIsNeverBelowZero) {
  CKELDData::Shared()->SetSerialNumber("0815");
  CKELDData::Shared()->SetCalibValue(200);
  AnswerResult("0.15,0,Ohm");
  const auto element = MakeTest(410);
  Perform(element);
  EXPECT_EQ(Value(element), "0");
}

TEST_F(CKELDTestElementRunTest, TextThatIsNoNumberIsZero) {
  AnswerResult("abc,0,V");
  const auto element = MakeTest(415);
  Perform(element);
  EXPECT_EQ(Value(element), "0");
}

TEST_F(CKELDTestElementRunTest, AnOverloadReachesFlagsAndDescription) {
  AnswerResult("9.99,1,V");
  const auto element = MakeTest(415);
  Perform(element);
  EXPECT_EQ(element->Result()->Measurement(1)->Flags(), "O");
  EXPECT_EQ(element->Result()->Measurement(1)->Description(), "O");
  EXPECT_EQ(element->Result()->Measurement(1)->LimitKey(), "NO LIMIT KEY");
}

TEST_F(CKELDTestElementRunTest, AFailedStandardFailsTheTest) {
  const auto element = MakeTest(415);
  Limit(element, "", "100");
  AnswerResult("100.5,0,V");
  Perform(element);
  EXPECT_EQ(Status(element), 2);
  EXPECT_EQ(element->Result()->Measurement(1)->Status(), 2);
  EXPECT_EQ(element->Result()->ServiceRecord()->Code(), "F");
}

TEST_F(CKELDTestElementRunTest, AValueOnTheBoundPasses) {
  const auto element = MakeTest(415);
  Limit(element, "", "100");
  AnswerResult("100,0,V");
  Perform(element);
  EXPECT_EQ(Status(element), 1);
  EXPECT_EQ(element->Result()->ServiceRecord()->Code(), "P");
}

TEST_F(CKELDTestElementRunTest, AReadingThatCannotBeJudgedIsNotPassed) {
  const auto element = MakeTest(415);
  Limit(element, "", "100");
  controller->standards = nullptr;
  AnswerResult("1,0,V");
  Perform(element);
  EXPECT_EQ(Status(element), 0);
}

TEST_F(CKELDTestElementRunTest, AReadingWhoseLimitsCannotBeReadIsNotPassed) {
  const auto onLimits = support::RegisterLimitsWatchedElements(bench.Host());
  const auto element = MakeTest(415);
  Limit(element, "", "100");
  for (const auto& [reading, sound] : {std::pair{"1,0,V", 1}, {"101,0,V", 2}}) {
    AnswerResult(reading);
    *onLimits = nullptr;
    Perform(element);
    EXPECT_EQ(Status(element), sound);
    *onLimits = [] { throw orvik::HostError(5, "host", "no"); };
    Perform(element);
    EXPECT_EQ(Status(element), 0);
    EXPECT_EQ(element->Result()->Measurement(1)->Status(), 0);
    EXPECT_FALSE(element->Result()->ServiceRecord());
  }
  EXPECT_EQ(Value(element), "101") << "the reading is recorded all the same";
}

TEST_F(CKELDTestElementRunTest, WithoutLimitsThereIsNothingToFail) {
  const auto element = MakeTest(415);
  Base(element).SetLimits(nullptr);
  AnswerResult("1,0,V");
  Perform(element);
  EXPECT_EQ(Status(element), 1);
}

TEST_F(CKELDTestElementRunTest, TheInstrumentRecordIsFilledAndItsNumberKept) {
  AnswerResult("1,0,V");
  const auto element = MakeTest(415);
  Perform(element);
  ASSERT_EQ(controller->instruments->Count(), 1);
  const auto record = controller->instruments->item(1);
  EXPECT_EQ(record->SerialNumber(), "0815");
  EXPECT_EQ(record->FirmwareVersion(), "2.1");
  EXPECT_EQ(element->Result()->MTIID(), 1);
}

TEST_F(CKELDTestElementRunTest, AMuteTesterIsReportedAndNothingIsRecorded) {
  bench.Line().AnswerBy([](const std::string&) {});
  const auto element = MakeTest(210);
  Perform(element);
  EXPECT_EQ(person.prompts, (Texts{kNoInstrument}));
  EXPECT_EQ(Status(element), 0);
  EXPECT_EQ(Value(element), "none");
  EXPECT_EQ(bench.Wire().Sent(), (Texts{"IREM", "IREM", "IREM"}));
  EXPECT_EQ(controller->Count("finished 210"), 1u);
}

TEST_F(CKELDTestElementRunTest, WithoutAPortTheLinkIsLetGoWithoutAMessage) {
  bench.Unassign();
  const auto element = MakeTest(210);
  Perform(element);
  EXPECT_TRUE(person.prompts.empty());
  EXPECT_TRUE(Test(element)->Stopped());
  EXPECT_EQ(Status(element), 0);
  EXPECT_EQ(controller->Count("finished 210"), 1u);
}

TEST_F(CKELDTestElementRunTest, ATestThatTheTesterLacksIsNotApplicable) {
  bench.Line().AnswerBy([this](const std::string& command) {
    bench.Line().Reply(command == "IREM"   ? "irem,KELD(IN),0815,2.1"
                       : command == "EREM" ? "erem"
                                           : "ERRM,6002");
  });
  const auto element = MakeTest(610);
  element->Information()->SetSecondText("Earth leakage");
  element->Information()->SetFirstText("NC");
  Perform(element);
  EXPECT_EQ(
      person.prompts,
      (Texts{
          "The connected KELD does not support the test  Earth leakage NC. The test will be recorded as Not "
          "Applicable.",
          // The end of the session begins with a test as well, which this tester lacks too.
          "The connected KELD does not support the test  Earth leakage NC. The test will be recorded as Not "
          "Applicable."}));
  EXPECT_EQ(Status(element), 3);
  EXPECT_EQ(Value(element), "none");
  EXPECT_EQ(element->Result()->ServiceRecord()->Code(), "NA");
}

TEST_F(CKELDTestElementRunTest, ErrorsOfTheTesterRecordNothing) {
  for (const std::string reply : {"ERRM,1001", "ERRM", "what,1", "ERRM,5,1002"}) {
    bench.Line().AnswerBy([&](const std::string& command) {
      bench.Line().Reply(command == "IREM" ? "irem,KELD(IN),0815,2.1" : command == "EREM" ? "erem" : reply);
    });
    const auto element = MakeTest(610);
    Perform(element);
    EXPECT_EQ(Status(element), 0) << reply;
    EXPECT_EQ(Value(element), "none") << reply;
  }
  EXPECT_TRUE(person.prompts.empty());
}

TEST_F(CKELDTestElementRunTest, ARunWipesTheResultBefore) {
  const auto element = MakeTest(415);
  AnswerResult("1,0,V");
  Perform(element);
  ASSERT_EQ(Status(element), 1);
  bench.Line().AnswerBy([](const std::string&) {});
  Perform(element);
  EXPECT_EQ(Status(element), 0);
  EXPECT_EQ(Value(element), "none");
  EXPECT_FALSE(element->Result()->ServiceRecord());
}

TEST_F(CKELDTestElementRunTest, AStopBeforeTheResultRecordsNothingAndClosesTheSession) {
  const auto element = bench.CreateTest(210);
  const auto stop = bench.Application().CallAt(bench.Application().Now() + std::chrono::seconds(5),
                                               [&] { person.Press(support::GuideOperator::kStop); });
  Perform(element);
  bench.Application().Forget(stop);
  EXPECT_EQ(Status(element), 0);
  EXPECT_EQ(Value(element), "none");
  EXPECT_TRUE(Test(element)->Stopped());
  EXPECT_EQ(bench.Wire().Sent(), (Texts{"IREM", "STST,210,0", "STST,210,0", "EREM"}));
}

TEST_F(CKELDTestElementRunTest, StopOnlySetsAFlagThatTheNextEventReads) {
  const auto element = MakeTest(415);
  const auto link = CKELDInstrument::Create();
  element->Result();
  Test(element)->InitAutoRun(link, nullptr, nullptr);
  Test(element)->StopTest();
  EXPECT_FALSE(Test(element)->Stopped());
  link->SetMtiData(2, std::string("5"));
  std::int32_t status = 5;
  link->ResultReceived().Raise(status, 415);
  EXPECT_TRUE(Test(element)->Stopped());
  EXPECT_EQ(Value(element), "none");
}

TEST_F(CKELDTestElementRunTest, AnIdentityUpdateStoresTheFirmwareVersion) {
  const auto element = MakeTest(415);
  const auto link = CKELDInstrument::Create();
  Test(element)->InitAutoRun(link, nullptr, nullptr);
  link->SetMtiData(2, std::string("3.4"));
  std::int32_t status = 3;
  link->ResultReceived().Raise(status, 0);
  EXPECT_EQ(CKELDData::Shared()->FirmwareVersion(), "3.4");
}

TEST_F(CKELDTestElementRunTest, ADrivenElementLeavesTheLinkOpen) {
  AnswerResult("1,0,V");
  const auto element = MakeTest(415);
  const auto link = CKELDInstrument::Create();
  Test(element)->InitAutoRun(link, nullptr, controller);
  Test(element)->RunTest();
  EXPECT_FALSE(Test(element)->Stopped());
  EXPECT_EQ(bench.Wire().Sent(), (Texts{"IREM", "STST,415,0", "GRES,415,0"}));
  Test(element)->ResetAutoRun();
  EXPECT_TRUE(Test(element)->Stopped());
  link->DisconnectMTI();
}

TEST_F(CKELDTestElementRunTest, SkipTakesTheResultAway) {
  const auto element = MakeTest(415);
  person.guide = {support::GuideOperator::kSkip};
  Perform(element);
  EXPECT_FALSE(element->Result());
  EXPECT_EQ(controller->told, (Texts{"start 415", "navigate 0", "finished 415", "navigate 3"}));
}

TEST_F(CKELDTestElementRunTest, NotApplicableIsRecorded) {
  const auto element = MakeTest(415);
  AnswerResult("1,0,V");
  person.guide = {support::GuideOperator::kPlay, support::GuideOperator::kNotApplicable};
  Perform(element);
  EXPECT_EQ(Status(element), 3);
  EXPECT_EQ(Value(element), "none");
  EXPECT_EQ(element->Result()->ServiceRecord()->Code(), "NA");
  EXPECT_EQ(controller->told.back(), "navigate 4");
  EXPECT_EQ(controller->Count("finished 415"), 2u);
}

TEST_F(CKELDTestElementRunTest, NextAndPreviousLeaveTheResultAsItIs) {
  const auto element = MakeTest(415);
  AnswerResult("1,0,V");
  person.guide = {support::GuideOperator::kPlay, support::GuideOperator::kPrevious};
  Perform(element);
  EXPECT_EQ(Status(element), 1);
  EXPECT_EQ(controller->told.back(), "navigate 1");
}

TEST_F(CKELDTestElementRunTest, AbortAsksAndRecordsAborted) {
  const auto element = MakeTest(415);
  person.guide = {support::GuideOperator::kAbort};
  Perform(element);
  EXPECT_EQ(person.prompts, (Texts{"Do you want to end this test and discard all previous test results?"}));
  EXPECT_EQ(Status(element), 4);
  EXPECT_FALSE(element->Result()->ServiceRecord());
  EXPECT_EQ(controller->told, (Texts{"start 415", "navigate 0", "navigate 2"}));
}

TEST_F(CKELDTestElementRunTest, AbortAnsweredNoChangesNothing) {
  const auto element = MakeTest(415);
  AnswerResult("1,0,V");
  person.abort = false;
  person.guide = {support::GuideOperator::kPlay, support::GuideOperator::kAbort};
  Perform(element);
  EXPECT_EQ(Status(element), 1);
  EXPECT_EQ(controller->Count("navigate 2"), 0u);
  EXPECT_EQ(controller->told.back(), "navigate 0");
}

TEST_F(CKELDTestElementRunTest, AnEarlierYesIsNotTakenForAnAnswer) {
  const auto element = MakeTest(415);
  person.guide = {support::GuideOperator::kAbort};
  Perform(element);
  ASSERT_EQ(Status(element), 4);
  // This time the prompt goes away without an answer: closing it would be one.
  const auto unloadPrompt = bench.Application().FormShown().Subscribe([](const auto& form) {
    if (form->Name() == "FYesNoPrompt") form->Unload();
  });
  controller->told.clear();
  Perform(element);
  EXPECT_EQ(person.prompts.size(), 2u);
  EXPECT_EQ(controller->Count("navigate 2"), 0u);
}

TEST_F(CKELDTestElementRunTest, ARunLeavesNothingBehind) {
  std::weak_ptr<orvik::ITestElement> gone;
  {
    const auto element = bench.CreateTest(410);
    gone = element;
    Perform(element);
  }
  EXPECT_TRUE(gone.expired());
  EXPECT_TRUE(bench.Application().Forms().empty());
}

}  // namespace keld

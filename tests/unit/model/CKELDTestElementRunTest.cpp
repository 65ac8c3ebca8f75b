#include "model/CKELDTestElement.h"
#include "platform/Controls.h"
#include "tests/unit/model/HostElements.h"
#include "tests/unit/model/ModelTest.h"
#include "ui/FPretestPrompt.h"

// What a single test measures, judges and records, and how it handles each event of its link.
namespace keld {

class CKELDTestElementRunTest : public support::DrivenTest {
 protected:
  static constexpr char kNoInstrument[] =
      "Can not find a KELD attached to this system. Make sure that the cable is properly connected, and that "
      "the unit is powered on.";

  void UseLeads(std::int32_t milliohms) {
    instrument::CKELDData::Shared()->SetSerialNumber("0815");
    instrument::CKELDData::Shared()->SetCalibValue(milliohms);
  }
  /// A field of the guide's instrument data.
  std::string Shown(const char* field) {
    const auto pane = orvik::As<orvik::platform::IContainerSite>(guide->Form()->Find("xstShowMTI"));
    for (const auto& control : pane->Panel()->Controls()) {
      const auto tabs = orvik::As<orvik::platform::ITabs>(control);
      const auto page = tabs ? tabs->Page("tab:MtiData") : nullptr;
      const auto site =
          page ? orvik::As<orvik::platform::IContainerSite>(page->Find("tab:MtiData")) : nullptr;
      if (site) return orvik::As<orvik::platform::ITextBox>(site->Panel()->Find(field))->Text();
    }
    return "not found";
  }

  Element element = MakeTest(415);
};

// --- over the wire ---

TEST_F(CKELDTestElementRunTest, SendsItsTestModeAsTheSetting) {
  struct Row {
    std::int32_t testId, options;
    const char* command;
  };
  for (const Row& row :
       {Row{410, 3 | 4, "STST,410,1"}, Row{410, 3 | 2048, "STST,410,10"}, Row{410, 4 | 4096, "STST,410,1"},
        // 99, 999 and 9999 are sent as 0.
        Row{410, 4096, "STST,410,0"}, Row{1220, 0, "STST,1220,0"}, Row{1210, 0, "STST,1210,0"}}) {
    const auto test = MakeTest(row.testId);
    Configuration(test).SetOptions(row.options);
    bench.Wire().Clear();
    Perform(test);
    EXPECT_EQ(bench.Wire().Sent()[1], row.command);
  }
}

TEST_F(CKELDTestElementRunTest, RecordsTheReading) {
  struct Row {
    std::int32_t testId;
    std::int32_t leads;
    const char* expectedUnit;
    const char* reply;
    const char* value;
    const char* unit;
  };
  const std::vector<Row> rows = {
      // Ohm is recorded times 1000 in the expected unit, which is not checked; other units are unchanged.
      {415, 0, "mOhm", "0.123,0,Ohm", "123", "mOhm"},
      {415, 0, "furlongs", "0.123,0,Ohm", "123", "furlongs"},
      {415, 0, "", "0.123,0,Ohm", "123", ""},
      {415, 0, "x", "0.123,0,ohm", "0.123", "ohm"},
      {415, 0, "x", "0.123,0,OHM", "0.123", "OHM"},
      {415, 0, "x", "0.123,0,mOhm", "0.123", "mOhm"},
      {415, 0, "x", "0.123,0,V", "0.123", "V"},
      // Protective earth is corrected by the leads, not below zero.
      {410, 100, "mOhm", "0.15,0,Ohm", "50", "mOhm"},
      {420, 100, "mOhm", "0.15,0,Ohm", "50", "mOhm"},
      {415, 100, "mOhm", "0.15,0,Ohm", "150", "mOhm"},
      {410, 200, "mOhm", "0.15,0,Ohm", "0", "mOhm"},
      {415, 0, "", "abc,0,V", "0", "V"}};
  for (const Row& row : rows) {
    UseLeads(row.leads);
    const auto test = MakeTest(row.testId);
    Test(test)->SetExpectedUnits(row.expectedUnit);
    AnswerResult(row.reply);
    Perform(test);
    EXPECT_EQ(Value(test), row.value) << row.reply;
    EXPECT_EQ(test->Result()->Measurement(1)->Unit(), row.unit) << row.reply;
  }
}

TEST_F(CKELDTestElementRunTest, CorrectsByTheTestNumberOfTheEvent) {
  UseLeads(100);
  Drive(element);
  for (const auto& [testNo, value] : {std::pair{400, "150"},
                                      {409, "150"},
                                      {410, "50"},
                                      {411, "150"},
                                      {420, "50"},
                                      {421, "150"},
                                      {430, "150"}}) {
    Measure("150", "mOhm", static_cast<std::int16_t>(testNo));
    EXPECT_EQ(Value(element), value) << testNo;
  }
}

TEST_F(CKELDTestElementRunTest, RecordsAnOverloadAsFlagAndDescription) {
  AnswerResult("9.99,1,V");
  Perform(element);
  const auto measurement = element->Result()->Measurement(1);
  EXPECT_EQ(measurement->Flags(), "O");
  EXPECT_EQ(measurement->Description(), "O");
  EXPECT_EQ(measurement->LimitKey(), "NO LIMIT KEY");
}

TEST_F(CKELDTestElementRunTest, JudgesByItsLimits) {
  Limit(element, "", "100");
  for (const auto& [reply, state] : {std::pair{"100.5,0,V", "2 100.5 F"}, {"100,0,V", "1 100 P"}}) {
    AnswerResult(reply);
    Perform(element);
    EXPECT_EQ(State(element), state);
    EXPECT_EQ(element->Result()->Measurement(1)->Status(), Status(element));
  }
  Base(element).SetLimits(nullptr);
  AnswerResult("100.5,0,V");
  Perform(element);
  EXPECT_EQ(State(element), "1 100.5 P") << "without limits";
}

TEST_F(CKELDTestElementRunTest, NeverPassesWithoutAJudgement) {
  const auto watch = support::RegisterWatchedElements(bench.Host());
  element = MakeTest(415);
  Limit(element, "", "100");
  const auto standards = controller->standards;
  for (const auto& [reply, sound, unjudged] :
       {std::tuple{"1,0,V", "1 1 P", "0 1"}, {"101,0,V", "2 101 F", "0 101"}}) {
    AnswerResult(reply);
    Perform(element);
    EXPECT_EQ(State(element), sound);
    controller->standards = nullptr;
    Perform(element);
    EXPECT_EQ(State(element), unjudged) << "standards that cannot be read";
    controller->standards = standards;
    watch->onLimits = support::RaiseHostError;
    Perform(element);
    EXPECT_EQ(State(element), unjudged) << "limits that cannot be read";
    EXPECT_EQ(element->Result()->Measurement(1)->Status(), 0);
    watch->onLimits = nullptr;
  }
}

TEST_F(CKELDTestElementRunTest, StoresTheTesterInTheDocument) {
  AnswerResult("1,0,V");
  Perform(element);
  ASSERT_EQ(controller->instruments->Count(), 1);
  EXPECT_EQ(controller->instruments->item(1)->SerialNumber(), "0815");
  EXPECT_EQ(controller->instruments->item(1)->FirmwareVersion(), "2.1");
  EXPECT_EQ(element->Result()->MTIID(), 1);
}

TEST_F(CKELDTestElementRunTest, ReportsAMuteTesterAndRecordsNothing) {
  AnswerResult("1,0,V");
  Perform(element);
  ASSERT_EQ(State(element), "1 1 P");
  bench.Wire().Clear();
  AnswerNothing();
  Perform(element);
  EXPECT_EQ(person.prompts, Texts{kNoInstrument});
  EXPECT_EQ(State(element), "0 none");
  EXPECT_EQ(bench.Wire().Sent(), (Texts{"IREM", "IREM", "IREM"}));
  EXPECT_EQ(controller->Count("finished 415"), 2u);
}

TEST_F(CKELDTestElementRunTest, RecordsAnUnsupportedTestAsNotApplicable) {
  AnswerTests({{0, "ERRM,6002"}}, "ERRM,6002");
  element->Information()->SetSecondText("Earth leakage");
  element->Information()->SetFirstText("NC");
  Perform(element);
  // Ending the session starts a test as well, which this tester does not support either.
  EXPECT_EQ(person.prompts,
            Texts(2,
                  "The connected KELD does not support the test  Earth leakage NC. The test will be "
                  "recorded as Not Applicable."));
  EXPECT_EQ(State(element), "3 none NA");
}

TEST_F(CKELDTestElementRunTest, RecordsNothingAfterAnErrorReply) {
  for (const std::string reply : {"ERRM,1001", "ERRM", "what,1", "ERRM,5,1002"}) {
    bench.Line().AnswerBy([&](const std::string& command) {
      bench.Line().Reply(command == "IREM" ? "irem,KELD(IN),0815,2.1" : command == "EREM" ? "erem" : reply);
    });
    element = MakeTest(610);
    Perform(element);
    EXPECT_EQ(State(element), "0 none") << reply;
  }
  EXPECT_TRUE(person.prompts.empty());
}

TEST_F(CKELDTestElementRunTest, RecordsAbortedAfterAnUnsupportedEnd) {
  // The test that ends the session is not supported: not applicable, until the abort is recorded.
  AnswerTests({{0, "ERRM,6002"}}, "5,0,V");
  Perform(element, support::GuideOperator::kAbort, std::chrono::seconds(5));
  EXPECT_EQ(bench.Wire().Sent().back(), "EREM");
  EXPECT_EQ(person.prompts.size(), 2u);
  EXPECT_EQ(State(element), "4 none");
}

// --- events ---

TEST_F(CKELDTestElementRunTest, IgnoresOtherEvents) {
  Drive(element);
  link->SetMtiData(2, std::string("5"));
  for (const std::int32_t status : {0, 1, 2, 4, 6, 8, 9, -1, 1003, 6001}) {
    Raise(status);
    EXPECT_FALSE(element->Result()) << status;
    EXPECT_FALSE(Test(element)->Stopped()) << status;
  }
  EXPECT_TRUE(person.prompts.empty());
  EXPECT_TRUE(controller->told.empty());
}

TEST_F(CKELDTestElementRunTest, CreatesAndShowsItsResultOnAMeasurement) {
  Drive(element);
  ASSERT_EQ(Rows(*guide->Form()), 0);
  Measure();
  EXPECT_EQ(State(element), "1 5 P");
  EXPECT_EQ(orvik::As<results::CKELDResultData>(element->Result())->Owner(), element);
  EXPECT_EQ(Rows(*guide->Form()), 1);
}

TEST_F(CKELDTestElementRunTest, RecordsNotApplicableAfterTheMessage) {
  Drive(element);
  Raise(6002);
  EXPECT_EQ(State(element), "3 none NA") << "without an earlier result";
  Measure();
  std::string before;
  person.onAnswer = [&](const std::string&) { before = State(element); };
  Raise(6002);
  EXPECT_EQ(before, "1 5 P");
  EXPECT_EQ(State(element), "3 none NA");
  EXPECT_EQ(person.prompts.size(), 2u);
}

TEST_F(CKELDTestElementRunTest, DoesNotChangeItsResultWithoutAnAnswer) {
  Drive(element);
  Raise(7);
  EXPECT_FALSE(element->Result());
  Measure();
  Raise(7);
  EXPECT_EQ(State(element), "1 5 P");
  EXPECT_EQ(person.prompts, Texts(2, kNoInstrument));
  EXPECT_FALSE(Test(element)->Stopped());
}

TEST_F(CKELDTestElementRunTest, TagsItsMessagesWithTheirPicture) {
  const auto test = orvik::As<model::CKELDTestElement>(Drive(element));
  Texts keys;
  person.onAnswer = [&](const std::string&) { keys.push_back(test->FailureMessage()->Tag()); };
  Raise(7);
  Raise(6002);
  EXPECT_EQ(keys, (Texts{"CommsError", "CommsError"}));
  EXPECT_FALSE(test->FailureMessage());
}

TEST_F(CKELDTestElementRunTest, DiscardsOneEventAfterAStop) {
  for (const std::int32_t status : {3, 4, 5, 7, 6002}) {
    Drive(element);
    Test(element)->StopTest();
    EXPECT_FALSE(Test(element)->Stopped()) << "only the next event stops";
    Raise(status);
    EXPECT_TRUE(Test(element)->Stopped()) << status;
    EXPECT_FALSE(element->Result()) << status;
    EXPECT_TRUE(person.prompts.empty()) << status;
  }
  Drive(element);
  Measure();
  EXPECT_EQ(State(element), "1 5 P");
}

TEST_F(CKELDTestElementRunTest, StoresAndShowsTheTestersIdentity) {
  Drive(element);
  link->SetMtiData(2, std::string("3.4"));
  Raise(3);
  EXPECT_EQ(instrument::CKELDData::Shared()->FirmwareVersion(), "3.4");
  EXPECT_EQ(Shown("txtFwVer"), "3.4");
  EXPECT_FALSE(element->Result());
  link->GotMtiData().Raise(instrument::MtiDataArray{std::string("KELD(IN)-2"), std::string("0815"),
                                                    std::string("2.1"), std::string(), std::string()});
  EXPECT_EQ(instrument::CKELDData::Shared()->SerialNumber(), "0815");
  EXPECT_EQ(Shown("txtMTIType"), "KELD(IN)-2");
  EXPECT_EQ(Shown("txtFwVer"), "2.1");
}

TEST_F(CKELDTestElementRunTest, HandlesEventsWithoutAGuide) {
  Test(element)->InitAutoRun(link, nullptr, controller);
  link->SetMtiData(2, std::string("3.4"));
  Raise(3);
  EXPECT_EQ(instrument::CKELDData::Shared()->FirmwareVersion(), "3.4");
  Raise(5);
  EXPECT_EQ(element->Result()->MTIID(), 1);
}

TEST_F(CKELDTestElementRunTest, IgnoresAReleasedLink) {
  Drive(element);
  Test(element)->ResetAutoRun();
  Raise(5);
  EXPECT_FALSE(element->Result());
}

TEST_F(CKELDTestElementRunTest, JudgesThenRecordsThenShowsThenNamesTheTester) {
  const auto watch = support::RegisterWatchedElements(bench.Host());
  element = MakeTest(415);
  Limit(element, "", "100");
  Drive(element);
  Texts states;
  // The judgement reads the limits, then the guide does.
  watch->onLimits = [&] {
    states.push_back(State(element) + ", " + std::to_string(controller->instruments->Count()) + " testers");
  };
  controller->onInstruments = [&] {
    states.push_back(State(element) + ", record " + std::to_string(element->Result()->MTIID()) + ", " +
                     std::to_string(Rows(*guide->Form())) + " rows");
  };
  Measure();
  EXPECT_EQ(states, (Texts{"0 5, 0 testers", "1 5 P, 0 testers", "1 5 P, record 0, 1 rows"}));
  EXPECT_EQ(element->Result()->MTIID(), 1);
}

// --- driven from outside ---

TEST_F(CKELDTestElementRunTest, KeepsLinkAndGuideWhenAbortIsAnsweredNo) {
  Drive(element);
  Measure();
  person.abort = false;
  Test(element)->AbortTest();
  EXPECT_EQ(person.prompts.size(), 1u);
  EXPECT_FALSE(Test(element)->Stopped());
  EXPECT_TRUE(guide->Form()->Visible());
  EXPECT_EQ(State(element), "1 5 P");
  EXPECT_TRUE(controller->told.empty());
}

TEST_F(CKELDTestElementRunTest, UsesAnOpenLink) {
  AnswerResult("1,0,V");
  link->ConnectMTI();
  ASSERT_GE(link->PortNumber(), 1);
  bench.Unassign();  // the port could not be opened again
  Test(Drive(element))->RunTest();
  EXPECT_EQ(Status(element), 1);
  link->DisconnectMTI();
}

TEST_F(CKELDTestElementRunTest, PrefersAGivenLinkWhilePerformed) {
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

TEST_F(CKELDTestElementRunTest, OpensNoLinkOfItsOwnOnceDriven) {
  person.guide = {};
  Perform(element);
  controller->told.clear();
  Test(element)->RunTest();
  EXPECT_TRUE(bench.Wire().All().empty());
  EXPECT_TRUE(Test(element)->Stopped());
  EXPECT_EQ(controller->told, (Texts{"start 415", "finished 415"}));
}

TEST_F(CKELDTestElementRunTest, LosesOnlyTheStepsAFailingHostBreaks) {
  controller->broken = true;
  AnswerResult("1,0,V");
  Perform(element);
  EXPECT_EQ(State(element), "1 1 P");
  EXPECT_EQ(element->Result()->MTIID(), 0);
  EXPECT_EQ(bench.Wire().Sent().back(), "EREM");
  EXPECT_EQ(controller->told, (Texts{"start 415", "navigate 0", "start 415", "finished 415", "navigate 0"}));
}

}  // namespace keld

#include "instrument/CKELDData.h"
#include "tests/support/WatchedLanguage.h"
#include "tests/unit/ui/GuideTest.h"

// The operator's buttons on a whole bench; GuideInEveryLanguageTest.cpp has the ways that each button is
// meant for.
namespace {

using Codes = std::vector<std::int32_t>;
using Commands = std::vector<int>;
using Texts = std::vector<std::string>;
using ui::GuideScreen;

using FTestGuideCommandsTest = ui::GuideTest;

TEST_F(FTestGuideCommandsTest, IgnoresButtonsThatAreNotOffered) {
  const auto element = Element();
  SetOptions(*element, 0);
  Perform(element, [](GuideScreen guide) {
    guide.Click(301);
    guide.Click(302);
    guide.Click(201);
  });
  EXPECT_FALSE(left_);
  EXPECT_EQ(controller_->navigation, Codes{0});
}

TEST_F(FTestGuideCommandsTest, IgnoresUnknownCommands) {
  const auto guide = Opened(Element());
  for (const int command : {0, -1, 100, 104, 501, 901}) Command(guide, command);
  EXPECT_FALSE(guide->Running());
  EXPECT_TRUE(controller_->navigation.empty());
  EXPECT_TRUE(windows_.empty());
}

TEST_F(FTestGuideCommandsTest, SetsTheStatusThenClearsTheResultView) {
  const auto language = support::WatchLanguage(bench_.Host());
  const auto element = Element();
  GiveFailingLimit(element);
  int rowsAtStatus = -1, rowsAtStart = -1;
  Perform(element, [&](GuideScreen guide) {
    guide.Click(202);
    EXPECT_EQ(guide.Results()->RowCount(), 1);
    EXPECT_TRUE(guide.Results()->Cell("7::", "VAL").bold);
    language->onText = [&, guide](const std::string& text) {
      if (text.starts_with("20310::")) rowsAtStatus = guide.Results()->RowCount();
    };
    When("STST", [&, guide] { rowsAtStart = guide.Results()->RowCount(); });
    guide.Click(202);  // it failed, so play runs it again
    language->onText = nullptr;
  });
  EXPECT_EQ(rowsAtStatus, 1);
  EXPECT_EQ(rowsAtStart, 0);
  EXPECT_EQ(element->Result()->Status(), 2);
}

TEST_F(FTestGuideCommandsTest, StopsTheTestThenSetsTheStatus) {
  const auto language = support::WatchLanguage(bench_.Host());
  const auto element = Element();
  const auto link = keld::instrument::CKELDInstrument::Create();
  const auto guide = Driving(element, link);
  bool said = false;
  language->onText = [&](const std::string& text) {
    if (!text.starts_with("20309::")) return;
    said = true;
    // A result that arrives now is discarded.
    std::int32_t status = 5;
    link->ResultReceived().Raise(status, 210);
  };
  Command(guide, 201);
  language->onText = nullptr;
  EXPECT_TRUE(said);
  EXPECT_TRUE(element->Stopped());
  EXPECT_FALSE(element->Result());
}

TEST_F(FTestGuideCommandsTest, PlayMovesOnAfterAPassedTest) {
  Perform(Element(), [](GuideScreen guide) {
    guide.Click(202);
    EXPECT_TRUE(guide.Form().Visible());
    guide.Click(202);
  });
  EXPECT_TRUE(left_);
  EXPECT_EQ(controller_->navigation, (Codes{0, 0}));
  EXPECT_EQ(controller_->finished, Codes{7});
}

TEST_F(FTestGuideCommandsTest, PlayRepeatsATestPassedInAnEarlierOpening) {
  const auto element = Element();
  for (const auto& finished : {Codes{7}, Codes{7, 7}}) {
    Perform(element, [](GuideScreen guide) { guide.Click(202); });
    EXPECT_FALSE(left_);
    EXPECT_EQ(controller_->finished, finished);
  }
  controller_->navigation.clear();
  const auto guide = keld::ui::FTestGuide::Create();
  for (const auto& finished : {Codes{7, 7, 7}, Codes{7, 7, 7, 7}}) {
    const auto link = keld::instrument::CKELDInstrument::Create();
    guide->Initialize(element, controller_);
    element->InitAutoRun(link, guide, controller_);
    Command(guide, 202);
    EXPECT_EQ(controller_->finished, finished) << "the same guide, opened again";
    EXPECT_TRUE(controller_->navigation.empty());
    link->DisconnectMTI();
  }
}

TEST_F(FTestGuideCommandsTest, PlayMovesOnAfterAnUnsupportedTest) {
  bench_.Line().AnswerBy([this](const std::string& command) {
    const bool start = command.starts_with("STST,210,") && bench_.Wire().Sent().size() < 3;
    bench_.Line().Reply(start ? "ERRM,6002" : command.starts_with("IREM") ? "irem,KELD(IN),K1,1.0" : "erem");
  });
  const auto element = Element();
  Perform(element, [](GuideScreen guide) {
    guide.Click(202);
    guide.Click(202);
  });
  EXPECT_TRUE(left_);
  EXPECT_EQ(element->Result()->Status(), 3);
  EXPECT_EQ(windows_, Texts{"FPretestPrompt"});
}

TEST_F(FTestGuideCommandsTest, MayStopTwice) {
  const auto element = Element();
  Perform(element, [&](GuideScreen guide) {
    When("STST", [guide] {
      guide.Click(201);
      guide.Click(201);
      guide.Click(202);
    });
    guide.Click(202);
    EXPECT_EQ(element->Result()->Status(), 0);
    // The next run is not affected.
    guide.Click(202);
  });
  EXPECT_EQ(element->Result()->Status(), 1);
}

TEST_F(FTestGuideCommandsTest, IgnoresOtherButtonsDuringARun) {
  const auto element = Element();
  Perform(element, [&](GuideScreen guide) {
    When("STST", [&, guide] {
      for (const int command : {102, 103, 301, 302, 501, 900}) guide.Click(command);
    });
    guide.Click(202);
  });
  EXPECT_EQ(controller_->navigation, Codes{0});
  EXPECT_EQ(element->Result()->Status(), 1);
  EXPECT_TRUE(windows_.empty());
}

TEST_F(FTestGuideCommandsTest, LocksTheChoiceOfTesterDuringARun) {
  // The lead resistance of another tester would make a protective earth look better than it is.
  const auto data = keld::instrument::CKELDData::Shared();
  data->SetSerialNumber("another");
  data->SetCalibValue(1000);
  data->SetSerialNumber("");
  const auto element = Element(410);
  bool looked = false;
  Perform(element, [&](GuideScreen guide) {
    EXPECT_FALSE(guide.InstrumentData()->Locked());
    When("GRES", [&, guide] {
      looked = true;
      EXPECT_TRUE(guide.InstrumentData()->Locked());
      const auto serial = guide.InstrumentField<orvik::platform::IComboBox>("cboSerial");
      ASSERT_EQ(serial->Items(), Texts{"another"});
      serial->Choose(0);
    });
    guide.Click(202);
    EXPECT_FALSE(guide.InstrumentData()->Locked());
  });
  EXPECT_TRUE(looked);
  EXPECT_NE(data->SerialNumber(), "another");
  EXPECT_NE(std::get<double>(element->Result()->Measurement(1)->value()), 0);
}

TEST_F(FTestGuideCommandsTest, IgnoresOtherCommandsDuringARun) {
  const auto element = Element();
  const auto guide = Driving(element, keld::instrument::CKELDInstrument::Create());
  bool running = false;
  When("STST", [&] {
    running = guide->Running();
    for (const int command : {102, 103, 301, 302, 501, 900}) Command(guide, command);
  });
  Command(guide, 202);
  EXPECT_TRUE(running);
  EXPECT_FALSE(guide->Running());
  EXPECT_TRUE(controller_->navigation.empty());
}

TEST_F(FTestGuideCommandsTest, StaysReadyAfterARefusedStart) {
  const auto element = Element();
  Perform(element, [&](GuideScreen guide) {
    controller_->mayStart = [](const auto&) { return false; };
    guide.Click(202);
    EXPECT_FALSE(element->Result());
    EXPECT_EQ(guide.Enabled(), (Commands{101, 102, 103, 202, 301, 302, 501, 900}));
  });
  EXPECT_TRUE(bench_.Wire().Sent().empty());
}

// --- abort ---

TEST_F(FTestGuideCommandsTest, AsksOnlyOnceAtATime) {
  const auto element = Element();
  const auto guide = Driving(element, nullptr);
  guide->Form()->Show();
  onWindow_ = [&](const std::shared_ptr<orvik::platform::IForm>& form) {
    // Another abort while the question is on the screen, although it blocks the guide.
    if (windows_.size() == 1) Command(guide, 101);
    Press(form, "cmdDecline");
  };
  Command(guide, 101);
  EXPECT_EQ(windows_, Texts{"FYesNoPrompt"});
  Command(guide, 101);
  EXPECT_EQ(windows_, (Texts{"FYesNoPrompt", "FYesNoPrompt"}));
}

TEST_F(FTestGuideCommandsTest, MayBeReleasedInsideAnyCommand) {
  for (const int command : {101, 102, 103, 301, 302}) {
    AnswerQuestions(true);
    const auto element = Element();
    auto guide = Driving(element, nullptr);
    guide->Form()->Show();
    const auto screen = GuideScreen(guide->Form());
    const std::weak_ptr<keld::ui::FTestGuide> weak = std::exchange(guide, nullptr);
    // Only the element holds the guide now, and releases it inside the call.
    controller_->onTold = [&](const std::string& what) {
      if (!what.starts_with("navigate")) return;
      weak.lock()->Unload();
      element->ResetAutoRun();
    };
    screen.Click(command);
    EXPECT_TRUE(weak.expired()) << command;
    EXPECT_TRUE(App().Forms().empty()) << command;
  }
  EXPECT_EQ(controller_->navigation, (Codes{2, 1, 0, 4, 3}));
}

TEST_F(FTestGuideCommandsTest, CalibratesInAWindowOfTheGuide) {
  const auto other = App().CreateForm("Other");
  for (const bool save : {false, true}) {
    std::string active;
    onWindow_ = [&](const std::shared_ptr<orvik::platform::IForm>& form) {
      if (form == other) return;
      active = App().ActiveForm()->Name();
      Press(form, "cmdCalibrate");
      // Another window is activated; closing the dialog must still return to its owner.
      other->Show();
      Press(form, save ? "cmdSave" : "cmdCancel");
    };
    Perform(Element(), [&](GuideScreen guide) {
      const auto panel = guide.Site("xstShowMTI")->Panel();
      const int before = panel->RefreshCount();
      guide.Click(900);
      EXPECT_EQ(panel->RefreshCount() > before, save) << "a saved calibration is shown";
      EXPECT_EQ(App().ActiveForm()->Name(), "FTestGuide");
      EXPECT_TRUE(guide.Form().Visible());
      other->Unload();
      EXPECT_EQ(App().Forms().size(), 1U) << "the calibration window is unloaded";
    });
    EXPECT_EQ(active, "FCalibrateLeads");
    EXPECT_EQ(keld::instrument::CKELDData::Shared()->CalibValue(), save ? 123 : 0);
  }
}

}  // namespace

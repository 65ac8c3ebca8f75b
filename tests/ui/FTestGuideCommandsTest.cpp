#include "instrument/CKELDData.h"
#include "tests/support/WatchedLanguage.h"
#include "tests/ui/GuideTest.h"
#include "ui/FTestGuide.h"

// What the operator's buttons do, on a whole bench.
namespace {

using Codes = std::vector<std::int32_t>;
using Commands = std::vector<int>;
using Texts = std::vector<std::string>;
using ui::GuideScreen;

constexpr char kPerforming[] = "Performing safety test. Please wait...";
constexpr char kStopping[] = "Stopping safety test. Please wait...";

using FTestGuideCommandsTest = ui::GuideTest;

TEST_F(FTestGuideCommandsTest, NextAndPreviousLeaveTheGuide) {
  Perform(Element(), [](GuideScreen guide) { guide.Click(103); });
  EXPECT_TRUE(left_);
  EXPECT_EQ(controller_->navigation, (Codes{0, 0}));
  controller_->navigation.clear();
  Perform(Element(), [](GuideScreen guide) { guide.Click(102); });
  EXPECT_TRUE(left_);
  EXPECT_EQ(controller_->navigation, (Codes{0, 1}));
}

TEST_F(FTestGuideCommandsTest, NotApplicableAndSkipAreRecorded) {
  const auto element = Element();
  Perform(element, [](GuideScreen guide) { guide.Click(301); });
  EXPECT_TRUE(left_);
  EXPECT_EQ(controller_->navigation, (Codes{0, 4}));
  ASSERT_TRUE(element->Result());
  EXPECT_EQ(element->Result()->Status(), 3);

  controller_->navigation.clear();
  Perform(element, [](GuideScreen guide) { guide.Click(302); });
  EXPECT_TRUE(left_);
  EXPECT_EQ(controller_->navigation, (Codes{0, 3}));
  EXPECT_FALSE(element->Result());
}

TEST_F(FTestGuideCommandsTest, ButtonsThatAreNotOfferedDoNothing) {
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

TEST_F(FTestGuideCommandsTest, UnknownCommandDoesNothing) {
  const auto guide = keld::FTestGuide::Create();
  guide->Initialize(Element(), controller_);
  for (const int command : {0, -1, 100, 104, 501, 901})
    orvik::As<orvik::ITgToolbarEvents>(guide)->OnCommand(command);
  EXPECT_FALSE(guide->Running());
  EXPECT_TRUE(controller_->navigation.empty());
  EXPECT_TRUE(windows_.empty());
}

TEST_F(FTestGuideCommandsTest, PlayRunsTheTest) {
  const auto element = Element();
  Commands during;
  Commands after;
  std::string statusDuring;
  std::string statusAfter = "not read";
  int rowsDuring = -1;
  Perform(element, [&](GuideScreen guide) {
    When("STST", [&, guide] {
      during = guide.Enabled();
      statusDuring = guide.Toolbar()->StatusText();
      rowsDuring = guide.Results()->RowCount();
    });
    guide.Click(202);
    after = guide.Enabled();
    statusAfter = guide.Toolbar()->StatusText();
    EXPECT_EQ(guide.Results()->RowKeys(), Texts{"7::"});
    EXPECT_EQ(guide.Results()->Cell("7::", "VAL").text, "231  V");
  });
  EXPECT_EQ(during, (Commands{101, 201, 202}));
  EXPECT_EQ(statusDuring, kPerforming);
  EXPECT_EQ(rowsDuring, 0);
  EXPECT_EQ(after, (Commands{101, 102, 103, 202, 301, 302, 501, 900}));
  EXPECT_EQ(statusAfter, "");
  EXPECT_EQ(element->Result()->Status(), 1);
  EXPECT_EQ(controller_->finished, Codes{7});
  EXPECT_EQ(bench_.Wire().Sent().back(), "EREM");
}

TEST_F(FTestGuideCommandsTest, RunClearsTheResultView) {
  const auto element = Element();
  orvik::As<keld::CKELDLimitData>(element->Limits())->AddStandard(Standard("A", "1"));
  controller_->standards = Standards({"A"});
  int rows = -1;
  Perform(element, [&](GuideScreen guide) {
    guide.Click(202);
    EXPECT_EQ(guide.Results()->RowCount(), 1);
    EXPECT_TRUE(guide.Results()->Cell("7::", "VAL").bold);
    When("STST", [&, guide] { rows = guide.Results()->RowCount(); });
    // It failed, so play runs it again.
    guide.Click(202);
  });
  EXPECT_EQ(rows, 0);
  EXPECT_EQ(element->Result()->Status(), 2);
}

TEST_F(FTestGuideCommandsTest, TheStatusIsSaidBeforeTheResultViewIsCleared) {
  const auto language = support::WatchLanguage(bench_.Host());
  const auto element = Element();
  orvik::As<keld::CKELDLimitData>(element->Limits())->AddStandard(Standard("A", "1"));
  controller_->standards = Standards({"A"});
  int rows = -1;
  Perform(element, [&](GuideScreen guide) {
    guide.Click(202);
    language->onText = [&, guide](const std::string& text) {
      if (text.starts_with("20310::")) rows = guide.Results()->RowCount();
    };
    guide.Click(202);
    language->onText = nullptr;
  });
  EXPECT_EQ(rows, 1);
}

TEST_F(FTestGuideCommandsTest, TheTestIsStoppedBeforeTheStatusSaysSo) {
  const auto language = support::WatchLanguage(bench_.Host());
  const auto element = Element();
  const auto link = keld::CKELDInstrument::Create();
  const auto guide = keld::FTestGuide::Create();
  guide->Initialize(element, controller_);
  element->InitAutoRun(link, guide, controller_);
  bool said = false;
  language->onText = [&](const std::string& text) {
    if (!text.starts_with("20309::")) return;
    said = true;
    // A result that comes in now is dropped.
    std::int32_t status = 5;
    link->ResultReceived().Raise(status, 210);
  };
  orvik::As<orvik::ITgToolbarEvents>(guide)->OnCommand(201);
  language->onText = nullptr;
  EXPECT_TRUE(said);
  EXPECT_TRUE(element->Stopped());
  EXPECT_FALSE(element->Result());
}

TEST_F(FTestGuideCommandsTest, PlayGoesOnAfterATestThatPassed) {
  Perform(Element(), [](GuideScreen guide) {
    guide.Click(202);
    EXPECT_TRUE(guide.Form().Visible());
    guide.Click(202);
  });
  EXPECT_TRUE(left_);
  EXPECT_EQ(controller_->navigation, (Codes{0, 0}));
  EXPECT_EQ(controller_->finished, Codes{7});
}

TEST_F(FTestGuideCommandsTest, PlayRunsATestThatPassedInAnEarlierOpening) {
  const auto element = Element();
  Perform(element, [](GuideScreen guide) { guide.Click(202); });
  ASSERT_EQ(element->Result()->Status(), 1);
  Perform(element, [](GuideScreen guide) { guide.Click(202); });
  EXPECT_FALSE(left_);
  EXPECT_EQ(controller_->finished, (Codes{7, 7}));
}

TEST_F(FTestGuideCommandsTest, PlayRunsATestAgainWhenTheSameGuideIsOpenedAnew) {
  const auto element = Element();
  const auto guide = keld::FTestGuide::Create();
  const auto events = orvik::As<orvik::ITgToolbarEvents>(guide);
  for (const auto& finished : {Codes{7}, Codes{7, 7}}) {
    const auto link = keld::CKELDInstrument::Create();
    guide->Initialize(element, controller_);
    element->InitAutoRun(link, guide, controller_);
    events->OnCommand(202);
    EXPECT_EQ(controller_->finished, finished);
    EXPECT_TRUE(controller_->navigation.empty());
    link->DisconnectMTI();
  }
}

TEST_F(FTestGuideCommandsTest, PlayGoesOnAfterATestThatTheTesterLacks) {
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

TEST_F(FTestGuideCommandsTest, StopAndPlayStopARun) {
  for (const int command : {201, 202}) {
    const auto element = Element();
    std::string status;
    Perform(element, [&](GuideScreen guide) {
      When("STST", [&, guide] {
        guide.Click(command);
        status = guide.Toolbar()->StatusText();
      });
      guide.Click(202);
      EXPECT_EQ(guide.Results()->RowCount(), 0);
      EXPECT_EQ(guide.Enabled(), (Commands{101, 102, 103, 202, 301, 302, 501, 900}));
    });
    EXPECT_EQ(status, kStopping) << command;
    EXPECT_EQ(element->Result()->Status(), 0) << command;
    EXPECT_EQ(element->Result()->MeasurementCount(), 0) << command;
    EXPECT_TRUE(element->Stopped()) << command;
    EXPECT_EQ(bench_.Wire().Sent().back(), "EREM") << command;
  }
}

TEST_F(FTestGuideCommandsTest, StoppingTwiceDoesNoHarm) {
  const auto element = Element();
  Perform(element, [&](GuideScreen guide) {
    When("STST", [guide] {
      guide.Click(201);
      guide.Click(201);
      guide.Click(202);
    });
    guide.Click(202);
    EXPECT_EQ(element->Result()->Status(), 0);
    // And the next run is not touched by it.
    guide.Click(202);
  });
  EXPECT_EQ(element->Result()->Status(), 1);
}

TEST_F(FTestGuideCommandsTest, OnlyStopAndAbortActDuringARun) {
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

TEST_F(FTestGuideCommandsTest, TheTesterCannotBeChangedDuringARun) {
  // The lead resistance of another tester would make a protective earth look better than it is.
  const auto data = keld::CKELDData::Shared();
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

TEST_F(FTestGuideCommandsTest, CommandsFromElsewhereDoNotActDuringARunEither) {
  const auto element = Element();
  const auto guide = keld::FTestGuide::Create();
  guide->Initialize(element, controller_);
  element->InitAutoRun(keld::CKELDInstrument::Create(), guide, controller_);
  const auto events = orvik::As<orvik::ITgToolbarEvents>(guide);
  bool running = false;
  When("STST", [&] {
    running = guide->Running();
    for (const int command : {102, 103, 301, 302, 501, 900}) events->OnCommand(command);
  });
  events->OnCommand(202);
  EXPECT_TRUE(running);
  EXPECT_FALSE(guide->Running());
  EXPECT_TRUE(controller_->navigation.empty());
}

TEST_F(FTestGuideCommandsTest, RefusedStartLeavesTheGuideReady) {
  const auto element = Element();
  Perform(element, [&](GuideScreen guide) {
    controller_->mayStart = false;
    guide.Click(202);
    EXPECT_FALSE(element->Result());
    EXPECT_EQ(guide.Enabled(), (Commands{101, 102, 103, 202, 301, 302, 501, 900}));
    controller_->mayStart = true;
  });
  EXPECT_TRUE(bench_.Wire().Sent().empty());
}

// --- abort ---

TEST_F(FTestGuideCommandsTest, AbortAsksAndGoesOnAfterNo) {
  const auto element = Element();
  Perform(element, [&](GuideScreen guide) {
    guide.Click(101);
    EXPECT_TRUE(guide.Form().Visible());
  });
  EXPECT_EQ(windows_, Texts{"FYesNoPrompt"});
  EXPECT_FALSE(left_);
  EXPECT_EQ(controller_->navigation, Codes{0});
}

TEST_F(FTestGuideCommandsTest, AbortEndsAfterYes) {
  AnswerQuestions(true);
  const auto element = Element();
  Perform(element, [](GuideScreen guide) { guide.Click(101); });
  EXPECT_TRUE(left_);
  EXPECT_EQ(controller_->navigation, (Codes{0, 2}));
  EXPECT_EQ(element->Result()->Status(), 4);
}

TEST_F(FTestGuideCommandsTest, ClosingTheWindowIsAbort) {
  const auto element = Element();
  Perform(element, [&](GuideScreen guide) {
    guide.Form().Close();
    EXPECT_TRUE(guide.Form().Visible());
    EXPECT_EQ(windows_, Texts{"FYesNoPrompt"});
    AnswerQuestions(true);
    guide.Form().Close();
  });
  EXPECT_TRUE(left_);
  EXPECT_EQ(controller_->navigation, (Codes{0, 2}));
  EXPECT_EQ(element->Result()->Status(), 4);
}

TEST_F(FTestGuideCommandsTest, AbortDuringARunEndsTheSession) {
  AnswerQuestions(true);
  const auto element = Element();
  Perform(element, [&](GuideScreen guide) {
    When("STST", [guide] { guide.Click(101); });
    guide.Click(202);
    EXPECT_FALSE(guide.Form().Visible());
  });
  EXPECT_TRUE(left_);
  EXPECT_EQ(controller_->navigation, (Codes{0, 2}));
  EXPECT_EQ(element->Result()->Status(), 4);
  EXPECT_EQ(element->Result()->MeasurementCount(), 0);
  EXPECT_EQ(bench_.Wire().Sent().back(), "EREM");
  EXPECT_TRUE(App().Forms().empty());
}

TEST_F(FTestGuideCommandsTest, AbortDuringARunAnsweredNoLetsItFinish) {
  const auto element = Element();
  Perform(element, [&](GuideScreen guide) {
    When("STST", [guide] { guide.Click(101); });
    guide.Click(202);
  });
  EXPECT_FALSE(left_);
  EXPECT_EQ(windows_, Texts{"FYesNoPrompt"});
  EXPECT_EQ(element->Result()->Status(), 1);
}

TEST_F(FTestGuideCommandsTest, TheQuestionIsAskedOnce) {
  const auto element = Element();
  const auto guide = keld::FTestGuide::Create();
  guide->Initialize(element, controller_);
  element->InitAutoRun(nullptr, guide, controller_);
  guide->Form()->Show();
  const auto events = orvik::As<orvik::ITgToolbarEvents>(guide);
  onWindow_ = [&](const std::shared_ptr<orvik::platform::IForm>& form) {
    // Another request to end while the question is on the screen, past the window that it blocks.
    if (windows_.size() == 1) events->OnCommand(101);
    orvik::As<orvik::platform::IButton>(form->Find("cmdDecline"))->Click();
  };
  events->OnCommand(101);
  EXPECT_EQ(windows_, Texts{"FYesNoPrompt"});
  // And once more when it is asked for again.
  events->OnCommand(101);
  EXPECT_EQ(windows_, (Texts{"FYesNoPrompt", "FYesNoPrompt"}));
}

TEST_F(FTestGuideCommandsTest, GuideMayBeReleasedByWhatItsButtonDoes) {
  for (const int command : {101, 102, 103, 301, 302}) {
    AnswerQuestions(true);
    const auto element = Element();
    auto guide = keld::FTestGuide::Create();
    guide->Initialize(element, controller_);
    element->InitAutoRun(nullptr, guide, controller_);
    guide->Form()->Show();
    const auto screen = GuideScreen(guide->Form());
    const std::weak_ptr<keld::FTestGuide> weak = std::exchange(guide, nullptr);
    // From now on the element alone holds the guide, and lets go of it inside the button's call.
    controller_->onNavigation = [&] {
      weak.lock()->Unload();
      element->ResetAutoRun();
    };
    screen.Click(command);
    EXPECT_TRUE(weak.expired()) << command;
    EXPECT_TRUE(App().Forms().empty()) << command;
  }
  EXPECT_EQ(controller_->navigation, (Codes{2, 1, 0, 4, 3}));
}

// --- calibrate ---

TEST_F(FTestGuideCommandsTest, CalibrateShowsItsWindowOverTheGuide) {
  Texts forms;
  onWindow_ = [&](const std::shared_ptr<orvik::platform::IForm>& form) {
    forms.push_back(App().ActiveForm()->Name());
    orvik::As<orvik::platform::IButton>(form->Find("cmdCancel"))->Click();
  };
  int before = 0;
  Perform(Element(), [&](GuideScreen guide) {
    const auto panel = guide.Site("xstShowMTI")->Panel();
    before = panel->RefreshCount();
    guide.Click(900);
    EXPECT_EQ(panel->RefreshCount(), before) << "nothing to show after it was cancelled";
    EXPECT_TRUE(guide.Form().Visible());
    EXPECT_EQ(App().Forms().size(), 1U) << "the calibration window is unloaded";
  });
  EXPECT_EQ(forms, Texts{"FCalibrateLeads"});
}

TEST_F(FTestGuideCommandsTest, TheCalibrationBelongsToTheGuide) {
  const auto other = App().CreateForm("Other");
  onWindow_ = [&](const std::shared_ptr<orvik::platform::IForm>& form) {
    if (form->Name() != "FCalibrateLeads") return;
    // The window that was used last is another one; the owner is what comes back all the same.
    other->Show();
    orvik::As<orvik::platform::IButton>(form->Find("cmdCancel"))->Click();
  };
  Perform(Element(), [&](GuideScreen guide) {
    guide.Click(900);
    EXPECT_EQ(App().ActiveForm()->Name(), "FTestGuide");
  });
  other->Unload();
}

TEST_F(FTestGuideCommandsTest, StoredCalibrationIsShown) {
  onWindow_ = [&](const std::shared_ptr<orvik::platform::IForm>& form) {
    const auto press = [&](const char* button) {
      orvik::As<orvik::platform::IButton>(form->Find(button))->Click();
    };
    press("cmdCalibrate");
    press("cmdSave");
  };
  Perform(Element(), [&](GuideScreen guide) {
    const auto panel = guide.Site("xstShowMTI")->Panel();
    const int before = panel->RefreshCount();
    guide.Click(900);
    EXPECT_GT(panel->RefreshCount(), before);
    EXPECT_EQ(App().Forms().size(), 1U);
  });
  EXPECT_EQ(keld::CKELDData::Shared()->CalibValue(), 123);
}

}  // namespace

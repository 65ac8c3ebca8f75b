#include "OrvikTypeLib/IInformationRecord.h"
#include "instrument/CKELDData.h"
#include "tests/support/FailingLanguage.h"
#include "tests/ui/GuideTest.h"
#include "ui/FPretestPrompt.h"
#include "ui/FTestGuide.h"
#include "ui/FYesNoPrompt.h"

// With a language service that fails, every window can still be operated and closed.
namespace {

using Codes = std::vector<std::int32_t>;
using Commands = std::vector<int>;
using Texts = std::vector<std::string>;
using ui::GuideScreen;

class WithoutLanguageTest : public ui::GuideTest, public testing::WithParamInterface<support::LanguageFault> {
 protected:
  WithoutLanguageTest() { support::FailLanguage(bench_.Host(), GetParam()); }

  /// A test that is not from the catalogue, whose names are translated.
  static std::shared_ptr<keld::CKELDTestElement> PlainElement() {
    auto element = keld::CKELDTestElement::Create();
    element->Initialize("KELD(IN)", 7, 210);
    return element;
  }
  static void Press(const std::shared_ptr<orvik::platform::IForm>& form, const char* button) {
    orvik::Required(orvik::As<orvik::platform::IButton>(form->Find(button))).Click();
  }
};

TEST_P(WithoutLanguageTest, TheGuideShowsItsLiterals) {
  const auto guide = keld::FTestGuide::Create();
  guide->Initialize(PlainElement(), controller_);
  const GuideScreen screen(guide->Form());
  EXPECT_EQ(guide->Form()->Caption(), "200::TEST GUIDE");
  EXPECT_EQ(screen.Buttons()->CommandCaption(900), "20301::Calibrate...");
  EXPECT_EQ(screen.Enabled(), (Commands{101, 102, 103, 202, 301, 302, 501, 900}));
  EXPECT_NO_THROW(screen.InstrumentField<orvik::platform::IComboBox>("cboSerial"));
}

TEST_P(WithoutLanguageTest, TheGuideStillTellsWhichTestItIs) {
  const auto element = PlainElement();
  element->Information()->SetSecondText("Mains voltage");
  const auto guide = keld::FTestGuide::Create();
  guide->Initialize(element, controller_);
  EXPECT_NE(GuideScreen(guide->Form()).Pane("xtwWizard")->Guidance().find("Mains voltage"),
            std::string::npos);
}

TEST_P(WithoutLanguageTest, PlayRunsTheTestAndNextLeaves) {
  const auto element = PlainElement();
  std::string status;
  Perform(element, [&](GuideScreen guide) {
    When("STST", [&, guide] { status = guide.Toolbar()->StatusText(); });
    guide.Click(202);
    EXPECT_TRUE(guide.Form().Visible());
    EXPECT_EQ(guide.Enabled(), (Commands{101, 102, 103, 202, 301, 302, 501, 900}));
    guide.Click(103);
  });
  EXPECT_TRUE(left_);
  EXPECT_EQ(status, "20310::Performing safety test. Please wait...");
  EXPECT_EQ(element->Result()->Status(), 1);
  EXPECT_EQ(controller_->finished, Codes{7});
  EXPECT_EQ(controller_->navigation, (Codes{0, 0}));
  EXPECT_EQ(bench_.Wire().Sent().back(), "EREM");
}

TEST_P(WithoutLanguageTest, StopStopsTheRun) {
  const auto element = PlainElement();
  std::string status;
  Perform(element, [&](GuideScreen guide) {
    When("STST", [&, guide] {
      guide.Click(201);
      status = guide.Toolbar()->StatusText();
    });
    guide.Click(202);
  });
  EXPECT_EQ(status, "20309::Stopping safety test. Please wait...");
  EXPECT_EQ(element->Result()->Status(), 0);
  EXPECT_EQ(bench_.Wire().Sent().back(), "EREM");
}

TEST_P(WithoutLanguageTest, AbortAsksAndEndsOrGoesOn) {
  for (const bool yes : {false, true}) {
    for (const bool cross : {false, true}) {
      AnswerQuestions(yes);
      windows_.clear();
      controller_->navigation.clear();
      const auto element = PlainElement();
      Perform(element, [&](GuideScreen guide) { cross ? guide.Form().Close() : guide.Click(101); });
      EXPECT_EQ(windows_, Texts{"FYesNoPrompt"});
      EXPECT_EQ(left_, yes);
      EXPECT_EQ(controller_->navigation, yes ? (Codes{0, 2}) : Codes{0});
      EXPECT_EQ(element->Result()->Status(), yes ? 4 : 0);
      EXPECT_TRUE(App().Forms().empty());
    }
  }
}

TEST_P(WithoutLanguageTest, AbortDuringARunEndsTheSession) {
  AnswerQuestions(true);
  const auto element = PlainElement();
  Perform(element, [&](GuideScreen guide) {
    When("STST", [guide] { guide.Click(101); });
    guide.Click(202);
  });
  EXPECT_TRUE(left_);
  EXPECT_EQ(element->Result()->Status(), 4);
  EXPECT_EQ(bench_.Wire().Sent().back(), "EREM");
}

TEST_P(WithoutLanguageTest, TheOtherButtonsLeaveTheGuide) {
  for (const auto& [command, request] : {std::pair{102, 1}, {301, 4}, {302, 3}}) {
    controller_->navigation.clear();
    Perform(PlainElement(), [command = command](GuideScreen guide) { guide.Click(command); });
    EXPECT_TRUE(left_) << command;
    EXPECT_EQ(controller_->navigation, (Codes{0, request})) << command;
  }
}

TEST_P(WithoutLanguageTest, AMuteTesterIsReportedAndAcknowledged) {
  bench_.Line().AnswerBy([](const std::string&) {});
  std::string message;
  onWindow_ = [&](const std::shared_ptr<orvik::platform::IForm>& form) {
    message = form->Find("lblPrompt")->Caption();
    Press(form, "cmdOK");
  };
  const auto element = PlainElement();
  Perform(element, [](GuideScreen guide) { guide.Click(202); });
  EXPECT_EQ(windows_, Texts{"FPretestPrompt"});
  EXPECT_TRUE(message.starts_with("20803::Can not find a KELD attached to this system.")) << message;
  EXPECT_EQ(element->Result()->Status(), 0);
}

TEST_P(WithoutLanguageTest, TheCalibrationCanBeCancelledAndSaved) {
  for (const bool save : {false, true}) {
    windows_.clear();
    onWindow_ = [&](const std::shared_ptr<orvik::platform::IForm>& form) {
      Press(form, "cmdCalibrate");
      Press(form, save ? "cmdSave" : "cmdCancel");
    };
    Perform(PlainElement(), [&](GuideScreen guide) {
      guide.Click(900);
      EXPECT_TRUE(guide.Form().Visible());
      EXPECT_EQ(App().Forms().size(), 1U);
    });
    EXPECT_EQ(windows_, Texts{"FCalibrateLeads"});
    EXPECT_EQ(keld::CKELDData::Shared()->CalibValue(), save ? 123 : 0);
    EXPECT_FALSE(bench_.Tester().InRemoteMode());
  }
}

TEST_P(WithoutLanguageTest, TheQuestionIsAskedAndAnsweredByEveryButtonAndKey) {
  using Answer = std::function<void(orvik::platform::IForm&)>;
  const std::pair<Answer, std::int32_t> answers[] = {
      {[](auto& form) { orvik::As<orvik::platform::IButton>(form.Find("cmdAccept"))->Click(); }, 1},
      {[](auto& form) { orvik::As<orvik::platform::IButton>(form.Find("cmdDecline"))->Click(); }, 2},
      {[](auto& form) { form.PressKey(orvik::platform::kKeyY, 0); }, 1},
      {[](auto& form) { form.PressKey(orvik::platform::kKeyN, 0); }, 2},
      {[](auto& form) { form.Close(); }, 2},
  };
  onWindow_ = [](const auto&) {};
  for (const auto& [answer, option] : answers) {
    const auto prompt = keld::FYesNoPrompt::Create();
    Codes options;
    const auto answered = prompt->YesNoOption().Subscribe([&](std::int32_t o) { options.push_back(o); });
    prompt->SetPrompt("20999::Go on?");
    EXPECT_EQ(prompt->Form()->Find("lblPrompt")->Caption(), "20999::Go on?");
    EXPECT_EQ(prompt->Form()->Find("cmdAccept")->Caption(), "3::&Yes");
    App().Post([&, act = answer] { act(*prompt->Form()); });
    prompt->ShowModal();
    EXPECT_EQ(options, Codes{option});
    prompt->Unload();
    EXPECT_TRUE(App().Forms().empty());
  }
}

TEST_P(WithoutLanguageTest, TheInstructionIsShownAndAcknowledged) {
  onWindow_ = [](const auto&) {};
  for (const bool cross : {false, true}) {
    const auto prompt = keld::FPretestPrompt::Create();
    prompt->SetPrompt("Connect the lead.", "tag");
    EXPECT_EQ(prompt->Form()->Find("lblPrompt")->Caption(), "Connect the lead.");
    EXPECT_EQ(prompt->Form()->Find("cmdOK")->Caption(), "1::&OK");
    EXPECT_EQ(prompt->Form()->Caption(), "20001::orvik KELD(IN) plug-in");
    App().Post([&] { cross ? prompt->Form()->Close() : Press(prompt->Form(), "cmdOK"); });
    prompt->ShowModal();
    EXPECT_TRUE(App().Forms().empty());
  }
}

INSTANTIATE_TEST_SUITE_P(Language, WithoutLanguageTest,
                         testing::Values(support::LanguageFault::kRaisesHostError,
                                         support::LanguageFault::kRaisesAnythingElse,
                                         support::LanguageFault::kIsMissing),
                         [](const auto& tested) { return support::NameOf(tested.param); });

}  // namespace

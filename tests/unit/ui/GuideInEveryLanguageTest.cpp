#include <optional>

#include "OrvikTypeLib/IInformationRecord.h"
#include "instrument/CKELDData.h"
#include "tests/support/FailingLanguage.h"
#include "tests/unit/ui/GuideTest.h"
#include "ui/FPretestPrompt.h"
#include "ui/FYesNoPrompt.h"

// What each button and window is for: the same with a working language service, and with each way in which
// the service can fail.
namespace {

using Codes = std::vector<std::int32_t>;
using Commands = std::vector<int>;
using Texts = std::vector<std::string>;
using support::LanguageFault;
using ui::GuideScreen;

class GuideInEveryLanguageTest : public ui::GuideTest,
                                 public testing::WithParamInterface<std::optional<LanguageFault>> {
 protected:
  GuideInEveryLanguageTest() {
    if (GetParam()) support::FailLanguage(bench_.Host(), *GetParam());
  }

  /// What is shown for a literal: its English text, or the whole literal if the service fails.
  static std::string Shown(const std::string& literal) {
    return GetParam() ? literal : literal.substr(literal.find("::") + 2);
  }

  const Commands kReady{101, 102, 103, 202, 301, 302, 501, 900};
  // Not from the catalogue, whose names are translated.
  const std::shared_ptr<keld::model::CKELDTestElement> element_ = [] {
    auto element = keld::model::CKELDTestElement::Create();
    element->Initialize("KELD(IN)", 7, 210);
    return element;
  }();
};

TEST_P(GuideInEveryLanguageTest, ShowsItsTexts) {
  element_->Information()->SetSecondText("Mains voltage");
  const auto guide = Opened(element_);
  const GuideScreen screen(guide->Form());
  EXPECT_EQ(guide->Form()->Caption(), Shown("200::TEST GUIDE"));
  EXPECT_EQ(screen.Buttons()->CommandCaption(900), Shown("20301::Calibrate..."));
  EXPECT_EQ(screen.Enabled(), kReady);
  EXPECT_FALSE(guide->Running());
  EXPECT_TRUE(screen.InstrumentField<orvik::platform::IComboBox>("cboSerial"));
  EXPECT_NE(screen.Pane("xtwWizard")->Guidance().find("Mains voltage"), std::string::npos);
}

TEST_P(GuideInEveryLanguageTest, RunsTheTestOnPlay) {
  Commands enabled;
  std::string status;
  int rows = -1;
  Perform(element_, [&](GuideScreen guide) {
    When("STST", [&, guide] {
      enabled = guide.Enabled();
      status = guide.Toolbar()->StatusText();
      if (!GetParam()) rows = guide.Results()->RowCount();
    });
    guide.Click(202);
    EXPECT_TRUE(guide.Form().Visible());
    EXPECT_EQ(guide.Enabled(), kReady);
    EXPECT_EQ(guide.Toolbar()->StatusText(), "");
    if (GetParam()) return;  // without a language service there is no result view
    EXPECT_EQ(guide.Results()->RowKeys(), Texts{"7::"});
    EXPECT_EQ(guide.Results()->Cell("7::", "VAL").text, "231  V");
  });
  EXPECT_EQ(enabled, (Commands{101, 201, 202}));
  EXPECT_EQ(status, Shown("20310::Performing safety test. Please wait..."));
  EXPECT_EQ(rows, GetParam() ? -1 : 0);
  EXPECT_EQ(element_->Result()->Status(), 1);
  EXPECT_EQ(controller_->finished, Codes{7});
  EXPECT_EQ(bench_.Wire().Sent().back(), "EREM");
}

TEST_P(GuideInEveryLanguageTest, StopsTheRunOnStopOrPlay) {
  for (const int command : {201, 202}) {
    std::string status;
    Perform(element_, [&](GuideScreen guide) {
      When("STST", [&, guide] {
        guide.Click(command);
        status = guide.Toolbar()->StatusText();
      });
      guide.Click(202);
      EXPECT_EQ(guide.Enabled(), kReady);
      if (!GetParam()) {
        EXPECT_EQ(guide.Results()->RowCount(), 0);
      }
    });
    EXPECT_EQ(status, Shown("20309::Stopping safety test. Please wait...")) << command;
    EXPECT_EQ(element_->Result()->Status(), 0) << command;
    EXPECT_EQ(element_->Result()->MeasurementCount(), 0) << command;
    EXPECT_TRUE(element_->Stopped()) << command;
    EXPECT_EQ(bench_.Wire().Sent().back(), "EREM") << command;
  }
}

TEST_P(GuideInEveryLanguageTest, AsksBeforeItAborts) {
  for (const bool running : {false, true})
    for (const bool yes : {false, true})
      for (const bool close : {false, true}) {
        AnswerQuestions(yes);
        windows_.clear();
        controller_->navigation.clear();
        bench_.Wire().Clear();
        Perform(element_, [&](GuideScreen guide) {
          const auto abort = [=] { close ? guide.Form().Close() : guide.Click(101); };
          if (running) When("STST", abort);
          running ? guide.Click(202) : abort();
          EXPECT_EQ(guide.Form().Visible(), !yes);
        });
        EXPECT_EQ(windows_, Texts{"FYesNoPrompt"});
        EXPECT_EQ(left_, yes);
        EXPECT_EQ(controller_->navigation, yes ? (Codes{0, 2}) : Codes{0});
        EXPECT_EQ(element_->Result()->Status(), yes ? 4 : running ? 1 : 0);
        EXPECT_EQ(element_->Result()->MeasurementCount(), running && !yes ? 1 : 0);
        EXPECT_EQ(running, !bench_.Wire().Sent().empty() && bench_.Wire().Sent().back() == "EREM");
        EXPECT_TRUE(App().Forms().empty());
        element_->BaseElement()->SetResult(nullptr);
      }
}

TEST_P(GuideInEveryLanguageTest, LeavesOnTheOtherButtons) {
  for (const auto& [command, request, status] :
       {std::tuple{102, 1, 0}, {103, 0, 0}, {301, 4, 3}, {302, 3, -1}}) {
    controller_->navigation.clear();
    Perform(element_, [command = command](GuideScreen guide) { guide.Click(command); });
    EXPECT_TRUE(left_) << command;
    EXPECT_EQ(controller_->navigation, (Codes{0, request})) << command;
    EXPECT_EQ(element_->Result() ? element_->Result()->Status() : -1, status) << command;
  }
}

TEST_P(GuideInEveryLanguageTest, ReportsAMuteTester) {
  bench_.Line().AnswerBy([](const std::string&) {});
  std::string message;
  onWindow_ = [&](const std::shared_ptr<orvik::platform::IForm>& form) {
    message = form->Find("lblPrompt")->Caption();
    Press(form, "cmdOK");
  };
  Perform(element_, [](GuideScreen guide) { guide.Click(202); });
  EXPECT_EQ(windows_, Texts{"FPretestPrompt"});
  EXPECT_TRUE(message.starts_with(Shown("20803::Can not find a KELD attached to this system."))) << message;
  EXPECT_EQ(element_->Result()->Status(), 0);
}

TEST_P(GuideInEveryLanguageTest, CalibratesAndSavesOrCancels) {
  for (const bool save : {false, true}) {
    windows_.clear();
    onWindow_ = [&](const std::shared_ptr<orvik::platform::IForm>& form) {
      Press(form, "cmdCalibrate");
      Press(form, save ? "cmdSave" : "cmdCancel");
    };
    Perform(element_, [&](GuideScreen guide) {
      guide.Click(900);
      EXPECT_TRUE(guide.Form().Visible());
      EXPECT_EQ(App().Forms().size(), 1U);
    });
    EXPECT_EQ(windows_, Texts{"FCalibrateLeads"});
    EXPECT_EQ(keld::instrument::CKELDData::Shared()->CalibValue(), save ? 123 : 0);
    EXPECT_FALSE(bench_.Tester().InRemoteMode());
  }
}

TEST_P(GuideInEveryLanguageTest, AnswersAQuestionByButtonOrKey) {
  using Answer = std::function<void(const std::shared_ptr<orvik::platform::IForm>&)>;
  const std::pair<Answer, std::int32_t> answers[] = {
      {[](const auto& form) { Press(form, "cmdAccept"); }, 1},
      {[](const auto& form) { Press(form, "cmdDecline"); }, 2},
      {[](const auto& form) { form->PressKey(orvik::platform::kKeyY, 0); }, 1},
      {[](const auto& form) { form->PressKey(orvik::platform::kKeyN, 0); }, 2},
      {[](const auto& form) { form->Close(); }, 2},
  };
  onWindow_ = [](const auto&) {};
  for (const auto& [answer, option] : answers) {
    const auto prompt = keld::ui::FYesNoPrompt::Create();
    Codes options;
    const auto answered = prompt->YesNoOption().Subscribe([&](std::int32_t o) { options.push_back(o); });
    prompt->SetPrompt("20999::Go on?");
    EXPECT_EQ(prompt->Form()->Find("lblPrompt")->Caption(), Shown("20999::Go on?"));
    EXPECT_EQ(prompt->Form()->Find("cmdAccept")->Caption(), Shown("3::&Yes"));
    App().Post([&, act = answer] { act(prompt->Form()); });
    prompt->ShowModal();
    EXPECT_EQ(options, Codes{option});
    prompt->Unload();
    EXPECT_TRUE(App().Forms().empty());
  }
}

TEST_P(GuideInEveryLanguageTest, ShowsAnInstructionUntilAcknowledged) {
  onWindow_ = [](const auto&) {};
  for (const bool close : {false, true}) {
    const auto prompt = keld::ui::FPretestPrompt::Create();
    prompt->SetPrompt("Connect the lead.", "tag");
    EXPECT_EQ(prompt->Form()->Find("lblPrompt")->Caption(), "Connect the lead.");
    EXPECT_EQ(prompt->Form()->Find("cmdOK")->Caption(), Shown("1::&OK"));
    EXPECT_EQ(prompt->Form()->Caption(), Shown("20001::orvik KELD(IN) plug-in"));
    App().Post([&] { close ? prompt->Form()->Close() : Press(prompt->Form(), "cmdOK"); });
    prompt->ShowModal();
    EXPECT_TRUE(App().Forms().empty());
  }
}

INSTANTIATE_TEST_SUITE_P(Language, GuideInEveryLanguageTest,
                         testing::Values(std::nullopt, LanguageFault::kRaisesHostError,
                                         LanguageFault::kRaisesAnythingElse, LanguageFault::kIsMissing),
                         [](const auto& tested) {
                           return tested.param ? support::NameOf(*tested.param) : std::string("Works");
                         });

}  // namespace

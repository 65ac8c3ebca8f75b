#include <optional>
#include <string>
#include <vector>

#include "tests/unit/ui/PromptTest.h"

namespace {

using keld::ui::FYesNoPrompt;
using support::Numbers;

class FYesNoPromptTest : public support::PromptTest<FYesNoPrompt> {
 protected:
  FYesNoPromptTest()
      : answered_(
            prompt_->YesNoOption().Subscribe([this](std::int32_t option) { options_.push_back(option); })) {}

  Numbers options_;

 private:
  orvik::platform::Subscription answered_;
};

TEST_F(FYesNoPromptTest, SetsItsCaptionsOnLoad) {
  prompt_->Load();
  EXPECT_EQ(Form()->Caption(), "orvik KELD plug-in");
  EXPECT_EQ(Caption("lblPrompt"), "Do you want to end this test and discard all previous test results?");
  EXPECT_EQ(Caption("cmdAccept"), "&Yes");
  EXPECT_EQ(Caption("cmdDecline"), "&No");
}

TEST_F(FYesNoPromptTest, TranslatesItsTextsForItsModule) {
  const support::TemporaryFolder folder;
  support::SpeakByModule(host_.Host(), folder.Path());
  prompt_->Load();
  EXPECT_EQ(Form()->Caption(), "KELD 20450");
  EXPECT_EQ(Caption("lblPrompt"), "KELD 202");
  EXPECT_EQ(Caption("cmdAccept"), "KELD 3");
  EXPECT_EQ(Caption("cmdDecline"), "KELD 4");
  prompt_->SetPrompt("20999::Go on?");
  EXPECT_EQ(Caption("lblPrompt"), "KELD 20999");
}

TEST_F(FYesNoPromptTest, PassesItselfToItsNotices) {
  std::vector<FYesNoPrompt*> tellers;
  const auto listening = prompt_->YesNoStatusChanged().Subscribe(
      [&](std::int32_t, const std::shared_ptr<FYesNoPrompt>& form) { tellers.push_back(form.get()); });
  prompt_->Show();
  prompt_->Unload();
  EXPECT_EQ(tellers, (std::vector<FYesNoPrompt*>(3, prompt_.get())));
}

TEST_F(FYesNoPromptTest, SetsItsCaptionsBeforeItNotifiesLoading) {
  std::string question;
  const auto listening = prompt_->YesNoStatusChanged().Subscribe([&](std::int32_t status, const auto&) {
    if (status == 1) question = Caption("lblPrompt");
  });
  prompt_->SetPrompt("20999::Go on?");
  EXPECT_EQ(question, "Do you want to end this test and discard all previous test results?");
  EXPECT_EQ(Caption("lblPrompt"), "Go on?");
}

TEST_F(FYesNoPromptTest, RestoresTheDefaultQuestionOnLoad) {
  prompt_->SetPrompt("20999::Go on?");
  prompt_->Unload();
  prompt_->Load();
  EXPECT_EQ(Caption("lblPrompt"), "Do you want to end this test and discard all previous test results?");
}

TEST_F(FYesNoPromptTest, LoadsAndTranslatesButDoesNotShow) {
  prompt_->SetPrompt("20999::Go on?");
  EXPECT_EQ(statuses_, Numbers{1});
  EXPECT_EQ(Caption("lblPrompt"), "Go on?");
  EXPECT_EQ(Caption("cmdAccept"), "&Yes");
  EXPECT_FALSE(Form()->Visible());
  prompt_->SetPrompt("20998::Really?");
  EXPECT_EQ(statuses_, Numbers{1});
  EXPECT_EQ(Caption("lblPrompt"), "Really?");
}

TEST_F(FYesNoPromptTest, IsTopmostBeforeItNotifiesActivation) {
  std::optional<bool> topmost;
  std::optional<bool> activated;
  const auto listening = prompt_->YesNoStatusChanged().Subscribe([&](std::int32_t status, const auto& form) {
    if (status != 2) return;
    topmost = form->Form()->Topmost();
    activated = form->Activated();
  });
  prompt_->Show();
  EXPECT_EQ(topmost, true);
  EXPECT_EQ(activated, true);
}

TEST_F(FYesNoPromptTest, AnswersAndHidesOnAButton) {
  for (const auto& [button, option] : {std::pair<const char*, int>{"cmdAccept", 1}, {"cmdDecline", 2}}) {
    options_.clear();
    prompt_->Show();
    Click(button);
    EXPECT_EQ(options_, Numbers{option});
    EXPECT_FALSE(Form()->Visible());
    EXPECT_TRUE(Form()->Loaded()) << "the caller unloads it";
  }
}

TEST_F(FYesNoPromptTest, NotifiesTheAnswerBeforeItHides) {
  std::optional<bool> visible;
  const auto listening = prompt_->YesNoOption().Subscribe([&](std::int32_t) { visible = Form()->Visible(); });
  prompt_->Show();
  Click("cmdAccept");
  EXPECT_EQ(visible, true);
}

TEST_F(FYesNoPromptTest, AnswersOnYAndNWithAnyShiftState) {
  for (int shift = 0; shift < 8; ++shift) {
    for (const auto& [key, option] : {std::pair<int, int>{89, 1}, {78, 2}}) {
      options_.clear();
      prompt_->Show();
      Form()->PressKey(key, shift);
      EXPECT_EQ(options_, Numbers{option}) << shift;
      EXPECT_FALSE(Form()->Visible());
    }
  }
}

TEST_F(FYesNoPromptTest, IgnoresOtherKeys) {
  prompt_->Show();
  for (const int key : {27, 65, 77, 79, 88, 90, 121, 110}) Form()->PressKey(key, 0);
  EXPECT_TRUE(options_.empty());
  EXPECT_TRUE(Form()->Visible());
}

TEST_F(FYesNoPromptTest, AnswersNoOnReturn) {
  prompt_->Show();
  Form()->PressKey(orvik::platform::kKeyReturn, 0);
  EXPECT_EQ(options_, Numbers{2}) << "no has the focus";
}

TEST_F(FYesNoPromptTest, AnswersNoWhenClosed) {
  prompt_->Show();
  Form()->Close();
  EXPECT_EQ(options_, Numbers{2});
  EXPECT_FALSE(Form()->Visible());
  EXPECT_TRUE(Form()->Loaded());
}

TEST_F(FYesNoPromptTest, MayBeReleasedInsideItsAnswer) {
  auto prompt = FYesNoPrompt::Create();
  const auto form = prompt->Form();
  const auto listening = prompt->YesNoOption().Subscribe([&](std::int32_t) {
    prompt->Unload();
    prompt.reset();
  });
  prompt->Show();
  support::ClickOn(*form, "cmdAccept");
  EXPECT_FALSE(prompt);
  EXPECT_FALSE(form->Loaded());
}

}  // namespace

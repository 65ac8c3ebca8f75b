#include <optional>
#include <string>

#include "tests/unit/ui/PromptTest.h"

namespace {

using support::Numbers;

using FPretestPromptTest = support::PromptTest<keld::ui::FPretestPrompt>;

TEST_F(FPretestPromptTest, TranslatesTitleAndButtonForItsModule) {
  const support::TemporaryFolder folder;
  support::SpeakByModule(host_.Host(), folder.Path());
  prompt_->SetPrompt("20999::Go on?", "");
  EXPECT_EQ(Form()->Caption(), "KELD 20001");
  EXPECT_EQ(Caption("cmdOK"), "KELD 1");
  EXPECT_EQ(Caption("lblPrompt"), "20999::Go on?");
}

TEST_F(FPretestPromptTest, ShowsItsTextUntranslated) {
  for (const char* text : {"Connect the lead.", "20803::not translated", "::", "a %%1 b", ""}) {
    prompt_->SetPrompt(text, "");
    EXPECT_EQ(Caption("lblPrompt"), text);
    prompt_->Show();
    EXPECT_EQ(Caption("lblPrompt"), text);
  }
}

TEST_F(FPretestPromptTest, SetsTagAndCaptionsAndLoads) {
  prompt_->SetPrompt("Connect the lead.", "CommsError");
  EXPECT_EQ(prompt_->Tag(), "CommsError");
  EXPECT_EQ(Form()->Caption(), "orvik KELD(IN) plug-in");
  EXPECT_EQ(Caption("cmdOK"), "&OK");
  EXPECT_EQ(statuses_, Numbers{1});
  EXPECT_TRUE(Form()->Loaded());
  EXPECT_FALSE(Form()->Visible());
  prompt_->SetPrompt("And the other.", "Other");
  EXPECT_EQ(prompt_->Tag(), "Other");
  EXPECT_EQ(statuses_, Numbers{1});
}

TEST_F(FPretestPromptTest, SetsTheActivatedFlagAfterTheNotice) {
  std::optional<bool> topmost;
  std::optional<bool> activated;
  const auto listening = prompt_->PromptStatus().Subscribe([&](std::int32_t status) {
    if (status != 2) return;
    topmost = Form()->Topmost();
    activated = prompt_->Activated();
  });
  prompt_->SetPrompt("Connect the lead.", "");
  prompt_->Show();
  EXPECT_EQ(topmost, true);
  EXPECT_EQ(activated, false);
  EXPECT_TRUE(prompt_->Activated());
}

TEST_F(FPretestPromptTest, OKUnloads) {
  prompt_->SetPrompt("Connect the lead.", "");
  prompt_->Show();
  Click("cmdOK");
  EXPECT_EQ(statuses_, (Numbers{1, 2, 3}));
  EXPECT_FALSE(Form()->Loaded());
}

TEST_F(FPretestPromptTest, TheCrossAcknowledgesToo) {
  prompt_->SetPrompt("Connect the lead.", "");
  prompt_->Show();
  Form()->Close();
  EXPECT_EQ(statuses_, (Numbers{1, 2, 3}));
  EXPECT_FALSE(Form()->Loaded());
}

}  // namespace

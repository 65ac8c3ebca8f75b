#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "OrvikTypeLib/As.h"
#include "platform/Controls.h"
#include "platform/IForm.h"
#include "tests/support/HostOnly.h"
#include "ui/FPretestPrompt.h"

namespace {

using keld::FPretestPrompt;
using Numbers = std::vector<std::int32_t>;

class FPretestPromptTest : public testing::Test {
 protected:
  FPretestPromptTest() {
    prompt_ = FPretestPrompt::Create();
    changed_ =
        prompt_->PromptStatus().Subscribe([this](std::int32_t status) { statuses_.push_back(status); });
  }

  std::string Caption(const std::string& name) const { return prompt_->Form()->Find(name)->Caption(); }
  void ClickOK() { orvik::As<orvik::platform::IButton>(prompt_->Form()->Find("cmdOK"))->Click(); }

  support::HostOnly host_;
  std::shared_ptr<FPretestPrompt> prompt_;
  Numbers statuses_;
  orvik::platform::Subscription changed_;
};

TEST_F(FPretestPromptTest, ShowsTheTextAsItStands) {
  for (const char* text : {"Connect the lead.", "20803::not translated", "::", "a %%1 b", ""}) {
    prompt_->SetPrompt(text, "");
    EXPECT_EQ(Caption("lblPrompt"), text);
    prompt_->Show();
    EXPECT_EQ(Caption("lblPrompt"), text);
  }
}

TEST_F(FPretestPromptTest, SettingAPromptKeepsTheTagSetsCaptionsAndLoads) {
  prompt_->SetPrompt("Connect the lead.", "CommsError");
  EXPECT_EQ(prompt_->Tag(), "CommsError");
  EXPECT_EQ(prompt_->Form()->Caption(), "orvik KELD(IN) plug-in");
  EXPECT_EQ(Caption("cmdOK"), "&OK");
  EXPECT_EQ(statuses_, Numbers{1});
  EXPECT_TRUE(prompt_->Form()->Loaded());
  EXPECT_FALSE(prompt_->Form()->Visible());
  prompt_->SetPrompt("And the other.", "Other");
  EXPECT_EQ(prompt_->Tag(), "Other");
  EXPECT_EQ(statuses_, Numbers{1});
}

TEST_F(FPretestPromptTest, ActivationIsToldEachTimeAndPutsTheWindowOnTop) {
  prompt_->SetPrompt("Connect the lead.", "");
  prompt_->Show();
  EXPECT_EQ(statuses_, (Numbers{1, 2}));
  EXPECT_TRUE(prompt_->Form()->Topmost());
  EXPECT_TRUE(prompt_->Activated());
  const auto other = host_.Application().CreateForm("Other");
  other->Show();
  prompt_->Form()->SetTopmost(false);
  prompt_->Form()->Activate();
  EXPECT_EQ(statuses_, (Numbers{1, 2, 2}));
  EXPECT_TRUE(prompt_->Form()->Topmost());
  other->Unload();
}

TEST_F(FPretestPromptTest, FlagIsSetAfterTheNotice) {
  std::optional<bool> topmost;
  std::optional<bool> activated;
  const auto listening = prompt_->PromptStatus().Subscribe([&](std::int32_t status) {
    if (status != 2) return;
    topmost = prompt_->Form()->Topmost();
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
  ClickOK();
  EXPECT_EQ(statuses_, (Numbers{1, 2, 3}));
  EXPECT_FALSE(prompt_->Form()->Loaded());
}

TEST_F(FPretestPromptTest, TheCrossAcknowledgesToo) {
  prompt_->SetPrompt("Connect the lead.", "");
  prompt_->Show();
  prompt_->Form()->Close();
  EXPECT_EQ(statuses_, (Numbers{1, 2, 3}));
  EXPECT_FALSE(prompt_->Form()->Loaded());
}

TEST_F(FPretestPromptTest, ModalDisplayEndsWithOK) {
  prompt_->SetPrompt("Connect the lead.", "");
  host_.Application().Post([this] { ClickOK(); });
  prompt_->ShowModal();
  EXPECT_EQ(statuses_, (Numbers{1, 2, 3}));
}

TEST_F(FPretestPromptTest, LoadingAgainClearsTheActivatedFlag) {
  prompt_->SetPrompt("Connect the lead.", "");
  prompt_->Show();
  prompt_->Unload();
  prompt_->Unload();
  prompt_->Load();
  EXPECT_FALSE(prompt_->Activated());
  EXPECT_EQ(statuses_, (Numbers{1, 2, 3, 1}));
}

TEST_F(FPretestPromptTest, OwnerMayUnloadAndReleaseItFromInsideItsEvents) {
  for (const int when : {1, 2, 3}) {
    auto prompt = FPretestPrompt::Create();
    const auto form = prompt->Form();
    const std::weak_ptr<FPretestPrompt> weak = prompt;
    const auto listening = prompt->PromptStatus().Subscribe([&](std::int32_t status) {
      if (status != when || !prompt) return;
      const auto itself = std::exchange(prompt, nullptr);
      itself->Unload();
    });
    const auto kept = prompt;
    kept->SetPrompt("Connect the lead.", "");
    kept->Show();
    kept->Unload();
    EXPECT_FALSE(prompt) << when;
    EXPECT_FALSE(form->Loaded()) << when;
  }
}

TEST_F(FPretestPromptTest, LettingGoUnloadsTheWindow) {
  prompt_->SetPrompt("Connect the lead.", "");
  prompt_->Show();
  const auto form = prompt_->Form();
  prompt_.reset();
  EXPECT_FALSE(form->Loaded());
  EXPECT_TRUE(host_.Application().Forms().empty());
}

}  // namespace

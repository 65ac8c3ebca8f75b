#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "OrvikTypeLib/As.h"
#include "platform/Controls.h"
#include "platform/IForm.h"
#include "tests/support/HostOnly.h"
#include "ui/FYesNoPrompt.h"

namespace {

using keld::FYesNoPrompt;
using Numbers = std::vector<std::int32_t>;

class FYesNoPromptTest : public testing::Test {
 protected:
  FYesNoPromptTest() {
    prompt_ = FYesNoPrompt::Create();
    answered_ = prompt_->YesNoOption().Subscribe([this](std::int32_t option) { options_.push_back(option); });
    changed_ = prompt_->YesNoStatusChanged().Subscribe(
        [this](std::int32_t status, const std::shared_ptr<FYesNoPrompt>& form) {
          statuses_.push_back(status);
          tellers_.push_back(form.get());
        });
  }

  std::string Caption(const std::string& name) const { return prompt_->Form()->Find(name)->Caption(); }
  std::shared_ptr<orvik::platform::IButton> Button(const std::string& name) const {
    return orvik::As<orvik::platform::IButton>(prompt_->Form()->Find(name));
  }

  support::HostOnly host_;
  std::shared_ptr<FYesNoPrompt> prompt_;
  Numbers options_;
  Numbers statuses_;
  std::vector<FYesNoPrompt*> tellers_;
  orvik::platform::Subscription answered_;
  orvik::platform::Subscription changed_;
};

TEST_F(FYesNoPromptTest, LoadingSetsTheCaptions) {
  prompt_->Load();
  EXPECT_EQ(prompt_->Form()->Caption(), "orvik KELD plug-in");
  EXPECT_EQ(Caption("lblPrompt"), "Do you want to end this test and discard all previous test results?");
  EXPECT_EQ(Caption("cmdAccept"), "&Yes");
  EXPECT_EQ(Caption("cmdDecline"), "&No");
}

TEST_F(FYesNoPromptTest, LoadingIsToldOnceWithTheFormItself) {
  prompt_->Load();
  prompt_->Load();
  EXPECT_EQ(statuses_, Numbers{1});
  EXPECT_EQ(tellers_, std::vector<FYesNoPrompt*>{prompt_.get()});
  EXPECT_FALSE(prompt_->Activated());
  EXPECT_FALSE(prompt_->Form()->Visible());
}

TEST_F(FYesNoPromptTest, SettingAPromptLoadsAndTranslatesButDoesNotShow) {
  prompt_->SetPrompt("20999::Go on?");
  EXPECT_EQ(statuses_, Numbers{1});
  EXPECT_EQ(Caption("lblPrompt"), "Go on?");
  EXPECT_EQ(Caption("cmdAccept"), "&Yes");
  EXPECT_FALSE(prompt_->Form()->Visible());
  prompt_->SetPrompt("20998::Really?");
  EXPECT_EQ(statuses_, Numbers{1});
  EXPECT_EQ(Caption("lblPrompt"), "Really?");
}

TEST_F(FYesNoPromptTest, ActivationIsToldEachTimeAndPutsTheWindowOnTop) {
  prompt_->Show();
  EXPECT_EQ(statuses_, (Numbers{1, 2}));
  EXPECT_TRUE(prompt_->Activated());
  EXPECT_TRUE(prompt_->Form()->Topmost());
  const auto other = host_.Application().CreateForm("Other");
  other->Show();
  prompt_->Form()->SetTopmost(false);
  prompt_->Form()->Activate();
  EXPECT_EQ(statuses_, (Numbers{1, 2, 2}));
  EXPECT_TRUE(prompt_->Form()->Topmost());
  other->Unload();
}

TEST_F(FYesNoPromptTest, WindowIsOnTopWhenItsActivationIsTold) {
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

TEST_F(FYesNoPromptTest, ButtonsAnswerAndHide) {
  for (const auto& [button, option] : {std::pair<const char*, int>{"cmdAccept", 1}, {"cmdDecline", 2}}) {
    options_.clear();
    prompt_->Show();
    Button(button)->Click();
    EXPECT_EQ(options_, Numbers{option});
    EXPECT_FALSE(prompt_->Form()->Visible());
    EXPECT_TRUE(prompt_->Form()->Loaded()) << "its owner unloads it";
  }
}

TEST_F(FYesNoPromptTest, AnswerIsToldBeforeTheWindowHides) {
  std::optional<bool> visible;
  const auto listening =
      prompt_->YesNoOption().Subscribe([&](std::int32_t) { visible = prompt_->Form()->Visible(); });
  prompt_->Show();
  Button("cmdAccept")->Click();
  EXPECT_EQ(visible, true);
}

TEST_F(FYesNoPromptTest, KeysAnswerWhateverTheShiftState) {
  for (int shift = 0; shift < 4; ++shift) {
    for (const auto& [key, option] : {std::pair<int, int>{89, 1}, {78, 2}}) {
      options_.clear();
      prompt_->Show();
      prompt_->Form()->PressKey(key, shift);
      EXPECT_EQ(options_, Numbers{option}) << shift;
      EXPECT_FALSE(prompt_->Form()->Visible());
    }
  }
}

TEST_F(FYesNoPromptTest, OtherKeysAreIgnored) {
  prompt_->Show();
  for (const int key : {27, 65, 77, 79, 88, 90, 121, 110}) prompt_->Form()->PressKey(key, 0);
  EXPECT_TRUE(options_.empty());
  EXPECT_TRUE(prompt_->Form()->Visible());
}

TEST_F(FYesNoPromptTest, ReturnAloneIsNoConsent) {
  prompt_->Show();
  prompt_->Form()->PressKey(orvik::platform::kKeyReturn, 0);
  for (const std::int32_t option : options_) EXPECT_EQ(option, 2);
}

TEST_F(FYesNoPromptTest, TheCrossIsNo) {
  prompt_->Show();
  prompt_->Form()->Close();
  EXPECT_EQ(options_, Numbers{2});
  EXPECT_FALSE(prompt_->Form()->Visible());
  EXPECT_TRUE(prompt_->Form()->Loaded());
}

TEST_F(FYesNoPromptTest, UnloadingIsToldOnce) {
  prompt_->Show();
  prompt_->Unload();
  prompt_->Unload();
  EXPECT_EQ(statuses_, (Numbers{1, 2, 3}));
  EXPECT_TRUE(options_.empty());
  EXPECT_FALSE(prompt_->Form()->Loaded());
}

TEST_F(FYesNoPromptTest, LoadingAgainClearsTheActivatedFlag) {
  prompt_->Show();
  prompt_->Unload();
  prompt_->Load();
  EXPECT_FALSE(prompt_->Activated());
  EXPECT_EQ(statuses_, (Numbers{1, 2, 3, 1}));
}

TEST_F(FYesNoPromptTest, ModalDisplayEndsWithTheAnswer) {
  host_.Application().Post([this] { Button("cmdAccept")->Click(); });
  prompt_->ShowModal();
  EXPECT_EQ(options_, Numbers{1});
}

TEST_F(FYesNoPromptTest, OwnerMayUnloadAndReleaseItFromInsideItsEvents) {
  for (const int when : {1, 2, 3}) {
    auto prompt = FYesNoPrompt::Create();
    const auto form = prompt->Form();
    const std::weak_ptr<FYesNoPrompt> weak = prompt;
    const auto listening =
        prompt->YesNoStatusChanged().Subscribe([&](std::int32_t status, const auto& itself) {
          if (status != when) return;
          prompt.reset();
          itself->Unload();
        });
    prompt->Show();
    if (prompt) prompt->Unload();
    prompt.reset();
    EXPECT_TRUE(weak.expired()) << when;
    form->Unload();
  }
}

TEST_F(FYesNoPromptTest, OwnerMayUnloadAndReleaseItFromInsideTheAnswer) {
  auto prompt = FYesNoPrompt::Create();
  const auto form = prompt->Form();
  const auto listening = prompt->YesNoOption().Subscribe([&](std::int32_t) {
    prompt->Unload();
    prompt.reset();
  });
  prompt->Show();
  orvik::As<orvik::platform::IButton>(form->Find("cmdAccept"))->Click();
  EXPECT_FALSE(prompt);
  EXPECT_FALSE(form->Loaded());
}

TEST_F(FYesNoPromptTest, LettingGoUnloadsTheWindow) {
  prompt_->Show();
  const auto form = prompt_->Form();
  prompt_.reset();
  EXPECT_FALSE(form->Loaded());
  EXPECT_TRUE(host_.Application().Forms().empty());
}

}  // namespace

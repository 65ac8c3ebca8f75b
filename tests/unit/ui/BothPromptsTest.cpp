#include <algorithm>
#include <optional>
#include <type_traits>
#include <utility>

#include "tests/unit/ui/PromptTest.h"

// The common behaviour of the two prompts.
namespace {

using support::ClickOn;
using support::FirstButton;
using support::Numbers;
using support::OnStatus;
using support::SetText;

template <class Prompt>
class BothPromptsTest : public support::PromptTest<Prompt> {
 protected:
  BothPromptsTest() { SetText(*this->prompt_); }
};

using Prompts = testing::Types<keld::ui::FYesNoPrompt, keld::ui::FPretestPrompt>;

struct PromptNames {
  template <class Prompt>
  static std::string GetName(int) {
    return std::is_same_v<Prompt, keld::ui::FYesNoPrompt> ? "FYesNoPrompt" : "FPretestPrompt";
  }
};

TYPED_TEST_SUITE(BothPromptsTest, Prompts, PromptNames);

TYPED_TEST(BothPromptsTest, NotifiesLoadingOnceAndStaysHidden) {
  EXPECT_EQ(this->statuses_, Numbers{1});
  this->prompt_->Load();
  SetText(*this->prompt_);
  EXPECT_EQ(this->statuses_, Numbers{1});
  EXPECT_TRUE(this->Form()->Loaded());
  EXPECT_FALSE(this->Form()->Visible());
  EXPECT_FALSE(this->prompt_->Activated());
}

TYPED_TEST(BothPromptsTest, NotifiesEachActivationAndStaysOnTop) {
  EXPECT_FALSE(this->Form()->Topmost());
  this->prompt_->Show();
  EXPECT_EQ(this->statuses_, (Numbers{1, 2}));
  EXPECT_TRUE(this->prompt_->Activated());
  EXPECT_TRUE(this->Form()->Topmost());

  const auto other = this->host_.Application().CreateForm("Other");
  other->Show();
  ASSERT_TRUE(other->Active());
  EXPECT_TRUE(this->Form()->Topmost()) << "it stays above a window that was shown later";
  this->Form()->SetTopmost(false);
  this->Form()->Activate();
  EXPECT_EQ(this->statuses_, (Numbers{1, 2, 2}));
  EXPECT_TRUE(this->Form()->Topmost());
  other->Unload();
}

TYPED_TEST(BothPromptsTest, KeepsPlaceAndSizeWhenShown) {
  const orvik::platform::Rect place{700, 800, 5000, 2500};
  this->Form()->SetBounds(place);
  this->prompt_->Show();
  EXPECT_EQ(this->Form()->Bounds(), place);
}

TYPED_TEST(BothPromptsTest, DoesNotBlockOtherWindows) {
  const auto other = this->host_.Application().CreateForm("Other");
  const auto button = other->AddButton("cmd");
  int clicks = 0;
  const auto clicked = button->Clicked().Subscribe([&] { ++clicks; });
  other->Show();
  this->prompt_->Show();
  button->Click();
  EXPECT_EQ(clicks, 1) << "other windows answer the operator meanwhile";
  other->Unload();
}

TYPED_TEST(BothPromptsTest, EndsItsModalDisplayOnTheButton) {
  this->host_.Application().Post([this] { this->Click(FirstButton(*this->prompt_)); });
  this->prompt_->ShowModal();
  EXPECT_FALSE(this->Form()->Visible());
  EXPECT_EQ(this->statuses_.at(1), 2);
}

TYPED_TEST(BothPromptsTest, NotifiesUnloadingOnce) {
  this->prompt_->Show();
  this->prompt_->Unload();
  this->prompt_->Unload();
  EXPECT_EQ(this->statuses_, (Numbers{1, 2, 3}));
  EXPECT_FALSE(this->Form()->Loaded());
}

TYPED_TEST(BothPromptsTest, DoesNotNotifyUnloadingIfNeverLoaded) {
  const auto fresh = TypeParam::Create();
  Numbers told;
  const auto listening = OnStatus(*fresh, [&](std::int32_t status) { told.push_back(status); });
  fresh->Unload();
  EXPECT_TRUE(told.empty());
}

TYPED_TEST(BothPromptsTest, ClearsTheActivatedFlagOnLoad) {
  this->prompt_->Show();
  ASSERT_TRUE(this->prompt_->Activated());
  this->prompt_->Unload();
  std::optional<bool> activated;
  const auto listening = OnStatus(*this->prompt_, [&](std::int32_t status) {
    if (status == 1) activated = this->prompt_->Activated();
  });
  this->prompt_->Load();
  EXPECT_EQ(activated, false);
  EXPECT_EQ(this->statuses_, (Numbers{1, 2, 3, 1}));
}

TYPED_TEST(BothPromptsTest, MayBeReleasedInsideItsNotices) {
  for (const int when : {1, 2, 3}) {
    auto prompt = TypeParam::Create();
    const std::weak_ptr<TypeParam> watched = prompt;
    const std::weak_ptr<orvik::platform::IForm> window = prompt->Form();
    Numbers told;
    const auto listening = OnStatus(*prompt, [&](std::int32_t status) {
      told.push_back(status);
      if (status != when) return;
      if (const auto itself = std::exchange(prompt, nullptr)) itself->Unload();
    });
    // No call keeps the prompt alive from outside.
    SetText(*prompt);
    if (prompt) prompt->Show();
    if (prompt) prompt->Unload();
    EXPECT_EQ(std::count(told.begin(), told.end(), when), 1);
    EXPECT_FALSE(prompt) << when;
    EXPECT_TRUE(watched.expired()) << when;
    EXPECT_TRUE(window.expired()) << when;
  }
}

TYPED_TEST(BothPromptsTest, MayBeReleasedWhileItsWindowUnloads) {
  auto prompt = TypeParam::Create();
  const std::weak_ptr<TypeParam> watched = prompt;
  SetText(*prompt);
  prompt->Show();
  const auto form = prompt->Form();
  const auto listening = form->Unloading().Subscribe([&] { prompt.reset(); });
  ClickOn(*form, FirstButton(*prompt));
  if (prompt) prompt->Unload();
  EXPECT_TRUE(watched.expired());
  EXPECT_FALSE(form->Loaded());
}

TYPED_TEST(BothPromptsTest, UnloadsWithoutANoticeWhenDestroyed) {
  this->prompt_->Show();
  const auto form = this->Form();
  this->prompt_.reset();
  EXPECT_FALSE(form->Loaded());
  EXPECT_TRUE(this->host_.Application().Forms().empty());
  EXPECT_EQ(this->statuses_, (Numbers{1, 2}));
}

}  // namespace

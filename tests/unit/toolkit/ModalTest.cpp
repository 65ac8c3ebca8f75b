#include "tests/unit/toolkit/ToolkitTest.h"

namespace toolkit::headless {
namespace {

/// Forms that are shown modally, and what that does to the others.
class ModalTest : public ToolkitTest {
 protected:
  ModalTest() {
    guide->AddButton("cmd");
    prompt->AddButton("cmd");
  }

  static std::shared_ptr<platform::IButton> ButtonOf(const std::shared_ptr<platform::IForm>& form) {
    return std::dynamic_pointer_cast<platform::IButton>(form->Find("cmd"));
  }

  std::shared_ptr<platform::IForm> guide = app->CreateForm("FTestGuide");
  std::shared_ptr<platform::IForm> prompt = app->CreateForm("FYesNoPrompt");
};

TEST_F(ModalTest, WaitsUntilTheFormIsHidden) {
  app->CallAt(5s, [&] { guide->Hide(); });
  guide->ShowModal(nullptr);
  EXPECT_EQ(app->Now(), 5s);
  EXPECT_TRUE(guide->Loaded());
}

TEST_F(ModalTest, WaitsUntilTheFormIsUnloaded) {
  app->CallAt(5s, [&] { guide->Unload(); });
  guide->ShowModal(nullptr);
  EXPECT_EQ(app->Now(), 5s);
  EXPECT_FALSE(guide->Loaded());
}

TEST_F(ModalTest, ReturnsAtOnceIfUnloadedWhenShown) {
  On(app->FormShown(), [](const std::shared_ptr<platform::IForm>& form) { form->Unload(); });
  guide->ShowModal(nullptr);
  EXPECT_EQ(app->Now(), 0s);
}

TEST_F(ModalTest, EndsTheWaitIfHiddenAndShownAgain) {
  app->CallAt(1s, [&] {
    guide->Hide();
    guide->Show();
  });
  guide->ShowModal(nullptr);
  EXPECT_TRUE(guide->Visible());
}

TEST_F(ModalTest, BlocksTheOthers) {
  guide->Show();
  auto behind = Count(ButtonOf(guide)->Clicked());
  auto closing = Count(guide->CloseRequested());
  auto keys = Count(guide->KeyDown());
  guide->SetKeyPreview(true);
  app->CallAt(1s, [&] {
    ButtonOf(guide)->Click();
    guide->Close();
    guide->PressKey(platform::kKeyY, 0);
    guide->Activate();
    guide->Resize({1, 1});
    EXPECT_EQ(app->ActiveForm(), prompt);
    prompt->Hide();
  });
  prompt->ShowModal(guide);
  EXPECT_EQ(*behind, 0);
  EXPECT_EQ(*closing, 0);
  EXPECT_EQ(*keys, 0);
  ButtonOf(guide)->Click();
  EXPECT_EQ(*behind, 1);
}

TEST_F(ModalTest, DoesNotBlockAFormShownLater) {
  auto clicks = Count(ButtonOf(prompt)->Clicked());
  app->CallAt(1s, [&] {
    prompt->Show();
    EXPECT_TRUE(prompt->Active());
    ButtonOf(prompt)->Click();
    guide->Hide();
  });
  guide->ShowModal(nullptr);
  EXPECT_EQ(*clicks, 1);
}

TEST_F(ModalTest, BlocksAFormThatIsShownAgain) {
  guide->Show();
  auto clicks = Count(ButtonOf(guide)->Clicked());
  app->CallAt(1s, [&] {
    guide->Show();
    EXPECT_FALSE(guide->Active());
    ButtonOf(guide)->Click();
    prompt->Hide();
  });
  prompt->ShowModal(nullptr);
  EXPECT_EQ(*clicks, 0);
}

TEST_F(ModalTest, Nests) {
  std::vector<std::string> log;
  On(ButtonOf(guide)->Clicked(), [&] {
    prompt->ShowModal(guide);
    log.push_back("prompt returned");
    guide->Hide();
  });
  On(ButtonOf(prompt)->Clicked(), [&] {
    log.push_back("answered");
    prompt->Hide();
  });
  app->CallAt(1s, [&] { ButtonOf(guide)->Click(); });
  app->CallAt(2s, [&] { ButtonOf(prompt)->Click(); });
  guide->ShowModal(nullptr);
  EXPECT_EQ(log, (std::vector<std::string>{"answered", "prompt returned"}));
  EXPECT_EQ(app->ActiveForm(), nullptr);
}

TEST_F(ModalTest, AllowsTheOuterFormToEndFirst) {
  app->CallAt(1s, [&] { prompt->ShowModal(guide); });
  app->CallAt(2s, [&] {
    guide->Unload();
    EXPECT_TRUE(prompt->Active());
  });
  app->CallAt(3s, [&] { prompt->Unload(); });
  guide->ShowModal(nullptr);
  EXPECT_EQ(app->Now(), 3s);
}

TEST_F(ModalTest, ReactivatesTheOwner) {
  guide->Show();
  auto other = Shown("Other");
  auto count = Count(guide->Activated());
  app->CallAt(1s, [&] { prompt->Hide(); });
  prompt->ShowModal(guide);
  EXPECT_EQ(app->ActiveForm(), guide);
  EXPECT_EQ(*count, 1);
}

TEST_F(ModalTest, BlocksWhenAnOpenFormBecomesModal) {
  prompt->Show();
  guide->Show();
  auto clicks = Count(ButtonOf(guide)->Clicked());
  app->CallAt(1s, [&] {
    ButtonOf(guide)->Click();
    prompt->Hide();
  });
  prompt->ShowModal(nullptr);
  EXPECT_EQ(*clicks, 0);
}

TEST_F(ModalTest, RejectsASecondTime) {
  app->CallAt(1s, [&] {
    ExpectHostError(5, "FTestGuide", [&] { guide->ShowModal(nullptr); });
    guide->Hide();
  });
  guide->ShowModal(nullptr);
  EXPECT_EQ(app->Now(), 1s);
}

TEST_F(ModalTest, EndsAndUnblocksTheOthersOnAnError) {
  guide->Show();
  auto clicks = Count(ButtonOf(guide)->Clicked());
  app->CallAt(1s, [] { throw orvik::HostError(57, "test", "line is gone"); });
  ExpectHostError(57, "line is gone", [&] { prompt->ShowModal(guide); });
  EXPECT_FALSE(prompt->Visible());
  ButtonOf(guide)->Click();
  EXPECT_EQ(*clicks, 1);
}

TEST_F(ModalTest, AllowsTheFormToBeReleased) {
  std::weak_ptr<platform::IForm> weak = guide;
  app->CallAt(1s, [&] {
    guide->Unload();
    guide.reset();
  });
  weak.lock()->ShowModal(nullptr);
  EXPECT_TRUE(weak.expired());
}

TEST_F(ModalTest, EndsAtOnceIfHiddenInPumped) {
  auto timer = guide->AddTimer("tmr");
  Start(*timer, 1000);
  On(app->Pumped(), [&] { guide->Hide(); });
  guide->ShowModal(nullptr);
  EXPECT_EQ(app->Now(), 0s);
}

}  // namespace
}  // namespace toolkit::headless

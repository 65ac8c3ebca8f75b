#include "tests/unit/toolkit/ToolkitTest.h"

namespace toolkit::headless {
namespace {

using Log = std::vector<std::string>;

class FormTest : public ToolkitTest {
 protected:
  std::shared_ptr<platform::IForm> form = app->CreateForm("FForm");
};

TEST_F(FormTest, StartsHiddenAndNotLoaded) {
  EXPECT_EQ(form->Name(), "FForm");
  EXPECT_FALSE(form->Loaded());
  EXPECT_FALSE(form->Visible());
  EXPECT_FALSE(form->Active());
  EXPECT_FALSE(form->Topmost());
  EXPECT_FALSE(form->KeyPreview());
  EXPECT_NE(form->Handle(), 0U);
}

TEST_F(FormTest, LoadsActivatesAndNotifiesWhenShown) {
  Log log;
  On(form->Activated(), [&] { log.push_back("activated"); });
  On(app->FormShown(), [&](const std::shared_ptr<platform::IForm>& shown) {
    EXPECT_EQ(shown, form);
    log.push_back("shown");
  });
  form->Show();
  EXPECT_TRUE(form->Loaded());
  EXPECT_TRUE(form->Visible());
  EXPECT_TRUE(form->Active());
  EXPECT_EQ(app->ActiveForm(), form);
  EXPECT_EQ(log, (Log{"activated", "shown"}));
  form->Show();
  EXPECT_EQ(log.size(), 2U);
}

TEST_F(FormTest, ShowsAndHidesBySetVisible) {
  form->SetVisible(true);
  EXPECT_TRUE(form->Active());
  form->SetVisible(false);
  EXPECT_FALSE(form->Visible());
  EXPECT_TRUE(form->Loaded());
}

TEST_F(FormTest, IsOwnedByTheApplicationWhileLoaded) {
  std::weak_ptr<platform::IForm> weak = form;
  form->Load();
  form.reset();
  ASSERT_FALSE(weak.expired());
  weak.lock()->Unload();
  EXPECT_TRUE(weak.expired());
}

TEST_F(FormTest, HidesBeforeUnloadingIsRaised) {
  form->Show();
  Log log;
  On(form->Unloading(), [&] { log.push_back(form->Visible() ? "visible" : "hidden"); });
  form->Unload();
  form->Unload();
  EXPECT_EQ(log, (Log{"hidden"}));
  EXPECT_FALSE(form->Loaded());
}

TEST_F(FormTest, CannotBeShownWhileUnloading) {
  form->Show();
  On(form->Unloading(), [&] { form->Show(); });
  form->Unload();
  EXPECT_FALSE(form->Visible());
  EXPECT_FALSE(form->Loaded());
  EXPECT_EQ(app->ActiveForm(), nullptr);
}

TEST_F(FormTest, MayBeUnloadedByUnloading) {
  form->Show();
  auto count = Count(form->Unloading());
  On(form->Unloading(), [&] { form->Unload(); });
  form->Unload();
  EXPECT_EQ(*count, 1);
}

TEST_F(FormTest, UnloadsEvenIfAHandlerFails) {
  form->Show();
  On(form->Unloading(), [] { throw orvik::HostError(5, "test", "broken"); });
  EXPECT_THROW(form->Unload(), orvik::HostError);
  EXPECT_FALSE(form->Loaded());
  EXPECT_TRUE(app->Forms().empty());
}

TEST_F(FormTest, MayBeLoadedAgain) {
  form->Show();
  form->Unload();
  form->Show();
  EXPECT_TRUE(form->Active());
}

TEST_F(FormTest, MayBeReleasedByItsButton) {
  form->Show();
  std::weak_ptr<platform::IForm> weak = form;
  auto button = form->AddButton("cmdOK");
  auto clicks = Count(button->Clicked());
  On(button->Clicked(), [&] {
    form->Unload();
    form.reset();
    button.reset();
  });
  button->Click();
  EXPECT_EQ(*clicks, 1);
  EXPECT_TRUE(weak.expired());
}

TEST_F(FormTest, MayBeReleasedWhenActivated) {
  std::weak_ptr<platform::IForm> weak = form;
  On(form->Activated(), [&] {
    form->Unload();
    form.reset();
  });
  auto shown = Count(app->FormShown());
  weak.lock()->Show();
  EXPECT_TRUE(weak.expired());
  EXPECT_EQ(*shown, 0);
}

TEST_F(FormTest, IsActivatedWhenAnotherCloses) {
  form->Show();
  auto count = Count(form->Activated());
  auto other = Shown("Other");
  EXPECT_FALSE(form->Active());
  other->Hide();
  EXPECT_TRUE(form->Active());
  EXPECT_EQ(*count, 1);
}

TEST_F(FormTest, IsActivatedIfUsedLast) {
  auto a = Shown("A");
  auto b = Shown("B");
  auto c = Shown("C");
  a->Activate();
  c->Activate();
  c->Unload();
  EXPECT_EQ(app->ActiveForm(), a);
  a->Unload();
  EXPECT_EQ(app->ActiveForm(), b);
}

TEST_F(FormTest, IgnoresActivateWhenHidden) {
  auto count = Count(form->Activated());
  form->Activate();
  form->Load();
  form->Activate();
  EXPECT_EQ(*count, 0);
}

TEST_F(FormTest, SeesKeysWithPreviewOnly) {
  form->Show();
  std::vector<std::pair<int, int>> keys;
  On(form->KeyDown(), [&](int key, int shift) { keys.emplace_back(key, shift); });
  form->PressKey(platform::kKeyY, 0);
  form->SetKeyPreview(true);
  form->PressKey(platform::kKeyY, 1);
  EXPECT_EQ(keys, (std::vector<std::pair<int, int>>{{platform::kKeyY, 1}}));
}

TEST_F(FormTest, SeesNoKeysWhenHiddenOrDisabled) {
  form->SetKeyPreview(true);
  auto keys = Count(form->KeyDown());
  form->PressKey(platform::kKeyY, 0);
  form->Show();
  form->SetEnabled(false);
  form->PressKey(platform::kKeyY, 0);
  EXPECT_EQ(*keys, 0);
}

TEST_F(FormTest, PassesKeysToTheFocusUnlessHidden) {
  auto button = form->AddButton("cmdOK");
  auto clicks = Count(button->Clicked());
  form->SetKeyPreview(true);
  form->Show();
  form->PressKey(platform::kKeyReturn, 0);
  form->PressKey(platform::kKeySpace, 0);
  form->PressKey(platform::kKeyY, 0);
  EXPECT_EQ(*clicks, 2);
  On(form->KeyDown(), [&](int, int) { form->Hide(); });
  form->PressKey(platform::kKeyReturn, 0);
  EXPECT_EQ(*clicks, 2);
}

TEST_F(FormTest, ClicksTheButtonOfAnAccessKey) {
  auto button = form->AddButton("cmdDecline");
  button->SetCaption("&No");
  auto clicks = Count(button->Clicked());
  form->Show();
  form->PressKey(platform::kKeyN, 4);
  EXPECT_EQ(*clicks, 1);
  form->PressKey(platform::kKeyY, 4);
  EXPECT_EQ(*clicks, 1);
}

TEST_F(FormTest, UnloadsWhenClosed) {
  form->Show();
  form->Close();
  EXPECT_FALSE(form->Loaded());
}

TEST_F(FormTest, StaysOpenIfAHandlerAsks) {
  form->Show();
  On(form->CloseRequested(), [](bool& keep) { keep = true; });
  form->Close();
  EXPECT_TRUE(form->Visible());
}

TEST_F(FormTest, IgnoresCloseWhenHidden) {
  form->Load();
  auto asked = Count(form->CloseRequested());
  form->Close();
  EXPECT_EQ(*asked, 0);
  EXPECT_TRUE(form->Loaded());
}

TEST_F(FormTest, IsResizedByTheOperatorWhenShown) {
  auto resized = Count(form->Resized());
  form->Resize({3000, 2000});
  EXPECT_EQ(*resized, 0) << "it was not shown";
  form->Show();
  form->Resize({3000, 2000});
  form->Resize({3000, 2000});
  EXPECT_EQ(form->InnerSize(), (platform::Size{3000, 2000}));
  EXPECT_EQ(*resized, 1);
}

TEST_F(FormTest, HasTheSizeOfItsGridUntilSet) {
  auto label = form->AddLabel("lbl");
  label->SetCaption("1234567890");
  form->SetGrid(OneColumn({"lbl"}));
  const auto natural = form->InnerSize();
  EXPECT_GT(natural.width, 240);
  label->SetCaption("12345678901234567890");
  EXPECT_GT(form->InnerSize().width, natural.width);
  form->SetBounds({0, 0, 9000, 9000});
  label->SetCaption("1");
  EXPECT_EQ(form->InnerSize(), (platform::Size{9000, 9000}));
}

TEST_F(FormTest, KeepsItsBoundsWhenTopmost) {
  form->SetBounds({10, 20, 30, 40});
  form->SetTopmost(true);
  EXPECT_TRUE(form->Topmost());
  EXPECT_EQ(form->Bounds(), (platform::Rect{10, 20, 30, 40}));
}

TEST_F(FormTest, GrowsButDoesNotShrinkWhenShown) {
  form = app->CreateForm("Other");
  auto label = form->AddLabel("lbl");
  form->SetGrid(OneColumn({"lbl"}));
  label->SetCaption("a text");
  form->Show();
  const auto small = form->InnerSize();
  label->SetCaption("a much longer text");
  const auto large = form->InnerSize();
  EXPECT_GT(large.width, small.width);
  label->SetCaption("a text");
  EXPECT_EQ(form->InnerSize(), large);
  form->Hide();
  label->SetCaption("text");
  EXPECT_LT(form->InnerSize().width, small.width);
}

}  // namespace
}  // namespace toolkit::headless

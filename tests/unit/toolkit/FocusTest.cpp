#include "tests/unit/toolkit/ToolkitTest.h"

namespace toolkit::headless {
namespace {

/// Where the focus is, and who hears of it.
class FocusTest : public ToolkitTest {
 protected:
  std::shared_ptr<platform::IForm> form = app->CreateForm("FForm");
  std::shared_ptr<platform::ILabel> label = form->AddLabel("lbl");
  std::shared_ptr<platform::ITextBox> text = form->AddTextBox("txt");
  std::shared_ptr<platform::IComboBox> combo = form->AddComboBox("cbo");
  std::shared_ptr<platform::IButton> button = form->AddButton("cmd");
};

TEST_F(FocusTest, StartsOnTheFirstFocusableControl) {
  EXPECT_FALSE(text->HasFocus());
  form->Show();
  EXPECT_TRUE(text->HasFocus());
  EXPECT_FALSE(form->HasFocus());
}

TEST_F(FocusTest, IsRememberedUntilTheFormIsShown) {
  button->SetFocus();
  EXPECT_FALSE(button->HasFocus());
  form->Show();
  EXPECT_TRUE(button->HasFocus());
}

TEST_F(FocusTest, IsRejectedByALabel) {
  form->Show();
  label->SetFocus();
  EXPECT_TRUE(text->HasFocus());
}

TEST_F(FocusTest, IsRejectedByHiddenOrDisabledControls) {
  form->Show();
  button->SetVisible(false);
  button->SetFocus();
  combo->SetEnabled(false);
  combo->SetFocus();
  EXPECT_TRUE(text->HasFocus());
}

TEST_F(FocusTest, LeavesAControlThatIsDisabledOrHidden) {
  form->Show();
  text->SetEnabled(false);
  EXPECT_TRUE(combo->HasFocus());
  combo->SetVisible(false);
  EXPECT_TRUE(button->HasFocus());
}

TEST_F(FocusTest, FollowsTheOperatorsActions) {
  form->Show();
  button->Click();
  EXPECT_TRUE(button->HasFocus());
  combo->TypeOver("x");
  EXPECT_TRUE(combo->HasFocus());
}

TEST_F(FocusTest, NotifiesTheBoxThatLosesIt) {
  form->Show();
  auto lost = Count(combo->LostFocus());
  combo->SetFocus();
  EXPECT_EQ(*lost, 0);
  button->Click();
  EXPECT_EQ(*lost, 1);
}

TEST_F(FocusTest, LeavesTheBoxBeforeTheButtonIsClicked) {
  form->Show();
  std::vector<std::string> log;
  combo->SetFocus();
  On(combo->LostFocus(), [&] { log.push_back("lost"); });
  On(button->Clicked(), [&] { log.push_back("clicked"); });
  button->Click();
  EXPECT_EQ(log, (std::vector<std::string>{"lost", "clicked"}));
}

TEST_F(FocusTest, DoesNotClickAButtonDisabledByItsLoss) {
  form->Show();
  combo->SetFocus();
  auto clicks = Count(button->Clicked());
  On(combo->LostFocus(), [&] { button->SetEnabled(false); });
  button->Click();
  EXPECT_EQ(*clicks, 0);
}

TEST_F(FocusTest, LeavesTheBoxWithTheForm) {
  form->Show();
  combo->SetFocus();
  auto lost = Count(combo->LostFocus());
  auto other = Shown("Other");
  EXPECT_EQ(*lost, 1);
  EXPECT_FALSE(combo->HasFocus());
  other->Hide();
  EXPECT_TRUE(combo->HasFocus());
  form->Unload();
  EXPECT_EQ(*lost, 2);
}

TEST_F(FocusTest, ActivatesTheForm) {
  form->Show();
  auto other = Shown("Other");
  auto activated = Count(form->Activated());
  button->Click();
  EXPECT_TRUE(form->Active());
  EXPECT_EQ(*activated, 1);
}

TEST_F(FocusTest, IsOnAFormWithoutControls) {
  auto empty = app->CreateForm("FEmpty");
  auto got = Count(empty->GotFocus());
  empty->Show();
  EXPECT_TRUE(empty->HasFocus());
  EXPECT_EQ(*got, 1);
}

TEST_F(FocusTest, CanBeSetToTheForm) {
  form->Show();
  auto got = Count(form->GotFocus());
  form->SetFocus();
  EXPECT_TRUE(form->HasFocus());
  EXPECT_FALSE(text->HasFocus());
  EXPECT_EQ(*got, 1);
}

TEST_F(FocusTest, CanBePassedToAUserControl) {
  auto outer = app->CreateForm("FElementSetup");
  auto site = outer->AddControl("test.Probe", "isc");
  On(outer->GotFocus(), [&] { site->SetFocus(); });
  outer->Show();
  EXPECT_TRUE(site->Panel()->Find("txtInner")->HasFocus());
  EXPECT_FALSE(outer->HasFocus());
}

}  // namespace
}  // namespace toolkit::headless

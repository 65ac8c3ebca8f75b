#include "tests/unit/toolkit/ToolkitTest.h"

namespace toolkit::headless {
namespace {

class TextBoxTest : public ToolkitTest {
 protected:
  std::shared_ptr<platform::IForm> form = Shown("FForm");
  std::shared_ptr<platform::ITextBox> text = form->AddTextBox("txt");
  std::shared_ptr<int> changes = Count(text->Changed());
};

TEST_F(TextBoxTest, NotifiesWhenTheTextChanges) {
  text->SetText("a");
  text->SetText("a");
  EXPECT_EQ(*changes, 1);
  text->Type("b");
  EXPECT_EQ(text->Text(), "ab");
  text->TypeOver("c");
  EXPECT_EQ(text->Text(), "c");
  EXPECT_EQ(*changes, 3);
}

TEST_F(TextBoxTest, RejectsTypingWhenLocked) {
  text->SetLocked(true);
  text->Type("a");
  text->TypeOver("b");
  EXPECT_EQ(text->Text(), "");
  text->SetText("c");
  EXPECT_EQ(text->Text(), "c");
}

TEST_F(TextBoxTest, RejectsTypingWhenHiddenOrDisabled) {
  text->SetVisible(false);
  text->Type("a");
  text->SetVisible(true);
  text->SetEnabled(false);
  text->TypeOver("b");
  EXPECT_EQ(*changes, 0);
}

TEST_F(TextBoxTest, TypesKeys) {
  text->SetFocus();
  form->PressKey('K', 1);
  form->PressKey('E', 0);
  form->PressKey('1', 0);
  form->PressKey(platform::kKeySpace, 0);
  form->PressKey(platform::kKeyEscape, 0);
  EXPECT_EQ(text->Text(), "Ke1 ");
}

TEST_F(TextBoxTest, CanHaveSeveralLines) {
  EXPECT_FALSE(text->MultiLine());
  text->SetMultiLine(true);
  EXPECT_TRUE(text->MultiLine());
}

}  // namespace
}  // namespace toolkit::headless

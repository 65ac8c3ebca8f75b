#include "tests/unit/toolkit/ToolkitTest.h"

namespace toolkit::headless {
namespace {

class ComboBoxTest : public ToolkitTest {
 protected:
  ComboBoxTest() {
    for (const char* item : {"No values", "All values", "Maximum value"}) box->AddItem(item);
  }

  std::shared_ptr<platform::IForm> form = Shown("FForm");
  std::shared_ptr<platform::IComboBox> box = form->AddComboBox("cbo");
  std::shared_ptr<int> selections = Count(box->Selected());
};

TEST_F(ComboBoxTest, StartsWithoutSelection) {
  EXPECT_EQ(box->SelectedIndex(), -1);
  EXPECT_EQ(box->Text(), "");
  EXPECT_EQ(box->Items().size(), 3U);
}

TEST_F(ComboBoxTest, ShowsTheSelectedTextAndNotifies) {
  box->SetSelectedIndex(1);
  EXPECT_EQ(box->Text(), "All values");
  box->SetSelectedIndex(1);
  EXPECT_EQ(*selections, 1);
  box->SetSelectedIndex(-1);
  EXPECT_EQ(box->Text(), "");
  EXPECT_EQ(*selections, 2);
}

TEST_F(ComboBoxTest, IgnoresAnIndexOutside) {
  box->SetSelectedIndex(1);
  box->SetSelectedIndex(3);
  box->SetSelectedIndex(-2);
  box->Choose(7);
  box->Choose(-1);
  EXPECT_EQ(box->SelectedIndex(), 1);
}

TEST_F(ComboBoxTest, LetsTheOperatorChoose) {
  box->Choose(2);
  EXPECT_EQ(box->SelectedIndex(), 2);
  EXPECT_EQ(*selections, 1);
  box->SetEnabled(false);
  box->Choose(0);
  EXPECT_EQ(box->SelectedIndex(), 2);
}

TEST_F(ComboBoxTest, EndsTheSelectionForTypedText) {
  box->Choose(2);
  box->TypeOver("something else");
  EXPECT_EQ(box->SelectedIndex(), -1);
  EXPECT_EQ(box->Text(), "something else");
  box->TypeOver("All values");
  EXPECT_EQ(box->SelectedIndex(), 1);
}

TEST_F(ComboBoxTest, AcceptsOnlyEntriesUnlessEditable) {
  box->SetEditable(false);
  box->Choose(0);
  box->TypeOver("All values");
  EXPECT_EQ(box->SelectedIndex(), 0);
  box->SetText("nonsense");
  EXPECT_EQ(box->Text(), "No values");
  box->SetText("All values");
  EXPECT_EQ(box->SelectedIndex(), 1);
}

TEST_F(ComboBoxTest, EndsTheSelectionWhenCleared) {
  box->Choose(0);
  box->ClearItems();
  EXPECT_EQ(box->SelectedIndex(), -1);
  EXPECT_EQ(box->Text(), "");
  EXPECT_TRUE(box->Items().empty());
  EXPECT_EQ(*selections, 2);
}

TEST_F(ComboBoxTest, KeepsTypedTextWhenCleared) {
  box->TypeOver("typed");
  box->ClearItems();
  EXPECT_EQ(box->Text(), "typed");
}

}  // namespace
}  // namespace toolkit::headless

#include "tests/unit/toolkit/ToolkitTest.h"

namespace toolkit::headless {
namespace {

class ButtonTest : public ToolkitTest {
 protected:
  std::shared_ptr<platform::IForm> form = Shown("FForm");
  std::shared_ptr<platform::IButton> button = form->AddButton("cmd");
  std::shared_ptr<int> clicks = Count(button->Clicked());
};

TEST_F(ButtonTest, IsClicked) {
  button->Click();
  EXPECT_EQ(*clicks, 1);
}

TEST_F(ButtonTest, IgnoresClicksWhenHiddenOrDisabled) {
  button->SetVisible(false);
  button->Click();
  button->SetVisible(true);
  button->SetEnabled(false);
  button->Click();
  EXPECT_EQ(*clicks, 0);
}

TEST_F(ButtonTest, IgnoresClicksOnAHiddenOrDisabledForm) {
  form->Hide();
  button->Click();
  form->Show();
  form->SetEnabled(false);
  button->Click();
  EXPECT_EQ(*clicks, 0);
}

TEST_F(ButtonTest, IgnoresClicksWithoutItsForm) {
  form->Unload();
  form.reset();
  button->Click();
  EXPECT_EQ(*clicks, 0);
}

TEST_F(ButtonTest, MayBeDisabledByItsHandler) {
  On(button->Clicked(), [&] {
    button->SetEnabled(false);
    button->Click();
  });
  button->Click();
  EXPECT_EQ(*clicks, 1);
}

TEST_F(ButtonTest, GrowsWithItsCaption) {
  form->SetGrid(OneColumn({"cmd"}));
  button->SetCaption("&OK");
  const auto narrow = button->Bounds().width;
  button->SetCaption("Guardar y cerrar la ventana");
  EXPECT_GT(button->Bounds().width, narrow);
}

}  // namespace
}  // namespace toolkit::headless

#include "tests/unit/toolkit/ToolkitTest.h"
#include "toolkit/headless/Tabs.h"

namespace toolkit::headless {
namespace {

class TabsTest : public ToolkitTest {
 protected:
  std::shared_ptr<platform::IForm> form = Shown("FForm");
  std::shared_ptr<platform::ITabs> tabs = form->AddTabs("tab");
};

TEST_F(TabsTest, ShowsTheFirstPageUntilAnotherIsChosen) {
  EXPECT_EQ(tabs->SelectedKey(), "");
  auto first = tabs->AddPage("tab:MtiData", "MTI Data");
  auto second = tabs->AddPage("tab:Other", "Other");
  EXPECT_EQ(tabs->Keys(), (std::vector<std::string>{"tab:MtiData", "tab:Other"}));
  EXPECT_EQ(tabs->PageCaption("tab:Other"), "Other");
  EXPECT_EQ(tabs->SelectedKey(), "tab:MtiData");
  EXPECT_TRUE(first->Visible());
  EXPECT_FALSE(second->Visible());
  tabs->Choose("tab:Other");
  EXPECT_EQ(tabs->SelectedKey(), "tab:Other");
  EXPECT_FALSE(first->Visible());
  EXPECT_TRUE(second->Visible());
}

TEST_F(TabsTest, AcceptsInputOnTheChosenPageOnly) {
  tabs->AddPage("a", "A");
  auto button = tabs->AddPage("b", "B")->AddButton("cmd");
  auto clicks = Count(button->Clicked());
  button->Click();
  EXPECT_EQ(*clicks, 0);
  tabs->Choose("b");
  button->Click();
  EXPECT_EQ(*clicks, 1);
}

TEST_F(TabsTest, IgnoresUnknownPagesAndDisabledTabs) {
  tabs->AddPage("a", "A");
  tabs->AddPage("b", "B");
  tabs->Choose("c");
  tabs->SetEnabled(false);
  tabs->Choose("b");
  EXPECT_EQ(tabs->SelectedKey(), "a");
}

TEST_F(TabsTest, RejectsDuplicateAndUnknownKeys) {
  tabs->AddPage("a", "A");
  ExpectHostError(5, "\"a\"", [&] { tabs->AddPage("a", "again"); });
  ExpectHostError(9, "\"b\"", [&] { static_cast<void>(tabs->PageCaption("b")); });
  ExpectHostError(9, "\"b\"", [&] { tabs->SetPageBitmap("b", {}); });
  EXPECT_FALSE(tabs->Page("b"));
}

TEST_F(TabsTest, KeepsThePagesBitmap) {
  tabs->AddPage("a", "A");
  const std::vector<std::byte> bytes(3, std::byte{7});
  tabs->SetPageBitmap("a", bytes);
  EXPECT_EQ(std::dynamic_pointer_cast<Tabs>(tabs)->PageBitmap("a"), bytes);
}

TEST_F(TabsTest, PlacesPagesBelowTheCaptions) {
  auto first = tabs->AddPage("a", "A");
  tabs->SetBounds({0, 0, 3000, 2000});
  auto second = tabs->AddPage("b", "B");
  EXPECT_EQ(first->InnerSize(), (platform::Size{3000, 1625}));
  EXPECT_EQ(second->InnerSize(), (platform::Size{3000, 1625}));
}

TEST_F(TabsTest, HasTheSizeOfItsLargestPage) {
  auto page = tabs->AddPage("a", "A");
  auto label = page->AddLabel("lbl");
  page->SetGrid(OneColumn({"lbl"}));
  form->SetGrid(OneColumn({"tab"}));
  const auto before = tabs->Bounds();
  label->SetCaption("a caption that is much longer than before");
  EXPECT_GT(tabs->Bounds().width, before.width);
}

TEST_F(TabsTest, StopsTimersOnPagesWithTheForm) {
  auto timer = tabs->AddPage("a", "A")->AddTimer("tmr");
  Start(*timer, 10);
  form->Unload();
  EXPECT_FALSE(timer->Enabled());
}

}  // namespace
}  // namespace toolkit::headless

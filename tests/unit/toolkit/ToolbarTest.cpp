#include "tests/unit/toolkit/ToolkitTest.h"
#include "toolkit/headless/Toolbar.h"

namespace toolkit::headless {
namespace {

class ToolbarTest : public ToolkitTest {
 protected:
  ToolbarTest() {
    toolbar->AddButton(202, "Play");
    toolbar->AddButton(501, "Tools");
    On(toolbar->CommandChosen(), [&](int command) { chosen.push_back(command); });
  }

  std::shared_ptr<platform::IForm> form = Shown("FForm");
  std::shared_ptr<platform::IToolbar> toolbar = form->AddToolbar("tbr");
  std::vector<int> chosen;
};

TEST_F(ToolbarTest, ListsButtonsAndEntries) {
  toolbar->AddEntry(501, 900, "Calibrate...");
  EXPECT_EQ(toolbar->Commands(), (std::vector<int>{202, 501, 900}));
  EXPECT_EQ(toolbar->CommandCaption(900), "Calibrate...");
  EXPECT_TRUE(toolbar->CommandEnabled(900));
  EXPECT_TRUE(toolbar->CommandVisible(900));
}

TEST_F(ToolbarTest, IgnoresAnEntryWithUnknownParent) {
  toolbar->AddEntry(777, 900, "Calibrate...");
  EXPECT_EQ(toolbar->Commands(), (std::vector<int>{202, 501}));
  toolbar->AddEntry(501, 900, "Calibrate...");
  toolbar->AddEntry(900, 901, "under an entry");
  EXPECT_EQ(toolbar->Commands(), (std::vector<int>{202, 501, 900}));
}

TEST_F(ToolbarTest, RejectsADuplicateCommand) {
  ExpectHostError(5, "202", [&] { toolbar->AddButton(202, "again"); });
  ExpectHostError(5, "202", [&] { toolbar->AddEntry(501, 202, "again"); });
}

TEST_F(ToolbarTest, IgnoresUnknownCommands) {
  toolbar->EnableCommand(1, true);
  toolbar->ShowCommand(1, true);
  toolbar->SetCommandToolTip(1, "tip");
  toolbar->Click(1);
  EXPECT_FALSE(toolbar->CommandEnabled(1));
  EXPECT_FALSE(toolbar->CommandVisible(1));
  EXPECT_EQ(toolbar->CommandCaption(1), "");
  EXPECT_TRUE(chosen.empty());
}

TEST_F(ToolbarTest, ChoosesAClickedCommand) {
  toolbar->Click(202);
  EXPECT_EQ(chosen, (std::vector<int>{202}));
}

TEST_F(ToolbarTest, IgnoresDisabledOrHiddenCommands) {
  toolbar->EnableCommand(202, false);
  toolbar->Click(202);
  toolbar->EnableCommand(202, true);
  toolbar->ShowCommand(202, false);
  toolbar->Click(202);
  EXPECT_TRUE(chosen.empty());
}

TEST_F(ToolbarTest, IgnoresClicksWhenDisabled) {
  toolbar->SetEnabled(false);
  toolbar->Click(202);
  EXPECT_TRUE(chosen.empty());
}

TEST_F(ToolbarTest, RequiresTheButtonOfAnEntry) {
  toolbar->AddEntry(501, 900, "Calibrate...");
  toolbar->Click(900);
  toolbar->EnableCommand(501, false);
  toolbar->Click(900);
  toolbar->EnableCommand(501, true);
  toolbar->ShowCommand(501, false);
  toolbar->Click(900);
  EXPECT_EQ(chosen, (std::vector<int>{900}));
}

TEST_F(ToolbarTest, ChoosesNothingForAButtonWithEntries) {
  toolbar->Click(501);
  toolbar->AddEntry(501, 900, "Calibrate...");
  toolbar->Click(501);
  EXPECT_EQ(chosen, (std::vector<int>{501}));
}

TEST_F(ToolbarTest, KeepsToolTips) {
  toolbar->SetCommandToolTip(202, "Perform the test");
  EXPECT_EQ(std::dynamic_pointer_cast<Toolbar>(toolbar)->CommandToolTip(202), "Perform the test");
}

}  // namespace
}  // namespace toolkit::headless

#include "tests/unit/toolkit/ToolkitTest.h"

namespace toolkit::headless {
namespace {

class TreeViewTest : public ToolkitTest {
 protected:
  TreeViewTest() {
    tree->AddNode("NA key", "Enable NA");
    tree->AddNode("Skip key", "Enable skip");
  }

  std::shared_ptr<platform::IForm> form = Shown("FForm");
  std::shared_ptr<platform::ITreeView> tree = form->AddTreeView("tvwSettings");
  std::shared_ptr<int> clicks = Count(tree->NodeClicked());
};

TEST_F(TreeViewTest, KeepsNodesInOrder) {
  EXPECT_EQ(tree->NodeKeys(), (std::vector<std::string>{"NA key", "Skip key"}));
  EXPECT_TRUE(tree->HasNode("NA key"));
  EXPECT_FALSE(tree->HasNode("na key"));
  EXPECT_EQ(tree->NodeCaption("Skip key"), "Enable skip");
  tree->SetNodeCaption("Skip key", "Other");
  EXPECT_EQ(tree->NodeCaption("Skip key"), "Other");
}

TEST_F(TreeViewTest, RejectsDuplicateAndUnknownKeys) {
  ExpectHostError(5, "NA key", [&] { tree->AddNode("NA key", "again"); });
  ExpectHostError(9, "Lead", [&] { static_cast<void>(tree->NodeCaption("Lead")); });
  ExpectHostError(9, "Lead", [&] { static_cast<void>(tree->Checked("Lead")); });
  ExpectHostError(9, "Lead", [&] { tree->SetNodeCaption("Lead", "x"); });
}

TEST_F(TreeViewTest, RaisesNoClickForSetChecked) {
  tree->SetChecked("NA key", true);
  EXPECT_TRUE(tree->Checked("NA key"));
  tree->SetChecked("unknown", true);
  EXPECT_EQ(*clicks, 0);
}

TEST_F(TreeViewTest, TogglesTheMarkBeforeNotifying) {
  std::vector<std::pair<std::string, bool>> seen;
  On(tree->NodeClicked(), [&](const std::string& key) { seen.emplace_back(key, tree->Checked(key)); });
  tree->ClickNode("Skip key");
  tree->ClickNode("Skip key");
  EXPECT_EQ(seen, (std::vector<std::pair<std::string, bool>>{{"Skip key", true}, {"Skip key", false}}));
}

TEST_F(TreeViewTest, IgnoresUnknownNodesAndDisabledTrees) {
  tree->ClickNode("Lead");
  tree->SetEnabled(false);
  tree->ClickNode("NA key");
  EXPECT_EQ(*clicks, 0);
  EXPECT_FALSE(tree->Checked("NA key"));
}

TEST_F(TreeViewTest, MayBeClearedByAHandler) {
  On(tree->NodeClicked(), [&](const std::string& key) {
    tree->ClearNodes();
    EXPECT_EQ(key, "NA key");
  });
  tree->ClickNode("NA key");
  EXPECT_TRUE(tree->NodeKeys().empty());
  EXPECT_FALSE(tree->HasNode("NA key"));
}

}  // namespace
}  // namespace toolkit::headless

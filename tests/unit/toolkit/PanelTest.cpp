#include "tests/unit/toolkit/ToolkitTest.h"

namespace toolkit::headless {
namespace {

class PanelTest : public ToolkitTest {
 protected:
  /// Controls below each other, each as wide as the panel.
  static platform::Grid Column(const std::vector<std::string>& names) {
    auto grid = OneColumn(names, {0, 1});
    grid.margin = 0;
    grid.gap = 0;
    return grid;
  }

  std::shared_ptr<platform::IForm> form = app->CreateForm("FForm");
};

TEST_F(PanelTest, KeepsControlsInOrder) {
  std::vector<std::shared_ptr<platform::IControl>> added = {
      form->AddLabel("a"),    form->AddFrame("b"),       form->AddButton("c"),     form->AddTextBox("d"),
      form->AddComboBox("e"), form->AddListView("f"),    form->AddTreeView("g"),   form->AddToolbar("h"),
      form->AddTabs("i"),     form->AddProgressBar("j"), form->AddPictureBox("k"), form->AddTimer("l"),
  };
  added.push_back(form->AddControl("test.Probe", "m"));
  EXPECT_EQ(form->Controls(), added);
  for (const auto& control : added) EXPECT_EQ(form->Find(control->Name()), control);
}

TEST_F(PanelTest, MatchesNamesToTheLetter) {
  form->AddLabel("lblText");
  EXPECT_FALSE(form->Find("lbltext"));
  EXPECT_FALSE(form->Find(""));
}

TEST_F(PanelTest, RejectsADuplicateName) {
  form->AddLabel("x");
  ExpectHostError(5, "\"x\"", [&] { form->AddButton("x"); });
  ExpectHostError(5, "\"x\"", [&] { form->AddControl("test.Probe", "x"); });
  EXPECT_EQ(form->Controls().size(), 1U);
}

TEST_F(PanelTest, GivesEachWindowAHandle) {
  auto site = form->AddControl("test.Probe", "isc");
  auto page = form->AddTabs("tab")->AddPage("p", "Page");
  std::vector<platform::WindowHandle> handles = {form->Handle(), site->Handle(), site->Panel()->Handle(),
                                                 page->Handle(), form->AddLabel("l")->Handle()};
  std::sort(handles.begin(), handles.end());
  EXPECT_EQ(std::unique(handles.begin(), handles.end()), handles.end());
  EXPECT_NE(handles.front(), 0U);
}

TEST_F(PanelTest, RejectsAnUnknownControlClass) {
  ExpectHostError(429, "test.Unknown", [&] { form->AddControl("test.Unknown", "isc"); });
  EXPECT_FALSE(form->Find("isc"));
  app->SetControlFactory(nullptr);
  ExpectHostError(429, "test.Probe", [&] { form->AddControl("test.Probe", "isc"); });
}

TEST_F(PanelTest, RemovesAControlThatFailsToBuild) {
  app->SetControlFactory([](const std::string&) {
    auto probe = std::make_shared<ProbeControl>();
    probe->fails = true;
    return probe;
  });
  ExpectHostError(5, "cannot be placed", [&] { form->AddControl("test.Probe", "isc"); });
  EXPECT_FALSE(form->Find("isc"));
  EXPECT_TRUE(form->Controls().empty());
}

TEST_F(PanelTest, PlacesControlsByTheGrid) {
  form->AddButton("a");
  form->AddButton("b");
  form->SetBounds({0, 0, 4000, 4000});
  form->SetGrid(Column({"a", "b"}));
  const auto a = form->Find("a")->Bounds();
  const auto b = form->Find("b")->Bounds();
  EXPECT_EQ(a, (platform::Rect{0, 0, 4000, a.height}));
  EXPECT_EQ(b, (platform::Rect{0, a.height, 4000, a.height}));
}

TEST_F(PanelTest, UpdatesTheLayoutWhenResized) {
  form->AddButton("a");
  form->SetGrid(Column({"a"}));
  form->SetBounds({0, 0, 5000, 1000});
  EXPECT_EQ(form->Find("a")->Bounds().width, 5000);
}

TEST_F(PanelTest, UpdatesTheLayoutWhenACaptionChanges) {
  auto label = form->AddLabel("lbl");
  form->AddTextBox("txt");
  platform::Grid grid;
  grid.rows = {{}};
  grid.columns = {{}, {0, 1}};
  grid.cells = {{"lbl", 0, 0}, {"txt", 0, 1}};
  form->SetBounds({0, 0, 9000, 1000});
  form->SetGrid(grid);
  label->SetCaption("Short:");
  const auto before = form->Find("txt")->Bounds();
  label->SetCaption("A much longer translation:");
  const auto after = form->Find("txt")->Bounds();
  EXPECT_GT(after.left, before.left);
  EXPECT_EQ(after.left + after.width, before.left + before.width);
}

TEST_F(PanelTest, GivesNoSpaceToHiddenControls) {
  auto a = form->AddButton("a");
  auto b = form->AddButton("b");
  form->SetGrid(Column({"a", "b"}));
  a->SetVisible(false);
  EXPECT_EQ(b->Bounds().top, 0);
  a->SetVisible(true);
  EXPECT_EQ(b->Bounds().top, a->Bounds().height);
}

TEST_F(PanelTest, RejectsAGridWithAnUnknownControl) {
  form->AddButton("a");
  form->SetGrid(Column({"a"}));
  ExpectHostError(5, "\"typo\"", [&] { form->SetGrid(Column({"typo"})); });
  form->SetBounds({0, 0, 700, 700});
  EXPECT_EQ(form->Find("a")->Bounds().width, 1215) << "the old grid stays in force";
}

TEST_F(PanelTest, RejectsACellOutsideTheGrid) {
  form->AddButton("a");
  auto grid = Column({"a"});
  grid.cells[0].column = 1;
  ExpectHostError(5, "\"a\"", [&] { form->SetGrid(grid); });
}

TEST_F(PanelTest, RaisesResizedAfterTheLayout) {
  form->AddButton("a");
  form->SetGrid(Column({"a"}));
  int seen = 0;
  On(form->Resized(), [&] { seen = form->Find("a")->Bounds().width; });
  form->SetBounds({0, 0, 5000, 1000});
  EXPECT_EQ(seen, 5000);
  seen = 0;
  form->SetBounds({100, 100, 5000, 1000});
  EXPECT_EQ(seen, 0);
}

TEST_F(PanelTest, UpdatesTheLayoutForNestedControls) {
  auto site = form->AddControl("test.Probe", "isc");
  auto below = form->AddButton("below");
  auto label = site->Panel()->AddLabel("lbl");
  site->Panel()->SetGrid(Column({"lbl"}));
  form->SetGrid(Column({"isc", "below"}));
  label->SetCaption("one");
  const auto top = below->Bounds().top;
  label->SetCaption("one\ntwo\nthree");
  EXPECT_GT(below->Bounds().top, top);
  EXPECT_EQ(label->Bounds().width, form->InnerSize().width);
}

TEST_F(PanelTest, StopsALayoutThatDoesNotConverge) {
  auto label = form->AddLabel("lbl");
  auto site = form->AddControl("test.Probe", "isc");
  form->SetGrid(Column({"lbl", "isc"}));
  int changes = 0;
  On(site->Panel()->Resized(),
     [&] { label->SetCaption(std::string(static_cast<std::size_t>(++changes), 'x')); });
  form->SetBounds({0, 0, 3000, 3000});
  form->SetBounds({0, 0, 4000, 3000});
  EXPECT_GE(changes, 1);
  EXPECT_LT(changes, 50);
}

TEST_F(PanelTest, CountsRepaints) {
  form->Refresh();
  form->Refresh();
  EXPECT_EQ(form->RefreshCount(), 2);
}

TEST_F(PanelTest, RemembersColourAndToolTip) {
  auto label = form->AddLabel("lbl");
  label->SetBackColor(platform::kRed);
  label->SetToolTip("tip");
  EXPECT_EQ(label->BackColor(), platform::kRed);
  EXPECT_EQ(label->ToolTip(), "tip");
}

}  // namespace
}  // namespace toolkit::headless

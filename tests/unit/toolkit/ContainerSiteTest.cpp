#include "tests/unit/toolkit/ToolkitTest.h"

namespace toolkit::headless {
namespace {

class ContainerSiteTest : public ToolkitTest {
 protected:
  std::shared_ptr<platform::IForm> form = app->CreateForm("FElementSetup");
  std::shared_ptr<platform::IContainerSite> site = form->AddControl("test.Probe", "isc");
};

TEST_F(ContainerSiteTest, LetsTheControlBuildItselfOnce) {
  const auto probe = std::dynamic_pointer_cast<ProbeControl>(site->Object());
  ASSERT_TRUE(probe);
  EXPECT_EQ(probe->attached, 1);
  EXPECT_EQ(probe->where.lock(), site);
  EXPECT_TRUE(site->Panel()->Find("txtInner"));
  EXPECT_FALSE(form->Find("txtInner"));
}

TEST_F(ContainerSiteTest, OwnsTheControl) {
  std::weak_ptr<platform::IUserControl> control = site->Object();
  std::weak_ptr<platform::IPanel> panel = site->Panel();
  site.reset();
  form.reset();
  EXPECT_TRUE(control.expired());
  EXPECT_TRUE(panel.expired());
}

TEST_F(ContainerSiteTest, ReturnsTheExtenderProperties) {
  site->SetBounds({1, 2, 3, 4});
  site->SetToolTip("tip");
  using Value = platform::IContainerSite::Value;
  EXPECT_EQ(site->ExtenderProperty("Name"), Value("isc"));
  EXPECT_EQ(site->ExtenderProperty("Left"), Value(1));
  EXPECT_EQ(site->ExtenderProperty("Top"), Value(2));
  EXPECT_EQ(site->ExtenderProperty("Width"), Value(3));
  EXPECT_EQ(site->ExtenderProperty("Height"), Value(4));
  EXPECT_EQ(site->ExtenderProperty("Visible"), Value(true));
  EXPECT_EQ(site->ExtenderProperty("Enabled"), Value(true));
  EXPECT_EQ(site->ExtenderProperty("ToolTipText"), Value("tip"));
}

TEST_F(ContainerSiteTest, SetsTheExtenderProperties) {
  site->SetExtenderProperty("Left", 10);
  site->SetExtenderProperty("Top", 20);
  site->SetExtenderProperty("Width", 30);
  site->SetExtenderProperty("Height", 40);
  site->SetExtenderProperty("Visible", false);
  site->SetExtenderProperty("Enabled", false);
  site->SetExtenderProperty("ToolTipText", "tip");
  EXPECT_EQ(site->Bounds(), (platform::Rect{10, 20, 30, 40}));
  EXPECT_EQ(site->Panel()->InnerSize(), (platform::Size{30, 40}));
  EXPECT_FALSE(site->Visible());
  EXPECT_FALSE(site->Enabled());
  EXPECT_EQ(site->ToolTip(), "tip");
}

TEST_F(ContainerSiteTest, RejectsUnknownProperties) {
  ExpectHostError(438, "Object does not support this property: Visbible",
                  [&] { static_cast<void>(site->ExtenderProperty("Visbible")); });
  ExpectHostError(438, "Visbible", [&] { site->SetExtenderProperty("Visbible", true); });
  ExpectHostError(438, "visible", [&] { static_cast<void>(site->ExtenderProperty("visible")); });
}

TEST_F(ContainerSiteTest, RejectsAValueOfAnotherType) {
  ExpectHostError(13, "Visible", [&] { site->SetExtenderProperty("Visible", "yes"); });
  ExpectHostError(13, "Left", [&] { site->SetExtenderProperty("Left", true); });
  ExpectHostError(5, "name", [&] { site->SetExtenderProperty("Name", "other"); });
}

TEST_F(ContainerSiteTest, BlocksItsContentWhenHiddenOrDisabled) {
  form->Show();
  auto text = std::dynamic_pointer_cast<platform::ITextBox>(site->Panel()->Find("txtInner"));
  site->SetVisible(false);
  text->Type("a");
  site->SetVisible(true);
  site->SetEnabled(false);
  text->Type("b");
  site->SetEnabled(true);
  text->Type("c");
  EXPECT_EQ(text->Text(), "c");
}

TEST_F(ContainerSiteTest, StopsItsTimersWithTheForm) {
  auto timer = std::dynamic_pointer_cast<platform::ITimer>(site->Panel()->Find("tmrInner"));
  form->Load();
  Start(*timer, 10);
  form->Unload();
  EXPECT_FALSE(timer->Enabled());
}

/// Docking: windows inside another window than their owner.
class DockingTest : public ContainerSiteTest {
 protected:
  std::shared_ptr<platform::ITextBox> Inner() {
    return std::dynamic_pointer_cast<platform::ITextBox>(site->Panel()->Find("txtInner"));
  }

  std::shared_ptr<platform::IForm> host = Shown("FHost");
};

TEST_F(DockingTest, ReturnsTheParentOfAWindow) {
  EXPECT_EQ(app->Parent(site->Handle()), form->Handle());
  EXPECT_EQ(app->Parent(site->Panel()->Handle()), form->Handle());
  EXPECT_EQ(app->Parent(form->Handle()), 0U);
  EXPECT_EQ(app->Parent(99999), 0U);
}

TEST_F(DockingTest, EitherHandleMovesSiteAndPanel) {
  app->SetParent(site->Panel()->Handle(), host->Handle());
  EXPECT_EQ(app->Parent(site->Handle()), host->Handle());
  EXPECT_EQ(app->Parent(site->Panel()->Handle()), host->Handle());
  app->SetParent(site->Handle(), form->Handle());
  EXPECT_EQ(app->Parent(site->Panel()->Handle()), form->Handle());
}

TEST_F(DockingTest, EnablesInputInTheNewWindow) {
  Inner()->Type("a");
  EXPECT_EQ(Inner()->Text(), "") << "its own form is hidden";
  app->SetParent(site->Panel()->Handle(), host->Handle());
  Inner()->Type("b");
  EXPECT_EQ(Inner()->Text(), "b");
  EXPECT_TRUE(Inner()->HasFocus());
  site->SetVisible(false);
  Inner()->Type("c");
  EXPECT_EQ(Inner()->Text(), "b");
}

TEST_F(DockingTest, RemovesTheControlFromTheGrid) {
  platform::Grid grid;
  grid.rows = {{0, 1}};
  grid.columns = {{0, 1}};
  grid.cells = {{"isc", 0, 0}};
  form->SetGrid(grid);
  app->SetParent(site->Panel()->Handle(), host->Handle());
  site->SetBounds({5, 6, 7, 8});
  form->SetBounds({0, 0, 4000, 4000});
  EXPECT_EQ(site->Bounds(), (platform::Rect{5, 6, 7, 8}));
  app->SetParent(site->Panel()->Handle(), form->Handle());
  EXPECT_EQ(site->Bounds(), (platform::Rect{120, 120, 3760, 3760}));
}

TEST_F(DockingTest, EndsWhenTheFormIsUnloaded) {
  form->Load();
  app->SetParent(site->Panel()->Handle(), host->Handle());
  form->Unload();
  EXPECT_EQ(app->Parent(site->Handle()), form->Handle());
}

TEST_F(DockingTest, EndsWhenTheHostIsReleased) {
  app->SetParent(site->Panel()->Handle(), host->Handle());
  host->Unload();
  host.reset();
  EXPECT_EQ(app->Parent(site->Handle()), 0U);
  Inner()->Type("a");
  EXPECT_EQ(Inner()->Text(), "");
}

TEST_F(DockingTest, HidesAControlWithoutParent) {
  app->SetParent(site->Panel()->Handle(), 0);
  EXPECT_EQ(app->Parent(site->Handle()), 0U);
  form->Show();
  Inner()->Type("a");
  EXPECT_EQ(Inner()->Text(), "");
}

TEST_F(DockingTest, RejectsOtherWindows) {
  const auto label = form->AddLabel("lbl");
  ExpectHostError(5, "docked", [&] { app->SetParent(label->Handle(), host->Handle()); });
  ExpectHostError(5, "docked", [&] { app->SetParent(form->Handle(), host->Handle()); });
  ExpectHostError(5, "99999", [&] { app->SetParent(99999, host->Handle()); });
  ExpectHostError(5, "99999", [&] { app->SetParent(site->Handle(), 99999); });
  ExpectHostError(5, "itself", [&] { app->SetParent(site->Handle(), site->Panel()->Handle()); });
  ExpectHostError(5, "itself", [&] { app->SetParent(site->Handle(), site->Handle()); });
  EXPECT_EQ(app->Parent(site->Handle()), form->Handle());
}

}  // namespace
}  // namespace toolkit::headless

#include "OrvikTypeLib/ITgToolbar.h"
#include "OrvikTypeLib/ITgToolbarEvents.h"
#include "tests/unit/toolkit/ControlTest.h"
#include "toolkit/headless/Toolbar.h"

namespace toolkit::headless {
namespace {

class Listener : public virtual orvik::ITgToolbarEvents {
 public:
  std::vector<int> commands;

 private:
  void ITgToolbarEvents_OnCommand(std::int32_t lCommand) override { commands.push_back(lCommand); }
};

class XTgToolbarTest : public ControlTest {
 protected:
  std::shared_ptr<orvik::ITgToolbar> toolbar = Place<orvik::ITgToolbar>(orvik::HostClasses::kToolbar);
  std::shared_ptr<Listener> listener = std::make_shared<Listener>();
};

TEST_F(XTgToolbarTest, HasTheButtonsOfTheGuideWithTexts) {
  const auto inner = Inner<Toolbar>("tbrCommands");
  EXPECT_EQ(inner->Commands(), (std::vector<int>{101, 102, 103, 201, 202, 301, 302, 501}));
  EXPECT_EQ(inner->CommandCaption(101), "Abort");
  EXPECT_EQ(inner->CommandCaption(202), "Play");
  for (const int command : inner->Commands()) {
    EXPECT_FALSE(inner->CommandCaption(command).empty()) << command;
    EXPECT_FALSE(inner->CommandToolTip(command).empty()) << command;
    EXPECT_EQ(inner->CommandCaption(command).find("::"), std::string::npos);
    EXPECT_TRUE(toolbar->IsEnabled(command)) << command;
  }
}

TEST_F(XTgToolbarTest, NotifiesItsListenerOfClicks) {
  toolbar->Advise(listener);
  toolbar->Click(202);
  Inner<platform::IToolbar>("tbrCommands")->Click(101);
  EXPECT_EQ(listener->commands, (std::vector<int>{202, 101}));
}

TEST_F(XTgToolbarTest, IgnoresDisabledAndHiddenButtons) {
  toolbar->Advise(listener);
  toolbar->EnableCommand(202, false);
  EXPECT_FALSE(toolbar->IsEnabled(202));
  toolbar->Click(202);
  toolbar->ShowCommand(301, false);
  toolbar->Click(301);
  toolbar->Click(12345);
  form->Hide();
  toolbar->Click(101);
  EXPECT_TRUE(listener->commands.empty());
}

TEST_F(XTgToolbarTest, DoesNotOwnItsListener) {
  toolbar->Advise(listener);
  std::weak_ptr<Listener> weak = listener;
  listener.reset();
  EXPECT_TRUE(weak.expired());
  toolbar->Click(202);
}

TEST_F(XTgToolbarTest, HasOneListener) {
  auto other = std::make_shared<Listener>();
  toolbar->Advise(listener);
  toolbar->Advise(other);
  toolbar->Click(202);
  EXPECT_TRUE(listener->commands.empty());
  EXPECT_EQ(other->commands.size(), 1U);
}

TEST_F(XTgToolbarTest, ChoosesEntriesUnderTheirButton) {
  toolbar->Advise(listener);
  toolbar->AddEntry(501, 900, "Calibrate...");
  EXPECT_TRUE(toolbar->IsEnabled(900));
  toolbar->Click(900);
  toolbar->Click(501);
  toolbar->EnableCommand(900, false);
  toolbar->Click(900);
  EXPECT_EQ(listener->commands, (std::vector<int>{900}));
}

TEST_F(XTgToolbarTest, ShowsAStatusText) {
  toolbar->SetStatusText("Performing safety test. Please wait...");
  EXPECT_EQ(toolbar->StatusText(), "Performing safety test. Please wait...");
  EXPECT_EQ(Inner<platform::ILabel>("lblStatus")->Caption(), "Performing safety test. Please wait...");
}

TEST_F(XTgToolbarTest, SetsToolTips) {
  toolbar->SetToolTip(202, "tip");
  EXPECT_EQ(Inner<Toolbar>("tbrCommands")->CommandToolTip(202), "tip");
}

TEST_F(XTgToolbarTest, MayBeReleasedByItsListener) {
  class Closer : public virtual orvik::ITgToolbarEvents {
   public:
    std::function<void()> close;

   private:
    void ITgToolbarEvents_OnCommand(std::int32_t) override { close(); }
  };
  auto closer = std::make_shared<Closer>();
  std::weak_ptr<orvik::ITgToolbar> weak = toolbar;
  closer->close = [&] {
    form->Unload();
    form.reset();
    site.reset();
    toolbar.reset();
  };
  toolbar->Advise(closer);
  const auto inner = Inner<platform::IToolbar>("tbrCommands");
  inner->Click(101);
  EXPECT_TRUE(weak.expired());
}

TEST_F(XTgToolbarTest, NeedsToBePlaced) {
  const auto loose = orvik::As<orvik::ITgToolbar>(host->CreateObject(orvik::HostClasses::kToolbar));
  ExpectHostError(91, "", [&] { loose->SetStatusText("x"); });
  ExpectHostError(91, "", [&] { loose->Click(101); });
}

}  // namespace
}  // namespace toolkit::headless

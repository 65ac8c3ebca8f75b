#include <gtest/gtest.h>

#include <random>

#include "OrvikTypeLib/HostClasses.h"
#include "OrvikTypeLib/HostError.h"
#include "model/CKELDTestElement.h"
#include "plugin/XKELDTestConfiguration.h"
#include "tests/plugin/ConfigurationDialog.h"
#include "tests/plugin/Recorders.h"
#include "tests/support/HostOnly.h"
#include "tests/support/Seed.h"

namespace {

using Dialog = support::ConfigurationDialog<keld::CKELDTestElement>;
using Notices = std::vector<std::string>;

class TestConfigurationControl : public testing::Test {
 protected:
  support::HostOnly bench_;
};

TEST_F(TestConfigurationControl, FindsItsControlsByName) {
  Dialog open(910);
  EXPECT_EQ(open.control->ClassID(), "orvikKELD.XKELDTestConfiguration");
  EXPECT_EQ(open.control->GetControl("tvwSettings"), open.site->Panel()->Find("tvwSettings"));
  EXPECT_TRUE(open.control->GetControl("lblGeneralSettings"));
  EXPECT_FALSE(open.control->GetControl("cmbAssign"));
  EXPECT_FALSE(open.control->GetControl("lblAssign"));
  EXPECT_FALSE(open.control->GetControl(""));
  EXPECT_FALSE(open.control->GetControl("TVWSETTINGS"));
}

TEST_F(TestConfigurationControl, FindsNothingBeforeItIsPlaced) {
  const auto control = keld::XKELDTestConfiguration::Create();
  EXPECT_FALSE(control->GetControl("tvwSettings"));
  EXPECT_NO_THROW(control->FillSettings());
  EXPECT_EQ(control->hWnd(), 0U);
  EXPECT_FALSE(control->Visible());
  EXPECT_NO_THROW(control->Refresh());
  EXPECT_NO_THROW(control->SetFocus());
  EXPECT_THROW(control->SetVisible(true), orvik::HostError);
}

TEST_F(TestConfigurationControl, ShowsTranslatedCaptions) {
  Dialog open(910);
  const std::string caption = open.control->GetControl("lblGeneralSettings")->Caption();
  EXPECT_EQ(caption, "General settings:");
  EXPECT_EQ(open.form->Caption(), "KELD Safety Tester");
}

TEST_F(TestConfigurationControl, HandsItsControlsToTheLanguageServiceForTheModuleKELD) {
  const auto service = std::make_shared<recorders::LanguageService>();
  bench_.Host().Register(orvik::HostClasses::kLanguageService, [service] { return service; });
  Dialog open(910);
  EXPECT_EQ(service->translated, (Notices{"KELD", "KELD lblGeneralSettings"}))
      << "the form, then the control";
}

TEST_F(TestConfigurationControl, SetsAndClearsTheButtonBits) {
  Dialog open(410, 0);
  open.tree->ClickNode("NA key");
  EXPECT_EQ(open.configuration->Options(), 1);
  open.tree->ClickNode("Skip key");
  EXPECT_EQ(open.configuration->Options(), 3);
  open.tree->ClickNode("NA key");
  EXPECT_EQ(open.configuration->Options(), 2);
  open.tree->ClickNode("Skip key");
  EXPECT_EQ(open.configuration->Options(), 0);
}

TEST_F(TestConfigurationControl, LeavesTheOtherBitsAloneWhenAButtonIsClicked) {
  Dialog open(910, 3 | 4 | 64 | 0x40000000);
  open.tree->ClickNode("NA key");
  EXPECT_EQ(open.configuration->Options(), 2 | 4 | 64 | 0x40000000);
}

TEST_F(TestConfigurationControl, UncheckingNATellsTheCallBackOfTheChange) {
  Dialog open(410, 3);
  const auto callBack = std::make_shared<recorders::CallBack>();
  open.dialog->SetCallBack(callBack);
  open.tree->ClickNode("NA key");
  EXPECT_EQ(open.configuration->Options(), 2);
  EXPECT_EQ(callBack->notices, Notices{"Change"});
}

TEST_F(TestConfigurationControl, TellsTheCallBackOfEveryNode) {
  Dialog open(910);
  const auto callBack = std::make_shared<recorders::CallBack>();
  open.control->SetCallBack(callBack);
  EXPECT_EQ(open.control->CallBack(), callBack);
  for (const auto& key : open.tree->NodeKeys()) open.tree->ClickNode(key);
  EXPECT_EQ(callBack->notices, Notices(13, "Change"));
}

TEST_F(TestConfigurationControl, TellsNobodyWithoutACallBack) {
  Dialog open(910);
  const auto callBack = std::make_shared<recorders::CallBack>();
  open.control->SetCallBack(callBack);
  open.control->SetCallBack(nullptr);
  EXPECT_NO_THROW(open.tree->ClickNode("NA key"));
  EXPECT_NO_THROW(open.tree->ClickNode("Lead 1 key"));
  EXPECT_TRUE(callBack->notices.empty());
  EXPECT_EQ(open.configuration->Options(), 2 | 4);
}

TEST_F(TestConfigurationControl, SurvivesACallBackThatFails) {
  Dialog open(910);
  const auto callBack = std::make_shared<recorders::CallBack>();
  callBack->onNotify = [] { throw orvik::HostError(5, "host", "no"); };
  open.control->SetCallBack(callBack);
  EXPECT_NO_THROW(open.tree->ClickNode("Lead 2 key"));
  EXPECT_EQ(open.configuration->Options(), 3 | 8);
}

TEST_F(TestConfigurationControl, SurvivesACallBackThatClosesTheDialog) {
  Dialog open(910);
  const auto callBack = std::make_shared<recorders::CallBack>();
  callBack->onNotify = [&] {
    open.dialog->Unload();
    open.dialog.reset();
    open.form.reset();
    open.site.reset();
    open.control.reset();
  };
  open.control->SetCallBack(callBack);
  const auto tree = std::exchange(open.tree, nullptr);
  tree->ClickNode("Lead 2 key");
  EXPECT_EQ(open.configuration->Options(), 3 | 8);
  EXPECT_EQ(callBack->notices, Notices{"Change"});
}

TEST_F(TestConfigurationControl, KeepsLeadsExclusive) {
  Dialog open(910, 0);
  open.tree->ClickNode("Lead 1 key");
  EXPECT_EQ(open.configuration->Options(), 4);
  open.tree->ClickNode("Lead 3 key");
  EXPECT_EQ(open.configuration->Options() & (4 | 16), 16);
  EXPECT_FALSE(open.tree->Checked("Lead 1 key"));
  EXPECT_TRUE(open.tree->Checked("Lead 3 key"));
}

TEST_F(TestConfigurationControl, SetsTheBitOfEveryLead) {
  Dialog open(910, 3);
  std::int32_t bit = 4;
  for (const auto& key : open.tree->NodeKeys()) {
    if (key == "NA key" || key == "Skip key") continue;
    open.tree->ClickNode(key);
    EXPECT_EQ(open.configuration->Options(), 3 | bit) << key;
    bit *= 2;
  }
  EXPECT_EQ(bit, 8192) << "eleven leads, the last of which is all of them";
}

TEST_F(TestConfigurationControl, KeepsTheChosenLeadWhenItIsClickedAgain) {
  Dialog open(910, 0);
  open.tree->ClickNode("Lead 5 key");
  open.tree->ClickNode("Lead 5 key");
  EXPECT_TRUE(open.tree->Checked("Lead 5 key"));
  EXPECT_EQ(open.configuration->Options(), 64);
}

TEST_F(TestConfigurationControl, KeepsLeadsExclusiveInAReopenedDialog) {
  Dialog open(910, 3);
  open.tree->ClickNode("Lead 10 key");
  open.dialog->Unload();
  open.Open();
  EXPECT_TRUE(open.tree->Checked("Lead 10 key"));
  open.tree->ClickNode("All leads key");
  EXPECT_EQ(open.configuration->Options(), 3 | 4096);
  EXPECT_FALSE(open.tree->Checked("Lead 10 key"));
}

TEST_F(TestConfigurationControl, TakesTheLastOfSeveralCheckedLeadsAsTheOneBefore) {
  Dialog open(910, 4 | 16);
  open.tree->ClickNode("Lead 7 key");
  EXPECT_EQ(open.configuration->Options(), 4 | 256);
  EXPECT_TRUE(open.tree->Checked("Lead 1 key"));
  EXPECT_FALSE(open.tree->Checked("Lead 3 key"));
}

TEST_F(TestConfigurationControl, ShowsWhatIsKeptAfterAnyClicks) {
  std::mt19937 random(support::Seed());
  Dialog open(910, 0);
  const auto keys = open.tree->NodeKeys();
  for (int i = 0; i < 500; ++i) {
    const auto& key = keys[random() % keys.size()];
    open.tree->ClickNode(key);
    std::int32_t shown = 0;
    int leads = 0;
    for (const auto& node : keys) {
      if (!open.tree->Checked(node)) continue;
      shown |= keld::ConfigurationTables::BitOf(node);
      leads += keld::ConfigurationTables::IsLead(node) ? 1 : 0;
    }
    ASSERT_EQ(open.configuration->Options(), shown) << "click " << i;
    ASSERT_LE(leads, 1) << "click " << i;
  }
}

TEST_F(TestConfigurationControl, DoesNothingWithoutAConfiguration) {
  Dialog open(910);
  open.control->SetOwner(nullptr);
  EXPECT_NO_THROW(open.tree->ClickNode("NA key"));
  EXPECT_NO_THROW(open.tree->ClickNode("Lead 1 key"));
  EXPECT_NO_THROW(open.control->FillSettings());
  EXPECT_EQ(open.configuration->Options(), 3);
}

TEST_F(TestConfigurationControl, FillsTheTreeAnewWithoutDoublingIt) {
  Dialog open(910);
  open.configuration->SetOptions(8);
  open.control->FillSettings();
  EXPECT_EQ(open.tree->NodeKeys().size(), 13U);
  EXPECT_TRUE(open.tree->Checked("Lead 2 key"));
  EXPECT_FALSE(open.tree->Checked("NA key"));
}

TEST_F(TestConfigurationControl, AnswersNoClicksWhileItIsLocked) {
  Dialog open(910);
  EXPECT_FALSE(open.control->Locked());
  open.control->SetLocked(true);
  EXPECT_TRUE(open.control->Locked());
  open.tree->ClickNode("NA key");
  open.tree->ClickNode("Lead 1 key");
  EXPECT_EQ(open.configuration->Options(), 3);
  open.control->SetLocked(false);
  open.tree->ClickNode("NA key");
  EXPECT_EQ(open.configuration->Options(), 2);
}

TEST_F(TestConfigurationControl, IsShownAndHiddenOnItsContainer) {
  Dialog open(910);
  EXPECT_TRUE(open.control->Visible());
  open.control->SetVisible(false);
  EXPECT_FALSE(open.control->Visible());
  EXPECT_FALSE(open.site->Visible());
  open.control->SetVisible(true);
  EXPECT_TRUE(open.site->Visible());
}

TEST_F(TestConfigurationControl, HasTheWindowOfItsSiteAndFocusesTheTree) {
  Dialog open(910);
  EXPECT_NE(open.control->hWnd(), 0U);
  EXPECT_EQ(open.control->hWnd(), open.site->Handle());
  open.control->SetFocus();
  EXPECT_TRUE(open.tree->HasFocus());
  const int before = open.tree->RefreshCount();
  open.control->Refresh();
  EXPECT_EQ(open.tree->RefreshCount(), before + 1);
}

TEST_F(TestConfigurationControl, IgnoresWhatItIsInitialisedWith) {
  Dialog open(910, 7);
  EXPECT_NO_THROW(open.dialog->Initialize(nullptr, {}, std::string("x"), 5));
  EXPECT_EQ(open.configuration->Options(), 7);
}

TEST_F(TestConfigurationControl, StretchesTheTreeToItsSize) {
  Dialog open(910);
  const auto before = open.tree->Bounds();
  const auto inner = open.form->InnerSize();
  open.form->Resize({inner.width + 1500, inner.height + 3000});
  EXPECT_EQ(open.tree->Bounds().width, before.width + 1500);
  EXPECT_EQ(open.tree->Bounds().height, before.height + 3000);
}

TEST_F(TestConfigurationControl, StretchesTheTreeInTheHostsWindowToo) {
  Dialog open(910);
  const auto window = bench_.Application().CreateForm("HostWindow");
  window->Show();
  open.dialog->Dock(window->Handle());
  open.dialog->Move(0, 0, 6000, 5000);
  const auto before = open.tree->Bounds();
  open.dialog->Move(150, 300, 7500, 8000);
  EXPECT_EQ(open.tree->Bounds().width, before.width + 1500);
  EXPECT_EQ(open.tree->Bounds().height, before.height + 3000);
  open.tree->ClickNode("Lead 2 key");
  EXPECT_EQ(open.configuration->Options(), 3 | 8);
}

}  // namespace

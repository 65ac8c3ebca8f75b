#include <gtest/gtest.h>

#include <random>

#include "OrvikTypeLib/HostClasses.h"
#include "model/CKELDTestElement.h"
#include "plugin/configuration/XKELDTestConfiguration.h"
#include "tests/support/HostOnly.h"
#include "tests/support/Seed.h"
#include "tests/unit/plugin/ConfigurationDialog.h"
#include "tests/unit/plugin/Recorders.h"

namespace {

using Dialog = support::ConfigurationDialog<keld::model::CKELDTestElement>;
using Notices = std::vector<std::string>;

class TestConfigurationControl : public testing::Test {
 protected:
  support::HostOnly bench_;
  std::shared_ptr<recorders::CallBack> callBack_ = std::make_shared<recorders::CallBack>();
};

TEST_F(TestConfigurationControl, FindsItsControlsByName) {
  Dialog open(910);
  EXPECT_EQ(open.control->ClassID(), "orvikKELD.XKELDTestConfiguration");
  EXPECT_EQ(open.control->GetControl("tvwSettings"), open.site->Panel()->Find("tvwSettings"));
  EXPECT_TRUE(open.control->GetControl("lblGeneralSettings"));
  for (const char* name : {"cmbAssign", "lblAssign", "", "TVWSETTINGS"})
    EXPECT_FALSE(open.control->GetControl(name)) << name;
}

TEST_F(TestConfigurationControl, IsEmptyBeforeItIsPlaced) {
  const auto control = keld::configuration::XKELDTestConfiguration::Create();
  EXPECT_FALSE(control->GetControl("tvwSettings"));
  control->FillSettings();
  EXPECT_EQ(control->hWnd(), 0U);
  EXPECT_FALSE(control->Visible());
  control->Refresh();
  control->SetFocus();
  EXPECT_THROW(control->SetVisible(true), orvik::HostError);
}

TEST_F(TestConfigurationControl, ShowsTranslatedCaptions) {
  Dialog open(910);
  EXPECT_EQ(open.control->GetControl("lblGeneralSettings")->Caption(), "General settings:");
  EXPECT_EQ(open.form->Caption(), "KELD Safety Tester");
}

TEST_F(TestConfigurationControl, TranslatesFormAndControlForItsModule) {
  const auto service = std::make_shared<recorders::LanguageService>();
  bench_.Host().Register(orvik::HostClasses::kLanguageService, [service] { return service; });
  Dialog open(910);
  EXPECT_EQ(service->translated, (Notices{"KELD", "KELD lblGeneralSettings"}));
}

TEST_F(TestConfigurationControl, TogglesTheButtonBitsOnly) {
  for (const std::int32_t others : {0, 4 | 64 | 0x40000000}) {
    Dialog open(910, others);
    for (const auto& [key, buttons] :
         {std::pair{"NA key", 1}, {"Skip key", 3}, {"NA key", 2}, {"Skip key", 0}}) {
      open.tree->ClickNode(key);
      EXPECT_EQ(open.configuration->Options(), others | buttons) << key;
    }
  }
}

TEST_F(TestConfigurationControl, NotifiesTheCallBackOfEveryChange) {
  Dialog open(910);
  open.dialog->SetCallBack(callBack_);
  EXPECT_EQ(open.control->CallBack(), callBack_);
  for (const auto& key : open.tree->NodeKeys()) open.tree->ClickNode(key);
  EXPECT_EQ(callBack_->notices, Notices(13, "Change"));
  open.control->SetCallBack(nullptr);
  open.tree->ClickNode("NA key");
  open.tree->ClickNode("Lead 1 key");
  EXPECT_EQ(callBack_->notices.size(), 13U);
  EXPECT_EQ(open.configuration->Options(), 1 | 4);
}

TEST_F(TestConfigurationControl, IgnoresAFailingCallBack) {
  Dialog open(910);
  callBack_->onNotify = [] { throw orvik::HostError(5, "host", "no"); };
  open.control->SetCallBack(callBack_);
  open.tree->ClickNode("Lead 2 key");
  EXPECT_EQ(open.configuration->Options(), 3 | 8);
}

TEST_F(TestConfigurationControl, SurvivesACallBackThatClosesTheDialog) {
  Dialog open(910);
  callBack_->onNotify = [&] {
    open.dialog->Unload();
    open.dialog.reset();
    open.form.reset();
    open.site.reset();
    open.control.reset();
  };
  open.control->SetCallBack(callBack_);
  const auto tree = std::exchange(open.tree, nullptr);
  tree->ClickNode("Lead 2 key");
  EXPECT_EQ(open.configuration->Options(), 3 | 8);
  EXPECT_EQ(callBack_->notices, Notices{"Change"});
}

TEST_F(TestConfigurationControl, SelectsOneLeadAtATime) {
  Dialog open(910, 3);
  std::string before;
  std::int32_t bit = 4;
  for (const auto& key : open.tree->NodeKeys()) {
    if (key == "NA key" || key == "Skip key") continue;
    // A second click keeps the selected lead.
    for (int click = 0; click < 2; ++click) {
      open.tree->ClickNode(key);
      EXPECT_EQ(open.configuration->Options(), 3 | bit) << key;
      EXPECT_TRUE(open.tree->Checked(key)) << key;
      EXPECT_TRUE(before.empty() || !open.tree->Checked(before)) << key;
    }
    before = key;
    bit *= 2;
  }
  EXPECT_EQ(bit, 8192) << "ten leads and all leads";
}

TEST_F(TestConfigurationControl, RemembersTheLeadWhenReopened) {
  Dialog open(910, 3);
  open.tree->ClickNode("Lead 10 key");
  open.dialog->Unload();
  open.Open();
  EXPECT_TRUE(open.tree->Checked("Lead 10 key"));
  open.tree->ClickNode("All leads key");
  EXPECT_EQ(open.configuration->Options(), 3 | 4096);
  EXPECT_FALSE(open.tree->Checked("Lead 10 key"));
}

TEST_F(TestConfigurationControl, ReplacesTheLastOfSeveralLeads) {
  Dialog open(910, 4 | 16);
  open.tree->ClickNode("Lead 7 key");
  EXPECT_EQ(open.configuration->Options(), 4 | 256);
  EXPECT_TRUE(open.tree->Checked("Lead 1 key"));
  EXPECT_FALSE(open.tree->Checked("Lead 3 key"));
}

TEST_F(TestConfigurationControl, ShowsTheOptionsAfterRandomClicks) {
  std::mt19937 random(support::Seed());
  Dialog open(910, 0);
  const auto keys = open.tree->NodeKeys();
  for (int i = 0; i < 500; ++i) {
    open.tree->ClickNode(keys[random() % keys.size()]);
    std::int32_t shown = 0;
    int leads = 0;
    for (const auto& node : keys) {
      if (!open.tree->Checked(node)) continue;
      shown |= keld::configuration::ConfigurationTables::BitOf(node);
      leads += keld::configuration::ConfigurationTables::IsLead(node) ? 1 : 0;
    }
    ASSERT_EQ(open.configuration->Options(), shown) << "click " << i;
    ASSERT_LE(leads, 1) << "click " << i;
  }
}

TEST_F(TestConfigurationControl, DoesNothingWithoutAConfiguration) {
  Dialog open(910);
  open.control->SetOwner(nullptr);
  open.tree->ClickNode("NA key");
  open.tree->ClickNode("Lead 1 key");
  open.control->FillSettings();
  EXPECT_EQ(open.configuration->Options(), 3);
}

TEST_F(TestConfigurationControl, RefillsTheTreeWithoutDuplicates) {
  Dialog open(910);
  open.configuration->SetOptions(8);
  open.control->FillSettings();
  EXPECT_EQ(open.tree->NodeKeys().size(), 13U);
  EXPECT_TRUE(open.tree->Checked("Lead 2 key"));
  EXPECT_FALSE(open.tree->Checked("NA key"));
}

TEST_F(TestConfigurationControl, IgnoresClicksWhileLocked) {
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

TEST_F(TestConfigurationControl, HasTheWindowAndVisibilityOfItsSite) {
  Dialog open(910, 7);
  EXPECT_NE(open.control->hWnd(), 0U);
  EXPECT_EQ(open.control->hWnd(), open.site->Handle());
  EXPECT_TRUE(open.control->Visible());
  open.control->SetVisible(false);
  EXPECT_FALSE(open.control->Visible());
  EXPECT_FALSE(open.site->Visible());
  open.control->SetVisible(true);
  EXPECT_TRUE(open.site->Visible());
  open.control->SetFocus();
  EXPECT_TRUE(open.tree->HasFocus());
  const int before = open.tree->RefreshCount();
  open.control->Refresh();
  EXPECT_EQ(open.tree->RefreshCount(), before + 1);
  open.dialog->Initialize(nullptr, {}, std::string("x"), 5);
  EXPECT_EQ(open.configuration->Options(), 7) << "the host's values are ignored";
}

TEST_F(TestConfigurationControl, StretchesTheTreeInEveryWindow) {
  Dialog open(910);
  const auto grow = [&](const char* window, const auto& resize) {
    const auto before = open.tree->Bounds();
    resize();
    EXPECT_EQ(open.tree->Bounds().width, before.width + 1500) << window;
    EXPECT_EQ(open.tree->Bounds().height, before.height + 3000) << window;
  };
  const auto inner = open.form->InnerSize();
  grow("own", [&] { open.form->Resize({inner.width + 1500, inner.height + 3000}); });
  const auto window = bench_.Application().CreateForm("HostWindow");
  window->Show();
  open.dialog->Dock(window->Handle());
  open.dialog->Move(0, 0, 6000, 5000);
  grow("docked", [&] { open.dialog->Move(150, 300, 7500, 8000); });
  open.tree->ClickNode("Lead 2 key");
  EXPECT_EQ(open.configuration->Options(), 3 | 8);
}

}  // namespace

#include <gtest/gtest.h>

#include "OrvikTypeLib/HostClasses.h"
#include "model/CKELDSequence.h"
#include "plugin/configuration/XKELDSeqConfiguration.h"
#include "tests/support/HostOnly.h"
#include "tests/unit/plugin/ConfigurationDialog.h"
#include "tests/unit/plugin/Recorders.h"

namespace {

using SequenceDialog = support::ConfigurationDialog<keld::model::CKELDSequence>;
using Texts = std::vector<std::string>;

class SequenceConfigurationControl : public testing::Test {
 protected:
  support::HostOnly bench_;
  std::shared_ptr<recorders::CallBack> callBack_ = std::make_shared<recorders::CallBack>();
};

TEST_F(SequenceConfigurationControl, ShowsTheFourFiltersInOrder) {
  SequenceDialog open(600);
  EXPECT_EQ(open.control->ClassID(), "orvikKELD.XKELDSeqConfiguration");
  EXPECT_EQ(open.list->Items(), (Texts{"No values", "All values", "Maximum value", "Minimum value"}));
  EXPECT_EQ(open.control->GetControl("lblAssign")->Caption(), "Values of the tests in the group:");
  EXPECT_EQ(open.control->GetControl("lblGeneralSettings")->Caption(), "General settings:");
  EXPECT_EQ(open.control->GetControl("cmbAssign"), open.site->Panel()->Find("cmbAssign"));
}

TEST_F(SequenceConfigurationControl, TranslatesItsTextsForItsModule) {
  const auto service = std::make_shared<recorders::LanguageService>();
  bench_.Host().Register(orvik::HostClasses::kLanguageService, [service] { return service; });
  SequenceDialog open(600);
  EXPECT_EQ(open.list->Items(), (Texts{"KELD 20702", "KELD 20703", "KELD 20704", "KELD 20705"}));
  EXPECT_EQ(service->translated, (Texts{"KELD", "KELD lblGeneralSettings"})) << "form and control";
}

TEST_F(SequenceConfigurationControl, StoresAndNotifiesTheSelectedFilter) {
  SequenceDialog open(600, 3, 1);
  open.dialog->SetCallBack(callBack_);
  for (const int index : {3, 0, 2, 1}) {
    open.list->Choose(index);
    EXPECT_EQ(open.configuration->ValueFilter(), index + 1);
  }
  open.list->SetSelectedIndex(-1);
  EXPECT_EQ(open.configuration->ValueFilter(), 0) << "nothing is selected";
  EXPECT_EQ(callBack_->notices, Texts(5, "Change"));
  open.dialog->SetCallBack(nullptr);
  open.list->Choose(1);
  EXPECT_EQ(callBack_->notices.size(), 5U);
  EXPECT_EQ(open.configuration->ValueFilter(), 2);
}

TEST_F(SequenceConfigurationControl, OffersTheTwoButtonsAndNotifiesThem) {
  SequenceDialog open(100);
  EXPECT_EQ(open.tree->NodeKeys(), (Texts{"NA key", "Skip key"}));
  open.dialog->SetCallBack(callBack_);
  open.tree->ClickNode("NA key");
  EXPECT_EQ(open.configuration->Options(), 2);
  open.tree->ClickNode("Skip key");
  EXPECT_EQ(open.configuration->Options(), 0);
  EXPECT_EQ(callBack_->notices, (Texts{"Change", "Change"}));
}

TEST_F(SequenceConfigurationControl, NeverChangesLeadBits) {
  // 66700 narrowed to 16 bits is 1164: the only kind of sequence that shows leads.
  SequenceDialog open(66700);
  ASSERT_TRUE(open.tree->HasNode("Lead 1 key"));
  open.tree->ClickNode("Lead 1 key");
  EXPECT_EQ(open.configuration->Options(), 3);
}

TEST_F(SequenceConfigurationControl, IgnoresTheOperatorWhileLocked) {
  SequenceDialog open(600);
  open.dialog->SetLocked(true);
  EXPECT_TRUE(open.dialog->Locked());
  open.list->Choose(3);
  open.tree->ClickNode("NA key");
  EXPECT_EQ(open.configuration->ValueFilter(), 1);
  EXPECT_EQ(open.configuration->Options(), 3);
  open.dialog->SetLocked(false);
  open.list->Choose(3);
  EXPECT_EQ(open.configuration->ValueFilter(), 4);
  open.control->SetOwner(nullptr);
  open.list->Choose(2);
  EXPECT_EQ(open.configuration->ValueFilter(), 4) << "without a configuration";
}

TEST_F(SequenceConfigurationControl, StretchesTheTreeButNotTheList) {
  SequenceDialog open(600);
  const auto tree = open.tree->Bounds();
  const auto list = open.list->Bounds();
  const auto inner = open.form->InnerSize();
  open.form->Resize({inner.width, inner.height + 3000});
  EXPECT_EQ(open.tree->Bounds().height, tree.height + 3000);
  EXPECT_EQ(open.list->Bounds().height, list.height);
}

}  // namespace

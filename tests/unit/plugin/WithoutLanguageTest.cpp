#include <gtest/gtest.h>

#include "OrvikTypeLib/IDialog.h"
#include "model/CKELDSequence.h"
#include "model/CKELDTestElement.h"
#include "plugin/CKELDPlugin.h"
#include "tests/support/FailingLanguage.h"
#include "tests/support/HostOnly.h"
#include "tests/unit/plugin/ConfigurationDialog.h"

// The set-up dialogs remain usable and closable if the language service fails.
namespace {

using support::ConfigurationDialog;
using support::LanguageFault;

class WithoutLanguageTest : public testing::TestWithParam<LanguageFault> {
 protected:
  WithoutLanguageTest() { support::FailLanguage(bench_.Host(), GetParam()); }

  support::HostOnly bench_;
};

TEST_P(WithoutLanguageTest, ATestsSettingsAreEditedAndClosed) {
  ConfigurationDialog<keld::model::CKELDTestElement> opened(910, 3);
  ASSERT_TRUE(opened.tree);
  EXPECT_EQ(opened.tree->NodeCaption("NA key"), "20784::Enable NA button in test guide");
  opened.tree->ClickNode("NA key");
  opened.tree->ClickNode("Lead 2 key");
  EXPECT_EQ(opened.configuration->Options(), 2 | 8);
  opened.form->Close();
  EXPECT_TRUE(bench_.Application().Forms().empty());
}

TEST_P(WithoutLanguageTest, ASequencesSettingsAreEditedAndDocked) {
  ConfigurationDialog<keld::model::CKELDSequence> opened(600, 3, 1);
  ASSERT_TRUE(opened.list);
  EXPECT_EQ(opened.list->Items().size(), 4U);
  opened.list->Choose(2);
  EXPECT_EQ(opened.configuration->ValueFilter(), 3);
  opened.dialog->Dock(bench_.Application().CreateForm("HostWindow")->Handle());
  EXPECT_TRUE(opened.dialog->IsDocked());
  opened.dialog->Unload();
  EXPECT_TRUE(bench_.Application().Forms().empty());
}

TEST_P(WithoutLanguageTest, ThePlugInStillCreatesTests) {
  bench_.WriteCatalogue(
      "<TemplateData><TestElement ID=\"410\"><Name LID=\"1::PE\"/></TestElement></TemplateData>");
  const auto plugin = keld::plugin::CKELDPlugin::Create();
  plugin->Initialize(nullptr);
  EXPECT_EQ(plugin->Name(), "");
  EXPECT_TRUE(plugin->CreateTest(410));
}

INSTANTIATE_TEST_SUITE_P(Language, WithoutLanguageTest,
                         testing::Values(LanguageFault::kRaisesHostError, LanguageFault::kRaisesAnythingElse,
                                         LanguageFault::kIsMissing),
                         [](const auto& tested) { return support::NameOf(tested.param); });

}  // namespace

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/IBaseElement.h"
#include "OrvikTypeLib/IInformationRecord.h"
#include "OrvikTypeLib/IPicture.h"
#include "OrvikTypeLib/ITestContainer.h"
#include "model/CKELDSequence.h"
#include "model/CKELDTestElement.h"
#include "plugin/CKELDPlugin.h"
#include "plugin/configuration/CKELDTestConfiguration.h"
#include "resources/Resources.h"
#include "tests/support/HostOnly.h"
#include "tests/support/VirtualBench.h"
#include "tests/support/WatchedLanguage.h"

namespace {

using keld::plugin::CKELDPlugin;
using orvik::As;
using orvik::ITestContainer;

constexpr char kSmallCatalogue[] =
    "<TemplateData><TestElement ID=\"400\"><Name LID=\"1::Group\"/><TestElement ID=\"410\"><Name "
    "LID=\"2::PE\"/>"
    "<Unit LID=\"3::mOhm\"/></TestElement></TestElement><TestElement ID=\"910\"/></TemplateData>";

class CKELDPluginTest : public testing::Test {
 protected:
  /// Starts a host with that catalogue, prepared further, and initialises the plug-in.
  CKELDPlugin& Start(std::optional<std::string> catalogue = kSmallCatalogue,
                     const std::function<void(support::HostOnly&)>& prepare = {}) {
    bench_.reset();
    bench_ = std::make_unique<support::HostOnly>(std::move(catalogue));
    if (prepare) prepare(*bench_);
    plugin_ = CKELDPlugin::Create();
    plugin_->Initialize(nullptr);
    return *plugin_;
  }
  static orvik::IInformationRecord& Texts(const std::shared_ptr<orvik::ITestElement>& element) {
    return *As<keld::model::CKELDElement>(element)->BaseElement()->Information();
  }

  std::unique_ptr<support::HostOnly> bench_ = std::make_unique<support::HostOnly>(kSmallCatalogue);
  std::shared_ptr<CKELDPlugin> plugin_ = CKELDPlugin::Create();
};

TEST_F(CKELDPluginTest, IsEmptyUntilInitialised) {
  EXPECT_EQ(plugin_->ID(), "KELD(IN)");
  EXPECT_EQ(plugin_->ClassID(), "orvikKELD.CKELDPlugin");
  EXPECT_EQ(plugin_->Name(), "");
  EXPECT_EQ(plugin_->Flags(), 0);
  EXPECT_EQ(plugin_->Version(), "2.2.2");
  ASSERT_TRUE(As<keld::model::CKELDSequence>(plugin_->Tests()));
  EXPECT_EQ(plugin_->Tests()->Count(), 0);
  EXPECT_FALSE(plugin_->CreateTest(410));
}

TEST_F(CKELDPluginTest, HasNameFlagsAndCatalogueOnceInitialised) {
  const auto& plugin = Start({}, [](support::HostOnly& bench) { bench.WriteCatalogue(kSmallCatalogue); });
  EXPECT_EQ(plugin.Name(), "KELD Safety Tester");
  EXPECT_EQ(plugin.Flags(), 1);
  EXPECT_EQ(plugin.Tests()->Count(), 2);
  EXPECT_TRUE(bench_->ErrorLines().empty());
  EXPECT_FALSE(plugin.ControlPanel());
  EXPECT_FALSE(plugin_->CreateDUTData());
  EXPECT_FALSE(plugin_->PlugInMenu());
  EXPECT_FALSE(plugin_->Setup());
}

TEST_F(CKELDPluginTest, LogsWhyTheCatalogueIsMissing) {
  using testing::EndsWith;
  using testing::HasSubstr;
  const auto catalogueFault = EndsWith("\tKELD(IN)\t0x8004A22C\t-2147179988\tCKELDPlugin\t3");
  const auto settingsFault = EndsWith("\tKELD(IN)\t0x8004A28E\t-2147179890\tCKELDPlugin\t3");
  struct Row {
    const char* name;
    std::optional<std::string> catalogue;
    std::function<void(support::HostOnly&)> prepare;
    std::vector<testing::Matcher<std::string>> lines;
  };
  const std::vector<Row> rows = {{"no settings key", {}, {}, {settingsFault, catalogueFault}},
                                 {"no value",
                                  {},
                                  [](support::HostOnly&) {
                                    ASSERT_TRUE(keld::MKELDGlobalVars::RegistryReader()->CreateKey(
                                        keld::MKELDConstants::kHive, keld::MKELDConstants::kSettingsKey));
                                  },
                                  {catalogueFault}},
                                 {"unreadable settings, with the host's own reason",
                                  {},
                                  [](support::HostOnly& bench) {
                                    bench.WriteCatalogue(kSmallCatalogue);
                                    std::ofstream(bench.Folder() / "registry.json") << "{ cut sho";
                                  },
                                  {HasSubstr("registry.json"), settingsFault, catalogueFault}},
                                 {"another root", "<Other/>", {}, {catalogueFault}},
                                 {"empty text", "", {}, {catalogueFault}},
                                 {"truncated", "<TemplateData>", {}, {catalogueFault}},
                                 {"not XML", "no xml", {}, {catalogueFault}}};
  for (const Row& row : rows) {
    const auto& plugin = Start(row.catalogue, row.prepare);
    EXPECT_THAT(bench_->ErrorLines(), testing::ElementsAreArray(row.lines)) << row.name;
    EXPECT_EQ(plugin.Flags(), 1) << row.name;
    EXPECT_EQ(plugin.Name(), "KELD Safety Tester") << row.name;
    ASSERT_TRUE(plugin.Tests()) << row.name;
    EXPECT_EQ(plugin.Tests()->Count(), 0) << row.name;
  }
}

TEST_F(CKELDPluginTest, IsRebuiltWhenInitialisedAgain) {
  std::shared_ptr<support::WatchedLanguage> language;
  auto& plugin = Start({}, [&](support::HostOnly& bench) {
    language = support::WatchLanguage(bench.Host());
    bench.WriteCatalogue(kSmallCatalogue);
  });
  const auto before = plugin.Tests();
  Texts(before->item(1)).SetDisplayName("changed");
  plugin.Initialize(nullptr);
  EXPECT_NE(plugin.Tests(), before);
  EXPECT_EQ(plugin.Tests()->Count(), 2);
  EXPECT_EQ(Texts(plugin.Tests()->item(1)).DisplayName(), "Group");
  EXPECT_EQ(plugin.Name(), "KELD Safety Tester");
  bench_->WriteCatalogue("<TemplateData/>");
  language->answer = "Another language";
  plugin.Initialize(nullptr);
  EXPECT_EQ(plugin.Name(), "Another language");
  EXPECT_EQ(plugin.Tests()->Count(), 0);
  EXPECT_EQ(plugin.Flags(), 1);
  EXPECT_EQ(before->Count(), 2) << "the old catalogue stays complete";
}

TEST_F(CKELDPluginTest, CreatesIndependentCopies) {
  auto& plugin = Start();
  const auto first = plugin.CreateTest(410);
  const auto second = plugin.CreateTest(410);
  ASSERT_TRUE(first && second);
  EXPECT_NE(first, second);
  EXPECT_NE(first, plugin.Tests()->FindElement(410));
  Texts(first).SetDisplayName("changed");
  As<keld::configuration::CKELDTestConfiguration>(first->Configuration())->SetOptions(0);
  As<keld::model::IKELDTest>(first)->SetExpectedUnits("V");
  first->SetID(99);
  for (const auto& other : {second, plugin.Tests()->FindElement(410), plugin.CreateTest(410)}) {
    ASSERT_TRUE(other);
    EXPECT_EQ(Texts(other).DisplayName(), "PE");
    EXPECT_EQ(As<keld::configuration::CKELDTestConfiguration>(other->Configuration())->Options(), 3);
    EXPECT_EQ(As<keld::model::IKELDTest>(other)->ExpectedUnits(), "mOhm");
    EXPECT_EQ(other->ID(), 410);
  }
}

TEST_F(CKELDPluginTest, CreatesAGroupWithItsMembers) {
  const auto test = Start().CreateTest(400);
  const auto group = As<ITestContainer>(test);
  ASSERT_TRUE(group);
  ASSERT_EQ(group->Count(), 1);
  EXPECT_EQ(Texts(group->item(1)).DisplayName(), "PE");
  EXPECT_NE(group->item(1), plugin_->Tests()->FindElement(410));
  group->Remove(group->item(1));
  EXPECT_EQ(As<ITestContainer>(plugin_->Tests()->FindElement(400))->Count(), 1);
  plugin_.reset();
  EXPECT_EQ(Texts(test).DisplayName(), "Group") << "it outlives the plug-in";
}

TEST_F(CKELDPluginTest, CreatesNothingForAnUnknownIdentifier) {
  for (const std::int32_t id : {0, -1, 420, 65536 + 410, 2147483647, -2147483647 - 1})
    EXPECT_FALSE(Start().CreateTest(id)) << id;
}

TEST_F(CKELDPluginTest, CreatesTheTestsOfTheShippedCatalogue) {
  auto& plugin = Start(support::ShippedCatalogue());
  EXPECT_TRUE(bench_->ErrorLines().empty());
  for (const std::int16_t id : std::vector<std::int16_t>{100, 1700, 210, 400, 410, 420, 1000, 1010, 1020, 610,
                                                         640, 710, 760, 910, 965, 1110, 1165, 1210, 1245}) {
    const auto element = plugin.CreateTest(id);
    ASSERT_TRUE(element) << id;
    EXPECT_EQ(element->TestID(), id);
    EXPECT_EQ(element->PlugInID(), "KELD(IN)");
    EXPECT_EQ(As<ITestContainer>(element) != nullptr, id % 100 == 0) << id;
    EXPECT_TRUE(plugin.Icon(id, 0)) << id;
    EXPECT_TRUE(plugin.Icon(id, 1)) << id;
  }
}

TEST_F(CKELDPluginTest, SurvivesACatalogueTooDeepToCopy) {
  std::string text = "<TemplateData>";
  for (int level = 0; level < 10000; ++level) text += "<TestElement ID=\"100\">";
  for (int level = 0; level < 10000; ++level) text += "</TestElement>";
  auto& plugin = Start(text + "</TemplateData>");
  EXPECT_EQ(plugin.Tests()->Count(), 1);
  plugin.CreateTest(100);
  EXPECT_FALSE(plugin.CreateTest(101));
}

TEST_F(CKELDPluginTest, ReturnsTheIconOfATestOrOfItself) {
  struct Row {
    std::int16_t id;
    std::int16_t style;
    const char* key;  ///< empty: no icon
    std::int32_t width;
  };
  for (const Row& row : {Row{0, 0, "KELD(16X16)", 16}, Row{0, 1, "KELD(16X16)", 16},
                         Row{6150, 1, "TE:ELC(32X16)", 32}, Row{400, -1, "TE:GROUP(16X16)_WHT", 16},
                         Row{9145, 1, "", 0}, Row{410, 2, "", 0}, Row{410, -1, "", 0}}) {
    const auto icon = plugin_->Icon(row.id, row.style);
    ASSERT_EQ(icon != nullptr, *row.key != 0) << row.id << " " << row.style;
    if (!icon) continue;
    EXPECT_EQ(icon->Width(), row.width);
    EXPECT_EQ(icon->Height(), 16);
    const auto resource = keld::FindResource(row.key);
    EXPECT_EQ(icon->Bitmap(), (std::vector<std::byte>(resource.begin(), resource.end()))) << row.key;
  }
}

TEST_F(CKELDPluginTest, ViewsASequenceAsAContainer) {
  const auto sequence = keld::model::CKELDSequence::Create();
  EXPECT_TRUE(plugin_->Cast_ITestContainer(sequence));
  EXPECT_EQ(plugin_->Cast_ITestContainer(sequence), As<ITestContainer>(sequence));
  EXPECT_FALSE(plugin_->Cast_ITestContainer(keld::model::CKELDTestElement::Create()));
  EXPECT_FALSE(plugin_->Cast_ITestContainer(nullptr));
}

TEST_F(CKELDPluginTest, RaisesNothingWithoutItsHost) {
  keld::MKELDGlobalVars::Close();
  const auto plugin = CKELDPlugin::Create();
  plugin->Initialize(nullptr);
  EXPECT_EQ(plugin->Name(), "");
  EXPECT_EQ(plugin->Flags(), 1);
  ASSERT_TRUE(plugin->Tests());
  EXPECT_EQ(plugin->Tests()->Count(), 0);
  EXPECT_FALSE(plugin->CreateTest(410));
}

}  // namespace

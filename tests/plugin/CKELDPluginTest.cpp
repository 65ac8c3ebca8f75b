#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/IBaseElement.h"
#include "OrvikTypeLib/IInformationRecord.h"
#include "OrvikTypeLib/IPicture.h"
#include "OrvikTypeLib/ITestContainer.h"
#include "model/CKELDSequence.h"
#include "model/CKELDTestElement.h"
#include "plugin/CKELDPlugin.h"
#include "plugin/CKELDTestConfiguration.h"
#include "resources/Resources.h"
#include "tests/support/HostOnly.h"
#include "tests/support/WatchedLanguage.h"

namespace {

using keld::CKELDPlugin;
using orvik::As;
using orvik::ITestContainer;

constexpr char kCatalogueFault[] = "\tKELD(IN)\t0x8004A22C\t-2147179988\tCKELDPlugin\t3";
constexpr char kSettingsFault[] = "\tKELD(IN)\t0x8004A28E\t-2147179890\tCKELDPlugin\t3";

constexpr char kSmallCatalogue[] =
    "<TemplateData><TestElement ID=\"400\"><Name LID=\"1::Group\"/><TestElement ID=\"410\"><Name "
    "LID=\"2::PE\"/>"
    "<Unit LID=\"3::mOhm\"/></TestElement></TestElement><TestElement ID=\"910\"/></TemplateData>";

std::string ShippedCatalogue() {
  std::ifstream file(CATALOGUE_PATH);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::shared_ptr<CKELDPlugin> Initialised() {
  const auto plugin = CKELDPlugin::Create();
  plugin->Initialize(nullptr);
  return plugin;
}

std::string NameOf(const std::shared_ptr<orvik::ITestElement>& element) {
  return As<keld::CKELDElement>(element)->BaseElement()->Information()->DisplayName();
}

void Rename(const std::shared_ptr<orvik::ITestElement>& element, const std::string& name) {
  As<keld::CKELDElement>(element)->BaseElement()->Information()->SetDisplayName(name);
}

TEST(Plugin, IsEmptyUntilItIsInitialised) {
  support::HostOnly bench{std::string(kSmallCatalogue)};
  const auto plugin = CKELDPlugin::Create();
  EXPECT_EQ(plugin->ID(), "KELD(IN)");
  EXPECT_EQ(plugin->ClassID(), "orvikKELD.CKELDPlugin");
  EXPECT_EQ(plugin->Name(), "");
  EXPECT_EQ(plugin->Flags(), 0);
  EXPECT_EQ(plugin->Version(), "2.2.2");
  ASSERT_TRUE(plugin->Tests());
  EXPECT_EQ(plugin->Tests()->Count(), 0);
  EXPECT_TRUE(As<keld::CKELDSequence>(plugin->Tests()));
  EXPECT_FALSE(plugin->CreateTest(410));
}

TEST(Plugin, HasNameFlagsAndCatalogueOnceItIsInitialised) {
  support::HostOnly bench{std::string(kSmallCatalogue)};
  const auto plugin = Initialised();
  EXPECT_EQ(plugin->Name(), "KELD Safety Tester");
  EXPECT_EQ(plugin->Flags(), 1);
  EXPECT_EQ(plugin->Tests()->Count(), 2);
  EXPECT_TRUE(bench.ErrorLines().empty());
}

TEST(Plugin, HasNothingElseToOffer) {
  support::HostOnly bench{std::string(kSmallCatalogue)};
  const auto plugin = Initialised();
  EXPECT_FALSE(plugin->ControlPanel());
  EXPECT_FALSE(plugin->CreateDUTData());
  EXPECT_FALSE(plugin->PlugInMenu());
  EXPECT_FALSE(plugin->Setup());
}

TEST(Plugin, ReadsTheCatalogueFromTheSettingsKey) {
  support::HostOnly bench;
  bench.WriteCatalogue(kSmallCatalogue);
  const auto plugin = Initialised();
  EXPECT_EQ(plugin->Tests()->Count(), 2);
  EXPECT_TRUE(bench.ErrorLines().empty());
}

TEST(Plugin, LogsAMissingSettingsKeyAndThenTheMissingCatalogue) {
  support::HostOnly bench;
  const auto plugin = CKELDPlugin::Create();
  EXPECT_NO_THROW(plugin->Initialize(nullptr));
  const auto lines = bench.ErrorLines();
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_TRUE(lines[0].ends_with(kSettingsFault)) << lines[0];
  EXPECT_TRUE(lines[1].ends_with(kCatalogueFault)) << lines[1];
  EXPECT_EQ(plugin->Flags(), 1);
  EXPECT_EQ(plugin->Name(), "KELD Safety Tester");
  ASSERT_TRUE(plugin->Tests());
  EXPECT_EQ(plugin->Tests()->Count(), 0);
}

TEST(Plugin, LogsAMissingValue) {
  support::HostOnly bench;
  ASSERT_TRUE(keld::MKELDGlobalVars::RegistryReader()->CreateKey(keld::MKELDConstants::kHive,
                                                                 keld::MKELDConstants::kSettingsKey));
  const auto plugin = Initialised();
  const auto lines = bench.ErrorLines();
  ASSERT_EQ(lines.size(), 1U);
  EXPECT_TRUE(lines[0].ends_with(kCatalogueFault)) << lines[0];
  EXPECT_EQ(plugin->Tests()->Count(), 0);
}

TEST(Plugin, LogsASettingsFileThatCannotBeRead) {
  support::HostOnly bench;
  bench.WriteCatalogue(kSmallCatalogue);
  std::ofstream(bench.Folder() / "registry.json") << "{ cut sho";
  const auto plugin = CKELDPlugin::Create();
  EXPECT_NO_THROW(plugin->Initialize(nullptr));
  const auto lines = bench.ErrorLines();
  ASSERT_EQ(lines.size(), 3U) << "the host's own reason stands before what the plug-in makes of it";
  EXPECT_NE(lines[0].find("registry.json"), std::string::npos) << lines[0];
  EXPECT_TRUE(lines[1].ends_with(kSettingsFault)) << lines[1];
  EXPECT_TRUE(lines[2].ends_with(kCatalogueFault)) << lines[2];
  EXPECT_EQ(plugin->Tests()->Count(), 0);
}

TEST(Plugin, LogsAValueWithoutTemplateDataAndRaisesNothing) {
  for (const char* text : {"<Other/>", "", "<TemplateData>", "no xml"}) {
    support::HostOnly bench{std::string(text)};
    const auto plugin = CKELDPlugin::Create();
    EXPECT_NO_THROW(plugin->Initialize(nullptr));
    const auto lines = bench.ErrorLines();
    ASSERT_EQ(lines.size(), 1U) << text;
    EXPECT_TRUE(lines[0].ends_with(kCatalogueFault)) << lines[0];
    ASSERT_TRUE(plugin->Tests());
    EXPECT_EQ(plugin->Tests()->Count(), 0) << text;
  }
}

TEST(Plugin, BuildsAllAnewWhenItIsInitialisedAgain) {
  support::HostOnly bench;
  bench.WriteCatalogue(kSmallCatalogue);
  const auto plugin = Initialised();
  const auto before = plugin->Tests();
  Rename(before->item(1), "changed");
  plugin->Initialize(nullptr);
  EXPECT_NE(plugin->Tests(), before);
  EXPECT_EQ(plugin->Tests()->Count(), 2);
  EXPECT_EQ(NameOf(plugin->Tests()->item(1)), "Group");
  bench.WriteCatalogue("<TemplateData/>");
  plugin->Initialize(nullptr);
  EXPECT_EQ(plugin->Tests()->Count(), 0);
  EXPECT_EQ(plugin->Flags(), 1);
  EXPECT_EQ(before->Count(), 2) << "whoever holds the old catalogue keeps it whole";
}

TEST(Plugin, TakesItsNameAnewWhenItIsInitialisedAgain) {
  support::HostOnly bench{std::string(kSmallCatalogue)};
  const auto language = support::WatchLanguage(bench.Host());
  const auto plugin = Initialised();
  ASSERT_EQ(plugin->Name(), "KELD Safety Tester");
  language->answer = "Another language";
  plugin->Initialize(nullptr);
  EXPECT_EQ(plugin->Name(), "Another language");
}

TEST(Plugin, CreatesCopiesThatAreIndependent) {
  support::HostOnly bench{std::string(kSmallCatalogue)};
  const auto plugin = Initialised();
  const auto first = plugin->CreateTest(410);
  const auto second = plugin->CreateTest(410);
  ASSERT_TRUE(first && second);
  EXPECT_NE(first, second);
  EXPECT_NE(first, plugin->Tests()->FindElement(410));
  Rename(first, "changed");
  As<keld::CKELDTestConfiguration>(first->Configuration())->SetOptions(0);
  As<keld::IKELDTest>(first)->SetExpectedUnits("V");
  first->SetID(99);
  for (const auto& other : {second, plugin->Tests()->FindElement(410), plugin->CreateTest(410)}) {
    ASSERT_TRUE(other);
    EXPECT_EQ(NameOf(other), "PE");
    EXPECT_EQ(As<keld::CKELDTestConfiguration>(other->Configuration())->Options(), 3);
    EXPECT_EQ(As<keld::IKELDTest>(other)->ExpectedUnits(), "mOhm");
    EXPECT_EQ(other->ID(), 410);
  }
}

TEST(Plugin, CreatesAGroupWithItsMembers) {
  support::HostOnly bench{std::string(kSmallCatalogue)};
  const auto plugin = Initialised();
  const auto group = As<ITestContainer>(plugin->CreateTest(400));
  ASSERT_TRUE(group);
  ASSERT_EQ(group->Count(), 1);
  EXPECT_EQ(NameOf(group->item(1)), "PE");
  EXPECT_NE(group->item(1), plugin->Tests()->FindElement(410));
  group->Remove(group->item(1));
  EXPECT_EQ(As<ITestContainer>(plugin->Tests()->FindElement(400))->Count(), 1);
}

TEST(Plugin, CreatesNothingForAnIdentifierThatIsNotInTheCatalogue) {
  support::HostOnly bench{std::string(kSmallCatalogue)};
  const auto plugin = Initialised();
  for (const std::int32_t id : {0, -1, 420, 65536 + 410, 2147483647, -2147483647 - 1}) {
    EXPECT_FALSE(plugin->CreateTest(id)) << id;
  }
}

TEST(Plugin, CreatesEveryTestOfTheShippedCatalogue) {
  support::HostOnly bench{ShippedCatalogue()};
  const auto plugin = Initialised();
  EXPECT_TRUE(bench.ErrorLines().empty());
  for (const std::int32_t id : {100, 1700, 210, 400, 410, 420, 1000, 1010, 1020, 610, 640, 710, 760, 910, 965,
                                1110, 1165, 1210, 1245}) {
    const auto element = plugin->CreateTest(id);
    ASSERT_TRUE(element) << id;
    EXPECT_EQ(element->TestID(), id);
    EXPECT_EQ(element->PlugInID(), "KELD(IN)");
    EXPECT_EQ(As<ITestContainer>(element) != nullptr, id % 100 == 0) << id;
    EXPECT_TRUE(plugin->Icon(static_cast<std::int16_t>(id), 0)) << id;
    EXPECT_TRUE(plugin->Icon(static_cast<std::int16_t>(id), 1)) << id;
  }
}

TEST(Plugin, SurvivesACatalogueTooDeepToBeCopied) {
  std::string text = "<TemplateData>";
  for (int level = 0; level < 10000; ++level) text += "<TestElement ID=\"100\">";
  for (int level = 0; level < 10000; ++level) text += "</TestElement>";
  support::HostOnly bench{text + "</TemplateData>"};
  const auto plugin = Initialised();
  EXPECT_EQ(plugin->Tests()->Count(), 1);
  EXPECT_NO_THROW(plugin->CreateTest(100));
  EXPECT_FALSE(plugin->CreateTest(101));
}

TEST(Plugin, ShowsItselfByItsSmallPictureInBothStyles) {
  support::HostOnly bench;
  const auto plugin = CKELDPlugin::Create();
  const auto resource = keld::FindResource("KELD(16X16)");
  for (const std::int16_t style : std::vector<std::int16_t>{0, 1}) {
    const auto icon = plugin->Icon(0, style);
    ASSERT_TRUE(icon);
    EXPECT_EQ(icon->Width(), 16);
    EXPECT_EQ(icon->Height(), 16);
    EXPECT_EQ(icon->Bitmap(), (std::vector<std::byte>(resource.begin(), resource.end())));
  }
}

TEST(Plugin, ShowsTheEarthLeakagePictureFor6150) {
  support::HostOnly bench;
  const auto icon = CKELDPlugin::Create()->Icon(6150, 1);
  ASSERT_TRUE(icon);
  const auto resource = keld::FindResource("TE:ELC(32X16)");
  EXPECT_EQ(icon->Bitmap(), (std::vector<std::byte>(resource.begin(), resource.end())));
  EXPECT_EQ(icon->Width(), 32);
  EXPECT_EQ(icon->Height(), 16);
}

TEST(Plugin, HasNoPictureWhereThereIsNoKey) {
  support::HostOnly bench;
  const auto plugin = CKELDPlugin::Create();
  EXPECT_FALSE(plugin->Icon(9145, 1));
  EXPECT_FALSE(plugin->Icon(410, 2));
  EXPECT_FALSE(plugin->Icon(410, -1));
  EXPECT_TRUE(plugin->Icon(400, -1));
}

TEST(Plugin, SeesASequenceAsAContainer) {
  support::HostOnly bench;
  const auto plugin = CKELDPlugin::Create();
  const auto sequence = keld::CKELDSequence::Create();
  EXPECT_EQ(plugin->Cast_ITestContainer(sequence), As<ITestContainer>(sequence));
  EXPECT_TRUE(plugin->Cast_ITestContainer(sequence));
  EXPECT_FALSE(plugin->Cast_ITestContainer(keld::CKELDTestElement::Create()));
  EXPECT_FALSE(plugin->Cast_ITestContainer(nullptr));
}

TEST(Plugin, LeavesCreatedTestsToTheHost) {
  support::HostOnly bench{std::string(kSmallCatalogue)};
  auto plugin = Initialised();
  const auto test = plugin->CreateTest(400);
  plugin.reset();
  EXPECT_EQ(NameOf(test), "Group");
  EXPECT_EQ(As<ITestContainer>(test)->Count(), 1);
}

TEST(Plugin, WorksWithoutItsHost) {
  keld::MKELDGlobalVars::Close();
  const auto plugin = CKELDPlugin::Create();
  EXPECT_NO_THROW(plugin->Initialize(nullptr));
  EXPECT_EQ(plugin->Name(), "");
  EXPECT_EQ(plugin->Flags(), 1);
  ASSERT_TRUE(plugin->Tests());
  EXPECT_EQ(plugin->Tests()->Count(), 0);
  EXPECT_FALSE(plugin->CreateTest(410));
}

}  // namespace

#include <fstream>
#include <sstream>

#include "OrvikTypeLib/IInformationRecord.h"
#include "OrvikTypeLib/ITestContainer.h"
#include "tests/conformance/Asked.h"

namespace conformance {
namespace {

Subject WithCatalogue(std::optional<std::string> catalogue) {
  auto subject = KeldPlugIn();
  subject.catalogue = std::move(catalogue);
  return subject;
}

bool IsLogged(const LoadedLibrary& library, const std::string& number) {
  for (const auto& line : library.ErrorLines()) {
    if (line.find("KELD(IN)") != std::string::npos && line.find(number) != std::string::npos) return true;
  }
  return false;
}

constexpr char kCatalogueFault[] = "-2147179988";
constexpr char kNoSettingsKey[] = "-2147179890";

TEST(Catalogue, WithoutSettingsIsEmptyAndLogged) {
  LoadedLibrary library(WithCatalogue(std::nullopt));
  ASSERT_TRUE(library.PlugIn()->Tests());
  EXPECT_EQ(library.PlugIn()->Tests()->Count(), 0);
  EXPECT_TRUE(IsLogged(library, kNoSettingsKey));
}

class FaultyCatalogue : public testing::TestWithParam<NamedText> {};

TEST_P(FaultyCatalogue, GivesAContainerAndIsLogged) {
  LoadedLibrary library(WithCatalogue(GetParam().text));
  ASSERT_TRUE(library.PlugIn()->Tests());
  EXPECT_EQ(library.PlugIn()->Flags(), 1);
  EXPECT_TRUE(IsLogged(library, kCatalogueFault));
}

INSTANTIATE_TEST_SUITE_P(
    Loaded, FaultyCatalogue,
    testing::Values(NamedText{"Empty", ""}, NamedText{"Blank", " "}, NamedText{"NoXml", "no XML at all"},
                    NamedText{"Unclosed", "<TemplateData>"}, NamedText{"OtherRoot", "<Other/>"},
                    NamedText{"OtherCase", "<templatedata/>"},
                    NamedText{"CrossedTags", "<TemplateData><TestElement></TemplateData>"},
                    NamedText{"NoIdentifier", "<TemplateData><TestElement/></TemplateData>"},
                    NamedText{"EmptyIdentifier", "<TemplateData><TestElement ID=''/></TemplateData>"},
                    NamedText{"NotUtf8", "\xFF\xFE<"}),
    [](const auto& catalogue) { return std::string(catalogue.param.name); });

TEST(Catalogue, TakesWhateverElseStandsInIt) {
  LoadedLibrary library(WithCatalogue(R"(<Outer><TemplateData><!-- c --><Alien/>
      <TestElement ID="ten"><Name LID="no language string"/></TestElement>
      <TestElement ID="99999999999999"/><TestElement ID="-410"/><TestElement ID="410" Other="x"><Name/>text</TestElement>
      <TestElement ID="410"/></TemplateData></Outer>)"));
  const auto tests = library.PlugIn()->Tests();
  EXPECT_EQ(tests->Count(), 5);
  for (std::int32_t index = 1; index <= tests->Count(); ++index) EXPECT_TRUE(tests->item(index)->Clone());
  EXPECT_TRUE(library.PlugIn()->CreateTest(-410));
}

TEST(Catalogue, NamesEntriesByNameElseByTypeAndParameter) {
  LoadedLibrary library(WithCatalogue(R"(<TemplateData>
      <TestElement ID="1"><Type LID="1::T"/><Parameter LID="2::P"/><Name LID="3::N"/></TestElement>
      <TestElement ID="2"><Type LID="1::T"/><Parameter LID="2::P"/></TestElement>
      <TestElement ID="3"><Type LID="1::T"/><Name>text is not read</Name></TestElement></TemplateData>)"));
  const auto name = [&](std::int32_t id) { return library.NewTest(id)->Information()->DisplayName(); };
  EXPECT_EQ(name(1), "N");
  EXPECT_EQ(name(2), "T - P");
  EXPECT_EQ(name(3), "T");
}

TEST(Catalogue, MakesGroupsOfMultiplesOfAHundredAlone) {
  LoadedLibrary library(WithCatalogue(R"(<TemplateData>
      <TestElement ID="1000"><TestElement ID="1010"><TestElement ID="1020"/></TestElement></TestElement>
      </TemplateData>)"));
  const auto group = orvik::As<orvik::ITestContainer>(library.NewTest(1000));
  ASSERT_TRUE(group);
  ASSERT_EQ(group->Count(), 1);
  EXPECT_EQ(group->item(1)->TestID(), 1010);
  EXPECT_FALSE(orvik::As<orvik::ITestContainer>(group->item(1)));
  EXPECT_FALSE(library.PlugIn()->CreateTest(1020)) << "what stands in a single test is no entry";
}

TEST(Catalogue, SurvivesAnyDepth) {
  std::string text = "<TemplateData>";
  constexpr int kDepth = 20'000;
  for (int level = 0; level < kDepth; ++level) text += "<TestElement ID=\"100\">";
  for (int level = 0; level < kDepth; ++level) text += "</TestElement>";
  LoadedLibrary library(WithCatalogue(text + "</TemplateData>"));
  EXPECT_TRUE(OnlyHostErrorCrosses([&] { library.PlugIn()->CreateTest(100); }));
  EXPECT_TRUE(OnlyHostErrorCrosses([&] { library.PlugIn()->Tests()->FindElement(7); }));
}

TEST(Catalogue, ThatIsShippedCreatesEveryTestOfIt) {
  std::ifstream file(CATALOGUE_PATH);
  std::stringstream text;
  text << file.rdbuf();
  LoadedLibrary library(WithCatalogue(text.str()));
  std::vector<std::shared_ptr<orvik::ITestContainer>> groups{library.PlugIn()->Tests()};
  int tests = 0;
  while (!groups.empty()) {
    const auto group = groups.back();
    groups.pop_back();
    for (std::int32_t index = 1; index <= group->Count(); ++index) {
      const auto entry = group->item(index);
      const auto created = library.PlugIn()->CreateTest(entry->TestID());
      ASSERT_TRUE(created) << entry->TestID();
      ++tests;
      EXPECT_EQ(created->TestID(), entry->TestID());
      EXPECT_FALSE(created->Information()->DisplayName().empty()) << entry->TestID();
      const auto inner = orvik::As<orvik::ITestContainer>(entry);
      EXPECT_EQ(inner != nullptr, entry->TestID() % 100 == 0) << entry->TestID();
      if (inner) groups.push_back(inner);
    }
  }
  EXPECT_GT(tests, 30);
  EXPECT_TRUE(library.ErrorLines().empty());
}

}  // namespace
}  // namespace conformance

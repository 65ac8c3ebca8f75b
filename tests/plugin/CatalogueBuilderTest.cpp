#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <map>
#include <random>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/HostClasses.h"
#include "OrvikTypeLib/IBaseElement.h"
#include "OrvikTypeLib/IInformationRecord.h"
#include "OrvikTypeLib/ITestContainer.h"
#include "model/CKELDSequence.h"
#include "model/CKELDTestElement.h"
#include "plugin/CatalogueBuilder.h"
#include "tests/support/HostOnly.h"
#include "tests/support/Seed.h"

namespace {

using orvik::As;
using orvik::ITestContainer;
using orvik::ITestElement;

constexpr char kFaultEntry[] = "\tKELD(IN)\t0x8004A22C\t-2147179988\tCKELDPlugin\t3";

std::string DisplayNameOf(const std::shared_ptr<ITestElement>& element) {
  return As<keld::CKELDElement>(element)->BaseElement()->Information()->DisplayName();
}

std::string UnitOf(const std::shared_ptr<ITestElement>& element) {
  return As<keld::IKELDTest>(element)->ExpectedUnits();
}

/// The entries as "ID" or "ID(members)", separated by blanks.
std::string Outline(const std::shared_ptr<ITestContainer>& container) {
  std::string text;
  for (std::int32_t index = 1; index <= container->Count(); ++index) {
    const auto element = container->item(index);
    if (index > 1) text += " ";
    text += std::to_string(element->TestID());
    if (const auto members = As<ITestContainer>(element)) text += "(" + Outline(members) + ")";
  }
  return text;
}

std::string Catalogue(const std::string& entries) { return "<TemplateData>" + entries + "</TemplateData>"; }

class CatalogueBuilder : public testing::Test {
 protected:
  std::shared_ptr<ITestContainer> Build(const std::string& xml) { return keld::BuildCatalogue(xml); }

  std::shared_ptr<ITestElement> Only(const std::string& entry) {
    const auto root = Build(Catalogue(entry));
    EXPECT_EQ(root->Count(), 1);
    roots_.push_back(root);
    return root->item(1);
  }

  std::size_t Faults() const {
    const auto lines = bench_.ErrorLines();
    for (const auto& line : lines) EXPECT_TRUE(line.ends_with(kFaultEntry)) << line;
    return lines.size();
  }

  support::HostOnly bench_;
  std::vector<std::shared_ptr<ITestContainer>> roots_;
};

TEST_F(CatalogueBuilder, MakesSequencesOfMultiplesOf100AndTestsOfTheRest) {
  const auto root =
      Build(Catalogue("<TestElement ID=\"100\"/><TestElement ID=\"410\"/><TestElement ID=\"1700\"/>"
                      "<TestElement ID=\"1\"/>"));
  ASSERT_EQ(root->Count(), 4);
  EXPECT_EQ(Outline(root), "100() 410 1700() 1");
  EXPECT_EQ(root->item(1)->ClassID(), "orvikKELD.CKELDSequence");
  EXPECT_EQ(root->item(2)->ClassID(), "orvikKELD.CKELDTestElement");
  EXPECT_EQ(Faults(), 0U);
}

TEST_F(CatalogueBuilder, InitialisesAnEntryWithThePlugInAndItsIdentifierTwice) {
  const auto element = Only("<TestElement ID=\"410\"/>");
  EXPECT_EQ(element->PlugInID(), "KELD(IN)");
  EXPECT_EQ(element->ID(), 410);
  EXPECT_EQ(element->TestID(), 410);
}

TEST_F(CatalogueBuilder, NestsMembersAtAnyDepthAndKeepsTheirOrder) {
  const auto root =
      Build(Catalogue("<TestElement ID=\"1000\"><TestElement ID=\"1010\"/><TestElement ID=\"200\">"
                      "<TestElement ID=\"210\"/><TestElement ID=\"300\"/></TestElement>"
                      "<TestElement ID=\"1020\"/></TestElement><TestElement ID=\"420\"/>"));
  EXPECT_EQ(Outline(root), "1000(1010 200(210 300()) 1020) 420");
}

TEST_F(CatalogueBuilder, IgnoresEntriesNestedInASingleTest) {
  EXPECT_EQ(
      Outline(Build(Catalogue("<TestElement ID=\"1010\"><TestElement ID=\"210\"/><TestElement ID=\"100\"/>"
                              "</TestElement><TestElement ID=\"420\"/>"))),
      "1010 420");
}

TEST_F(CatalogueBuilder, SkipsChildrenWithAnotherName) {
  EXPECT_EQ(Outline(Build(Catalogue(
                "<Other ID=\"1\"/><TestElement ID=\"100\"><Group><TestElement ID=\"7\"/></Group>"
                "<testelement ID=\"8\"/><TestElement ID=\"9\"/></TestElement><!-- x --><Testelement/>"
                "<TestElement ID=\"410\"/><Last/>"))),
            "100(9) 410");
}

TEST_F(CatalogueBuilder, FindsTemplateDataAtAnyDepth) {
  EXPECT_EQ(
      Outline(Build("<Setup><A/><B><TemplateData><TestElement ID=\"410\"/></TemplateData></B></Setup>")),
      "410");
}

TEST_F(CatalogueBuilder, TakesFieldsFromTheirLanguageTextAlone) {
  const auto element = Only(
      "<TestElement ID=\"410\"><Type LID=\"21000::Resistance\">not read</Type><Name LID=\"21001::PE\"/>"
      "<Parameter LID=\"21002::With cord\"/><Unit LID=\"21003::mOhm\">Ohm</Unit></TestElement>");
  EXPECT_EQ(DisplayNameOf(element), "PE");
  EXPECT_EQ(UnitOf(element), "mOhm");
}

TEST_F(CatalogueBuilder, TakesAMissingOrEmptyLanguageTextAsEmpty) {
  const auto element = Only(
      "<TestElement ID=\"410\"><Type LID=\"1::Resistance\"/><Name>PE</Name><Unit LID=\"\"/>"
      "</TestElement>");
  EXPECT_EQ(DisplayNameOf(element), "Resistance");
  EXPECT_EQ(UnitOf(element), "");
}

TEST_F(CatalogueBuilder, NamesAnEntryByNameElseTypeAndParameterElseType) {
  const std::string type = "<Type LID=\"1::Resistance\"/>", name = "<Name LID=\"2::PE\"/>",
                    parameter = "<Parameter LID=\"3::With cord\"/>";
  const std::vector<std::pair<std::string, std::string>> rows = {
      {type + name + parameter, "PE"},
      {type + parameter, "Resistance - With cord"},
      {type, "Resistance"},
      {name, "PE"},
      {parameter, " - With cord"},
      {"", ""},
      // The translation decides, not the literal.
      {"<Name LID=\"21001::\"/>" + type, "Resistance"},
      {"<Parameter LID=\"21002::\"/>" + type, "Resistance"}};
  for (const auto& [fields, expected] : rows) {
    EXPECT_EQ(DisplayNameOf(Only("<TestElement ID=\"410\">" + fields + "</TestElement>")), expected)
        << fields;
  }
}

TEST_F(CatalogueBuilder, LetsALaterFieldOverwriteAnEarlierOne) {
  const auto element = Only(
      "<TestElement ID=\"410\"><Name LID=\"1::First\"/><Unit LID=\"1::A\"/>"
      "<Name LID=\"2::Second\"/><Unit/></TestElement>");
  EXPECT_EQ(DisplayNameOf(element), "Second");
  EXPECT_EQ(UnitOf(element), "");
}

TEST_F(CatalogueBuilder, MatchesFieldNamesToTheLetter) {
  const auto element = Only(
      "<TestElement ID=\"410\"><Name LID=\"1::Right\"/><name LID=\"2::Wrong\"/>"
      "<Units LID=\"3::Ohm\"/><NAME LID=\"4::Wrong\"/></TestElement>");
  EXPECT_EQ(DisplayNameOf(element), "Right");
  EXPECT_EQ(UnitOf(element), "");
}

TEST_F(CatalogueBuilder, NamesSequencesToo) {
  const auto element = Only(
      "<TestElement ID=\"400\"><TestElement ID=\"410\"><Name LID=\"1::Member\"/></TestElement>"
      "<Name LID=\"2::Group\"/><Unit LID=\"3::mOhm\"/></TestElement>");
  EXPECT_EQ(DisplayNameOf(element), "Group");
  EXPECT_EQ(UnitOf(element), "mOhm");
  EXPECT_EQ(DisplayNameOf(As<ITestContainer>(element)->item(1)), "Member");
}

TEST_F(CatalogueBuilder, LogsAnEmptyIdentifierAndGoesOnWithASequenceOfIdentifier0) {
  const auto root =
      Build(Catalogue("<TestElement><TestElement ID=\"410\"/></TestElement><TestElement ID=\"\"/>"
                      "<TestElement ID=\"210\"/>"));
  EXPECT_EQ(Outline(root), "0(410) 0() 210");
  EXPECT_EQ(Faults(), 2U);
}

TEST_F(CatalogueBuilder, ReadsTheNumberThatAnIdentifierStartsWith) {
  const std::vector<std::pair<std::string, std::string>> rows = {{"410", "410"},
                                                                 {" 410", "410"},
                                                                 {"410abc", "410"},
                                                                 {"0410", "410"},
                                                                 {"410.9", "410"},
                                                                 {"-5", "-5"},
                                                                 {"-100", "-100()"},
                                                                 {"abc", "0()"},
                                                                 {"2147483647", "2147483647"},
                                                                 {"-2147483648", "-2147483648"},
                                                                 {"2147483648", "0()"},
                                                                 {"-2147483649", "0()"},
                                                                 {"99999999999999999999999", "0()"},
                                                                 {"1e9999", "0()"},
                                                                 {"nan", "0()"},
                                                                 {"inf", "0()"},
                                                                 {"4.1e2", "410"},
                                                                 {"-", "0()"},
                                                                 {" ", "0()"}};
  for (const auto& [text, outline] : rows) {
    EXPECT_EQ(Outline(Build(Catalogue("<TestElement ID=\"" + text + "\"/>"))), outline) << text;
  }
  EXPECT_EQ(Faults(), 0U) << "only an empty identifier is a fault";
}

TEST_F(CatalogueBuilder, LogsATextWithoutTemplateData) {
  std::size_t logged = 0;
  for (const char* xml : {"", "<TestElement ID=\"410\"/>", "<templatedata/>", "<Other><Inner/></Other>"}) {
    const auto root = Build(xml);
    ASSERT_TRUE(root) << xml;
    EXPECT_EQ(root->Count(), 0) << xml;
    EXPECT_EQ(Faults(), ++logged) << xml;
  }
}

TEST_F(CatalogueBuilder, LogsATextThatIsNoXml) {
  const std::string whole = Catalogue("<TestElement ID=\"400\"><TestElement ID=\"410\"/></TestElement>");
  std::size_t logged = 0;
  for (std::size_t length = 1; length < whole.size(); ++length) {
    const auto root = Build(whole.substr(0, length));
    ASSERT_TRUE(root) << length;
    EXPECT_EQ(root->Count(), 0) << length;
    EXPECT_EQ(Faults(), ++logged) << length;
  }
  for (const char* xml :
       {" ", "no xml", "<TemplateData></Other>", "<TemplateData/><TemplateData/>", "\xff\xfe<"}) {
    EXPECT_EQ(Build(xml)->Count(), 0) << xml;
    EXPECT_EQ(Faults(), ++logged) << xml;
  }
}

TEST_F(CatalogueBuilder, IsEmptyWithoutFaultForAnEmptyTemplateData) {
  EXPECT_EQ(Build("<TemplateData/>")->Count(), 0);
  EXPECT_EQ(Faults(), 0U);
}

TEST_F(CatalogueBuilder, BuildsTenThousandNestedLevels) {
  constexpr int kLevels = 10000;
  std::string xml;
  for (int level = 1; level <= kLevels; ++level)
    xml += "<TestElement ID=\"" + std::to_string(level * 100) + "\">";
  for (int level = 1; level <= kLevels; ++level) xml += "</TestElement>";
  auto container = Build(Catalogue(xml));
  for (int level = 1; level <= kLevels; ++level) {
    ASSERT_EQ(container->Count(), 1) << level;
    const auto element = container->item(1);
    ASSERT_EQ(element->TestID(), level * 100);
    if (level == 1) roots_.push_back(container);  // keeps the tree, which then goes as a whole
    container = As<ITestContainer>(element);
  }
  EXPECT_EQ(container->Count(), 0);
}

TEST_F(CatalogueBuilder, BuildsManyEntriesSideBySide) {
  constexpr int kEntries = 20000;
  std::string xml;
  for (int i = 1; i <= kEntries; ++i) xml += "<TestElement ID=\"" + std::to_string(i) + "\"/>";
  const auto root = Build(Catalogue(xml));
  EXPECT_EQ(root->Count(), kEntries);
  EXPECT_EQ(root->item(kEntries)->TestID(), kEntries);
}

TEST_F(CatalogueBuilder, BuildsWhatAnyTreeOfEntriesSays) {
  std::mt19937 random(support::Seed());
  for (int round = 0; round < 100; ++round) {
    std::string xml, outline;
    int open = 0;
    bool first = true;
    for (int i = 0; i < 40; ++i) {
      if (open > 0 && random() % 3 == 0) {
        xml += "</TestElement>";
        outline += ")";
        first = false;
        --open;
        continue;
      }
      const bool sequence = random() % 2 == 0;
      const int id =
          static_cast<int>(random() % 300) * 100 + (sequence ? 0 : 1 + static_cast<int>(random() % 99));
      if (!first) outline += " ";
      xml += "<TestElement ID=\"" + std::to_string(id) + "\">";
      outline += std::to_string(id);
      if (sequence) {
        outline += "(";
        ++open;
      } else {
        xml += "<Name LID=\"1::x\"/></TestElement>";
      }
      first = sequence;
    }
    for (; open > 0; --open) {
      xml += "</TestElement>";
      outline += ")";
    }
    ASSERT_EQ(Outline(Build(Catalogue(xml))), outline) << "round " << round << "\n" << xml;
  }
}

TEST_F(CatalogueBuilder, BuildsTheShippedCatalogue) {
  std::ifstream file(CATALOGUE_PATH);
  const auto root = Build({std::istreambuf_iterator<char>(file), {}});
  EXPECT_EQ(Faults(), 0U);
  ASSERT_EQ(root->Count(), 1);
  EXPECT_EQ(DisplayNameOf(root->item(1)), "Complete safety test");
  const std::map<std::int32_t, std::string> units = {{210, "V"},     {410, "mOhm"},    {420, "mOhm"},
                                                     {1010, "MOhm"}, {610, "\u00b5A"}, {1245, "\u00b5A"}};
  for (const auto& [id, unit] : units) {
    const auto element = root->FindElement(id);
    ASSERT_TRUE(element) << id;
    EXPECT_FALSE(As<ITestContainer>(element)) << id;
    EXPECT_EQ(UnitOf(element), unit) << id;
    EXPECT_FALSE(DisplayNameOf(element).empty()) << id;
  }
  for (const std::int32_t id : {100, 1700, 1300, 400, 1000, 1400, 600, 700, 1500, 900, 1100, 1200}) {
    EXPECT_TRUE(As<ITestContainer>(root->FindElement(id))) << id;
  }
}

TEST_F(CatalogueBuilder, GivesAnEmptyCatalogueWhenTheHostHasNoDocument) {
  bench_.Host().Register(orvik::HostClasses::kXmlDocument, [] { return std::shared_ptr<orvik::IObject>(); });
  const auto root = Build(Catalogue("<TestElement ID=\"410\"/>"));
  ASSERT_TRUE(root);
  EXPECT_EQ(root->Count(), 0);
  EXPECT_EQ(Faults(), 1U);
}

}  // namespace

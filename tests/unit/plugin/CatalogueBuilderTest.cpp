#include <gtest/gtest.h>

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
#include "tests/support/VirtualBench.h"

namespace {

using orvik::As;
using orvik::ITestContainer;
using orvik::ITestElement;

std::string DisplayNameOf(const std::shared_ptr<ITestElement>& element) {
  return As<keld::model::CKELDElement>(element)->BaseElement()->Information()->DisplayName();
}

std::string UnitOf(const std::shared_ptr<ITestElement>& element) {
  return As<keld::model::IKELDTest>(element)->ExpectedUnits();
}

/// The entries as "ID" or "ID(members)", separated by blanks.
std::string Outline(const ITestContainer& container) {
  std::string text;
  for (std::int32_t index = 1; index <= container.Count(); ++index) {
    const auto element = container.item(index);
    if (index > 1) text += " ";
    text += std::to_string(element->TestID());
    if (const auto members = As<ITestContainer>(element)) text += "(" + Outline(*members) + ")";
  }
  return text;
}

std::string Catalogue(const std::string& entries) { return "<TemplateData>" + entries + "</TemplateData>"; }

class CatalogueBuilder : public testing::Test {
 protected:
  std::shared_ptr<ITestContainer> Build(const std::string& xml) { return keld::plugin::BuildCatalogue(xml); }

  std::size_t Faults() const {
    const auto lines = bench_.ErrorLines();
    for (const auto& line : lines)
      EXPECT_TRUE(line.ends_with("\tKELD(IN)\t0x8004A22C\t-2147179988\tCKELDPlugin\t3")) << line;
    return lines.size();
  }

  support::HostOnly bench_;
};

TEST_F(CatalogueBuilder, BuildsSequencesAndTestsInOrder) {
  struct Row {
    const char* name;
    std::string xml;
    const char* outline;
    std::size_t faults = 0;
  };
  const std::vector<Row> rows = {
      {"multiples of 100 are sequences",
       Catalogue("<TestElement ID='100'/><TestElement ID='410'/><TestElement ID='1700'/>"
                 "<TestElement ID='1'/>"),
       "100() 410 1700() 1"},
      {"members at any depth",
       Catalogue("<TestElement ID='1000'><TestElement ID='1010'/><TestElement ID='200'>"
                 "<TestElement ID='210'/><TestElement ID='300'/></TestElement>"
                 "<TestElement ID='1020'/></TestElement><TestElement ID='420'/>"),
       "1000(1010 200(210 300()) 1020) 420"},
      {"a test has no members",
       Catalogue("<TestElement ID='1010'><TestElement ID='210'/><TestElement ID='100'/>"
                 "</TestElement><TestElement ID='420'/>"),
       "1010 420"},
      {"children with another name",
       Catalogue("<Other ID='1'/><TestElement ID='100'><Group><TestElement ID='7'/></Group>"
                 "<testelement ID='8'/><TestElement ID='9'/></TestElement><!-- x --><Testelement/>"
                 "<TestElement ID='410'/><Last/>"),
       "100(9) 410"},
      {"template data at any depth",
       "<Setup><A/><B><TemplateData><TestElement ID='410'/></TemplateData></B></Setup>", "410"},
      {"an empty catalogue", "<TemplateData/>", ""},
      {"an empty identifier is 0, and a fault",
       Catalogue("<TestElement><TestElement ID='410'/></TestElement><TestElement ID=''/>"
                 "<TestElement ID='210'/>"),
       "0(410) 0() 210", 2}};
  for (const Row& row : rows) {
    const auto before = Faults();
    EXPECT_EQ(Outline(*Build(row.xml)), row.outline) << row.name;
    EXPECT_EQ(Faults(), before + row.faults) << row.name;
  }
}

TEST_F(CatalogueBuilder, InitialisesEachEntryAsItsClass) {
  const auto root = Build(Catalogue("<TestElement ID='400'/><TestElement ID='410'/>"));
  EXPECT_EQ(root->item(1)->ClassID(), "orvikKELD.CKELDSequence");
  const auto test = root->item(2);
  EXPECT_EQ(test->ClassID(), "orvikKELD.CKELDTestElement");
  EXPECT_EQ(test->PlugInID(), "KELD(IN)");
  EXPECT_EQ(test->ID(), 410);
  EXPECT_EQ(test->TestID(), 410);
}

TEST_F(CatalogueBuilder, ReadsNameAndUnitFromTheLanguageTexts) {
  const std::string type = "<Type LID='1::Resistance'/>", name = "<Name LID='2::PE'/>",
                    parameter = "<Parameter LID='3::With cord'/>";
  struct Row {
    std::string fields;
    const char* name;
    const char* unit = "";
  };
  const std::vector<Row> rows = {
      {type + name + parameter, "PE"},
      {type + parameter, "Resistance - With cord"},
      {type, "Resistance"},
      {name, "PE"},
      {parameter, " - With cord"},
      {"", ""},
      // The translation decides, not the literal.
      {"<Name LID='21001::'/>" + type, "Resistance"},
      {"<Parameter LID='21002::'/>" + type, "Resistance"},
      // The content is not read; a missing or empty language text is empty.
      {"<Type LID='1::Resistance'>no</Type>" + name + "<Unit LID='3::mOhm'>Ohm</Unit>", "PE", "mOhm"},
      {type + "<Name>PE</Name><Unit LID=''/>", "Resistance"},
      // A later field overwrites an earlier one; names are case-sensitive.
      {"<Name LID='1::First'/><Unit LID='1::A'/><Name LID='2::Second'/><Unit/>", "Second"},
      {name + "<name LID='2::No'/><Units LID='3::Ohm'/><NAME LID='4::No'/>", "PE"}};
  for (const Row& row : rows)
    for (const std::string id : {"410", "400"}) {
      const auto root = Build(Catalogue("<TestElement ID='" + id + "'>" + row.fields + "</TestElement>"));
      ASSERT_EQ(root->Count(), 1) << row.fields;
      EXPECT_EQ(DisplayNameOf(root->item(1)), row.name) << row.fields;
      EXPECT_EQ(UnitOf(root->item(1)), row.unit) << row.fields;
    }
}

TEST_F(CatalogueBuilder, KeepsTheNamesOfGroupAndMemberApart) {
  const auto root =
      Build(Catalogue("<TestElement ID='400'><TestElement ID='410'><Name LID='1::Member'/></TestElement>"
                      "<Name LID='2::Group'/></TestElement>"));
  EXPECT_EQ(DisplayNameOf(root->item(1)), "Group");
  EXPECT_EQ(DisplayNameOf(As<ITestContainer>(root->item(1))->item(1)), "Member");
}

TEST_F(CatalogueBuilder, ReadsTheLeadingNumberOfAnIdentifier) {
  const std::vector<std::pair<std::string, std::string>> rows = {{"410", "410"},
                                                                 {" 410", "410"},
                                                                 {"410abc", "410"},
                                                                 {"0410", "410"},
                                                                 {"410.9", "410"},
                                                                 {"-5", "-5"},
                                                                 {"4.1e2", "410"},
                                                                 {"-100", "-100()"},
                                                                 {"abc", "0()"},
                                                                 {"1e9999", "0()"},
                                                                 {"nan", "0()"},
                                                                 {"2147483647", "2147483647"},
                                                                 {"inf", "0()"},
                                                                 {"-", "0()"},
                                                                 {"-2147483648", "-2147483648"},
                                                                 {" ", "0()"},
                                                                 {"2147483648", "0()"},
                                                                 {"-2147483649", "0()"},
                                                                 {"99999999999999999999999", "0()"}};
  for (const auto& [text, outline] : rows)
    EXPECT_EQ(Outline(*Build(Catalogue("<TestElement ID='" + text + "'/>"))), outline) << text;
  EXPECT_EQ(Faults(), 0U) << "only an empty identifier is a fault";
}

TEST_F(CatalogueBuilder, LogsATextThatIsNotACatalogue) {
  std::vector<std::string> texts = {"",
                                    " ",
                                    "<TestElement ID='410'/>",
                                    "<templatedata/>",
                                    "<Other><Inner/></Other>",
                                    "no xml",
                                    "<TemplateData></Other>",
                                    "<TemplateData/><TemplateData/>",
                                    "\xff\xfe<"};
  const std::string whole = Catalogue("<TestElement ID='400'><TestElement ID='410'/></TestElement>");
  for (std::size_t length = 1; length < whole.size(); ++length) texts.push_back(whole.substr(0, length));
  std::size_t logged = 0;
  for (const auto& xml : texts) {
    const auto root = Build(xml);
    ASSERT_TRUE(root) << xml;
    EXPECT_EQ(root->Count(), 0) << xml;
    EXPECT_EQ(Faults(), ++logged) << xml;
  }
}

TEST_F(CatalogueBuilder, BuildsTenThousandNestedLevels) {
  constexpr int kLevels = 10000;
  std::string xml;
  for (int level = 1; level <= kLevels; ++level)
    xml += "<TestElement ID='" + std::to_string(level * 100) + "'>";
  for (int level = 1; level <= kLevels; ++level) xml += "</TestElement>";
  const auto root = Build(Catalogue(xml));
  auto container = root;
  for (int level = 1; level <= kLevels; ++level) {
    ASSERT_EQ(container->Count(), 1) << level;
    const auto element = container->item(1);
    ASSERT_EQ(element->TestID(), level * 100);
    container = As<ITestContainer>(element);
  }
  EXPECT_EQ(container->Count(), 0);
}

TEST_F(CatalogueBuilder, BuildsTwentyThousandEntries) {
  constexpr int kEntries = 20000;
  std::string xml;
  for (int i = 1; i <= kEntries; ++i) xml += "<TestElement ID='" + std::to_string(i) + "'/>";
  const auto root = Build(Catalogue(xml));
  EXPECT_EQ(root->Count(), kEntries);
  EXPECT_EQ(root->item(kEntries)->TestID(), kEntries);
}

TEST_F(CatalogueBuilder, BuildsRandomTrees) {
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
      xml += "<TestElement ID='" + std::to_string(id) + "'>";
      outline += std::to_string(id);
      if (sequence) {
        outline += "(";
        ++open;
      } else {
        xml += "<Name LID='1::x'/></TestElement>";
      }
      first = sequence;
    }
    for (; open > 0; --open) {
      xml += "</TestElement>";
      outline += ")";
    }
    ASSERT_EQ(Outline(*Build(Catalogue(xml))), outline) << "round " << round << "\n" << xml;
  }
}

TEST_F(CatalogueBuilder, BuildsTheShippedCatalogue) {
  const auto root = Build(support::ShippedCatalogue());
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
  for (const std::int32_t id : {100, 1700, 1300, 400, 1000, 1400, 600, 700, 1500, 900, 1100, 1200})
    EXPECT_TRUE(As<ITestContainer>(root->FindElement(id))) << id;
}

TEST_F(CatalogueBuilder, IsEmptyWithoutAnXmlService) {
  bench_.Host().Register(orvik::HostClasses::kXmlDocument, [] { return nullptr; });
  const auto root = Build(Catalogue("<TestElement ID='410'/>"));
  ASSERT_TRUE(root);
  EXPECT_EQ(root->Count(), 0);
  EXPECT_EQ(Faults(), 1U);
}

}  // namespace

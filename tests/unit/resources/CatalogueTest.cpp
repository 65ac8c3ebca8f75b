#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <functional>
#include <map>
#include <pugixml.hpp>
#include <regex>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace {

constexpr std::array<const char*, 4> kFields = {"Type", "Name", "Parameter", "Unit"};

class CatalogueTest : public testing::Test {
 protected:
  void SetUp() override {
    const pugi::xml_parse_result result = document_.load_file(CATALOGUE_PATH, pugi::parse_full);
    ASSERT_TRUE(result) << CATALOGUE_PATH << ": " << result.description() << " at byte " << result.offset;
  }

  pugi::xml_node Root() const { return document_.document_element(); }

  // Every entry of the document, a group before its members.
  void ForEachEntry(const std::function<void(pugi::xml_node, int)>& visit) const { Walk(Root(), visit); }

  static std::string Lid(pugi::xml_node entry, const char* field) {
    return entry.child(field).attribute("LID").value();
  }

  static std::string Text(const std::string& lid) {
    const std::size_t at = lid.find("::");
    return at == std::string::npos ? "" : lid.substr(at + 2);
  }

 private:
  static void Walk(pugi::xml_node parent, const std::function<void(pugi::xml_node, int)>& visit) {
    for (const pugi::xml_node entry : parent.children("TestElement")) {
      visit(entry, entry.attribute("ID").as_int());
      Walk(entry, visit);
    }
  }

  pugi::xml_document document_;
};

std::set<int> ExpectedIdentifiers() {
  std::set<int> ids = {100, 400, 600, 700,  900,  1000, 1100, 1200, 1300, 1400, 1500, 1700,
                       210, 410, 420, 1010, 1020, 1210, 1220, 1230, 1235, 1240, 1245};
  for (int id = 610; id <= 640; id += 10) ids.insert(id);
  for (int id = 710; id <= 760; id += 10) ids.insert(id);
  for (int id = 910; id <= 965; id += 5) ids.insert(id);
  for (int id = 1110; id <= 1165; id += 5) ids.insert(id);
  return ids;
}

// Place of a single test's family in the order of testing.
int Family(int id) {
  static const std::map<int, int> kOfHundred = {{2, 0}, {4, 1}, {10, 2}, {6, 3}, {7, 4}, {9, 5}, {11, 6}};
  if (id == 1210 || id == 1220) return 7;
  if (id > 1220 && id < 1300) return 8;
  const auto found = kOfHundred.find(id / 100);
  return found == kOfHundred.end() ? -1 : found->second;
}

std::string ExpectedUnit(int id) {
  switch (Family(id)) {
    case 0:
      return "V";
    case 1:
      return "mOhm";
    case 2:
      return "MOhm";
    default:
      return "\xC2\xB5"
             "A";  // micro sign, as the tester sends it
  }
}

TEST_F(CatalogueTest, RootIsTheTemplateDataInUtf8) {
  EXPECT_STREQ(Root().name(), "TemplateData");
  const pugi::xml_node declaration = Root().parent().first_child();
  ASSERT_EQ(declaration.type(), pugi::node_declaration);
  EXPECT_STREQ(declaration.attribute("encoding").value(), "UTF-8");
}

TEST_F(CatalogueTest, HasEachIdentifierOnce) {
  std::set<int> seen;
  ForEachEntry([&](pugi::xml_node entry, int id) {
    EXPECT_EQ(entry.attribute("ID").value(), std::to_string(id)) << "not a plain decimal number";
    EXPECT_TRUE(seen.insert(id).second) << id << " occurs twice";
  });
  EXPECT_EQ(seen, ExpectedIdentifiers());
}

TEST_F(CatalogueTest, GroupsHaveMembersAndSingleTestsHaveNone) {
  ForEachEntry([](pugi::xml_node entry, int id) {
    const bool hasMembers = !entry.child("TestElement").empty();
    EXPECT_EQ(hasMembers, id % 100 == 0) << id;
  });
}

TEST_F(CatalogueTest, TestsAreInTheGroupOfTheirHundred) {
  ForEachEntry([](pugi::xml_node entry, int id) {
    const int group = id / 100 * 100;
    if (id % 100 == 0 || group == 200) return;  // 210 is alone in its hundred
    EXPECT_EQ(entry.parent().attribute("ID").as_int(), group) << id;
  });
}

TEST_F(CatalogueTest, EntriesHaveFourFieldsInOrder) {
  ForEachEntry([](pugi::xml_node entry, int id) {
    std::vector<std::string> names;
    for (const pugi::xml_node child : entry.children()) {
      if (std::string(child.name()) != "TestElement") names.emplace_back(child.name());
    }
    EXPECT_EQ(names, std::vector<std::string>(kFields.begin(), kFields.end())) << id;
    EXPECT_EQ(std::distance(entry.attributes_begin(), entry.attributes_end()), 1) << id;
    for (const char* field : kFields) EXPECT_TRUE(entry.child(field).attribute("LID")) << id << ' ' << field;
  });
}

TEST_F(CatalogueTest, LanguageTextsHaveNumberAndText) {
  const std::regex form("[0-9]{5}::[^ ](.*[^ ])?");
  ForEachEntry([&](pugi::xml_node entry, int id) {
    for (const char* field : kFields) {
      const std::string lid = Lid(entry, field);
      const bool mayBeEmpty = std::string(field) == "Unit" && id % 100 == 0;
      if (mayBeEmpty && lid.empty()) continue;
      EXPECT_TRUE(std::regex_match(lid, form)) << id << ' ' << field << ": \"" << lid << '"';
      EXPECT_EQ(Text(lid).find("%%"), std::string::npos) << "nothing is substituted in a catalogue text";
    }
  });
}

TEST_F(CatalogueTest, TextNumbersRunFrom21000WithoutGaps) {
  std::map<int, std::string> texts;
  std::map<std::string, int> numbers;
  ForEachEntry([&](pugi::xml_node entry, int id) {
    for (const char* field : kFields) {
      const std::string lid = Lid(entry, field);
      if (lid.empty()) continue;
      const int number = std::stoi(lid);
      EXPECT_EQ(texts.try_emplace(number, Text(lid)).first->second, Text(lid)) << id << ' ' << number;
      EXPECT_EQ(numbers.try_emplace(Text(lid), number).first->second, number) << id << ' ' << Text(lid);
    }
  });
  ASSERT_FALSE(texts.empty());
  EXPECT_EQ(texts.begin()->first, 21000);
  EXPECT_EQ(texts.rbegin()->first, 21000 + static_cast<int>(texts.size()) - 1);
}

TEST_F(CatalogueTest, NoTwoEntriesShowTheSameName) {
  std::map<std::string, int> names;
  ForEachEntry([&](pugi::xml_node entry, int id) {
    const auto [at, isNew] = names.try_emplace(Text(Lid(entry, "Name")), id);
    EXPECT_TRUE(isNew) << at->second << " and " << id << " are both named " << at->first;
  });
}

TEST_F(CatalogueTest, NoTwoSingleTestsHaveTheSameTypeAndParameter) {
  std::map<std::string, int> tests;
  ForEachEntry([&](pugi::xml_node entry, int id) {
    if (id % 100 == 0) return;
    const auto [at, isNew] = tests.try_emplace(Lid(entry, "Type") + Lid(entry, "Parameter"), id);
    EXPECT_TRUE(isNew) << at->second << " and " << id;
  });
}

TEST_F(CatalogueTest, UnitsAreThoseOfTheRecordedReadings) {
  ForEachEntry([](pugi::xml_node entry, int id) {
    if (id % 100 == 0) return;
    EXPECT_EQ(Text(Lid(entry, "Unit")), ExpectedUnit(id)) << id;
  });
}

TEST_F(CatalogueTest, GroupHasTheCommonUnitOfItsMembers) {
  ForEachEntry([](pugi::xml_node entry, int id) {
    if (id % 100 != 0) return;
    std::set<std::string> units;
    for (const pugi::xml_node member : entry.children("TestElement")) units.insert(Lid(member, "Unit"));
    EXPECT_EQ(Lid(entry, "Unit"), units.size() == 1 ? *units.begin() : "") << id;
  });
}

TEST_F(CatalogueTest, TestsComeInTheOrderOfTesting) {
  std::vector<int> tests;
  ForEachEntry([&](pugi::xml_node, int id) {
    if (id % 100 != 0) tests.push_back(id);
  });
  ASSERT_FALSE(tests.empty());
  for (std::size_t i = 0; i < tests.size(); ++i) {
    EXPECT_GE(Family(tests[i]), 0) << tests[i];
    if (i == 0) continue;
    const auto before = std::pair(Family(tests[i - 1]), tests[i - 1]);
    EXPECT_LT(before, std::pair(Family(tests[i]), tests[i])) << tests[i - 1] << " before " << tests[i];
  }
}

TEST_F(CatalogueTest, NameAndParameterNameTheSameCondition) {
  // With a wrong label the technician would use the limit of another condition.
  ForEachEntry([](pugi::xml_node entry, int id) {
    const int family = Family(id);
    if (id % 100 == 0 || family < 3 || family == 7) return;
    const std::string name = Text(Lid(entry, "Name"));
    const std::string parameter = Text(Lid(entry, "Parameter"));
    const auto both = [&](const std::string& inName, const std::string& inParameter, bool expected) {
      EXPECT_EQ(name.find(inName) != std::string::npos, expected) << id << ' ' << name << " / " << inName;
      EXPECT_EQ(parameter.find(inParameter) != std::string::npos, expected) << id << ' ' << parameter;
    };
    const int step = id % 100 / 10;
    const int conditions = family == 3 ? 2 : 3;  // an open earth carries no earth leakage current
    const bool isAuxiliary = family == 8;        // 1230 NC, 1240 open neutral
    const bool isReversed = !isAuxiliary && step > conditions;
    const int condition = isAuxiliary ? step - 2 : (step - 1) % conditions + 1;
    both("NC", "ormal condition (NC)", condition == 1);
    both("SFC open neutral", "fault condition (SFC): open neutral", condition == 2);
    both("SFC open earth", "fault condition (SFC): open protective earth", condition == 3);
    both(", mains reversed", ", mains reversed", isReversed);
    if (family < 5) return;
    both(id % 10 == 5 ? " DC, " : " AC, ", id % 10 == 5 ? "DC, " : "AC, ", true);
    both(id % 10 == 5 ? " AC, " : " DC, ", id % 10 == 5 ? "AC, " : "DC, ", false);
    EXPECT_EQ(name.find("single lead") != std::string::npos, family == 6) << id;
  });
}

}  // namespace

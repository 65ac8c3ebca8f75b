#include <gtest/gtest.h>

#include <map>
#include <pugixml.hpp>
#include <regex>
#include <set>

#include "host/standards/LimitSets.h"

namespace host {
namespace {

/// What the catalogue says of a single test.
struct CatalogueTest {
  std::string type, parameter, unit;
};

std::map<std::int32_t, CatalogueTest> Catalogue() {
  pugi::xml_document xml;
  EXPECT_TRUE(xml.load_file(CATALOGUE_PATH));
  std::map<std::int32_t, CatalogueTest> tests;
  const auto words = [](pugi::xml_node entry, const char* part) {
    const std::string text = entry.child(part).attribute("LID").value();
    return text.substr(text.find("::") + (text.empty() ? 1 : 2));
  };
  for (const auto& found : xml.select_nodes("//TestElement[not(TestElement)]"))
    tests[found.node().attribute("ID").as_int()] = {
        words(found.node(), "Type"), words(found.node(), "Parameter"), words(found.node(), "Unit")};
  return tests;
}

bool Has(const std::string& text, const std::string& part) { return text.find(part) != std::string::npos; }

std::vector<standards::LimitSet> Shipped() {
  std::vector<standards::LimitSet> sets;
  for (const auto& entry : standards::LimitSets({SOURCE_PATH "/packaging/standards"}).All()) {
    EXPECT_TRUE(entry.set) << entry.fault;
    if (entry.set) sets.push_back(*entry.set);
  }
  return sets;
}

/// The upper bound of each test as the standards have it, put down a second time in another way; none for a
/// test without a figure. Equipment is class I (`one`) or II; an applied part of type F is separated.
std::optional<int> Iec60601(const CatalogueTest& test, bool one, const std::string& type) {
  const bool openEarth = Has(test.parameter, "open protective earth");
  const bool fault = Has(test.parameter, "SFC") && (one || !openEarth);
  if (Has(test.type, "Protective earth"))
    return one ? std::optional(Has(test.parameter, "Including") ? 200 : 100) : std::nullopt;
  if (Has(test.type, "Earth leakage")) return one ? std::optional(fault ? 10000 : 5000) : std::nullopt;
  if (Has(test.type, "touch current")) return fault ? 500 : 100;
  if (Has(test.type, "mains on applied part"))
    return type == "B" ? std::nullopt : std::optional(type == "BF" ? 5000 : 50);
  if (Has(test.type, "Patient")) {
    const bool low = type == "CF" || Has(test.parameter, "DC");
    return (low ? 10 : 100) * (fault ? 5 : 1);
  }
  return std::nullopt;
}

std::optional<int> Iec62353(const CatalogueTest& test, bool one, const std::string& type) {
  const bool openEarth = Has(test.parameter, "open protective earth");
  const bool openNeutral = Has(test.parameter, "open neutral");
  if (Has(test.type, "Protective earth"))
    return one ? std::optional(Has(test.parameter, "Including") ? 300 : 200) : std::nullopt;
  if (Has(test.type, "touch current")) {
    if (openNeutral || (one && !openEarth)) return std::nullopt;
    return one ? 500 : 100;
  }
  if (Has(test.type, "mains on applied part"))
    return type == "B" ? std::nullopt : std::optional(type == "BF" ? 5000 : 50);
  return std::nullopt;
}

TEST(ShippedSets, ExistForAllStandardsClassesAndTypes) {
  std::set<std::string> names;
  for (const auto& set : Shipped()) {
    names.insert(set.Name());
    const bool recurrent = set.standard == "IEC 62353";
    EXPECT_EQ(set.edition, recurrent ? "2014" : "2005+A1:2012");
    auto type = set.type;
    for (auto& letter : type) letter = static_cast<char>(letter - 'A' + 'a');
    EXPECT_EQ(set.Name(), std::string(recurrent ? "iec-62353" : "iec-60601-1") + "-class-" +
                              (set.equipmentClass == "I" ? "1-" : "2-") + type);
  }
  EXPECT_EQ(names.size(), 12U);
}

TEST(ShippedSets, EveryTestHasExactlyTheStandardsFigure) {
  const auto catalogue = Catalogue();
  ASSERT_GT(catalogue.size(), 40U);
  for (const auto& set : Shipped()) {
    for (const auto& [id, test] : catalogue) {
      SCOPED_TRACE(set.Name() + ", test " + std::to_string(id));
      const bool one = set.equipmentClass == "I";
      const auto expected =
          set.standard == "IEC 62353" ? Iec62353(test, one, set.type) : Iec60601(test, one, set.type);
      const auto* figure = set.FigureFor(id);
      ASSERT_EQ(figure != nullptr, expected.has_value());
      if (!figure) continue;
      EXPECT_EQ(figure->high, std::to_string(*expected));
      EXPECT_EQ(figure->low, "");
      EXPECT_EQ(figure->unit, test.unit);
    }
  }
}

TEST(ShippedSets, FiguresNameTestsOfTheCatalogueAndTheirSource) {
  const auto catalogue = Catalogue();
  const std::regex source(
      "IEC (60601-1:2005\\+A1:2012, 8\\.\\d\\.\\d [a-d]\\).*|62353:2014, (5\\.3\\.2\\.2|Table 2, .+))");
  for (const auto& set : Shipped()) {
    for (const auto& figure : set.figures) {
      EXPECT_TRUE(std::regex_match(figure.source, source)) << set.Name() << ": " << figure.source;
      EXPECT_FALSE(figure.condition.empty()) << set.Name();
      for (const auto id : figure.tests) {
        ASSERT_TRUE(catalogue.contains(id)) << set.Name() << ": " << id;
        const auto& parameter = catalogue.at(id).parameter;
        EXPECT_EQ(Has(figure.condition, "d.c."), Has(parameter, "DC")) << set.Name() << ": " << id;
        EXPECT_TRUE(Has(figure.condition, "a.c.") || !Has(parameter, "AC")) << set.Name() << ": " << id;
      }
    }
  }
}

/// The tests that the reasons for leaving something out speak of: "tests 410, 420 and 610 to 640".
std::set<std::int32_t> TestsIn(const std::string& text) {
  std::set<std::int32_t> tests;
  static const std::regex range("(\\d{3,4})( to (\\d{3,4}))?");
  for (std::sregex_iterator found(text.begin(), text.end(), range), end; found != end; ++found) {
    const auto first = std::stoi((*found)[1]), last = (*found)[3].matched ? std::stoi((*found)[3]) : first;
    for (auto id = first; id <= last; ++id) tests.insert(id);
  }
  return tests;
}

TEST(ShippedSets, ATestWithoutAFigureHasItsReason) {
  for (const auto& set : Shipped()) {
    std::set<std::int32_t> explained;
    for (const auto& out : set.leftOut) {
      if (!Has(out.what, "test")) continue;
      for (const auto id : TestsIn(out.what.substr(out.what.find("test")))) explained.insert(id);
    }
    for (const auto& [id, test] : Catalogue())
      EXPECT_NE(set.FigureFor(id) != nullptr, explained.contains(id))
          << set.Name() << ", test " << id << ": either a figure or a reason";
  }
}

}  // namespace
}  // namespace host

#include <algorithm>

#include "tests/system/cli/CliTest.h"

namespace cli {
namespace {

constexpr char kOwn[] =
    "<LimitSet Version='1' Standard='Maker' Edition='7'>\n"
    "<Figure Tests='410' High='0.25' Unit='Ohm' Source='manual'/>\n"
    "<Figure Tests='1010' Low='7' High='' Unit='MOhm' Source='manual'/></LimitSet>\n";

std::string Own() {
  std::string text = kOwn;
  return text.replace(text.find(" High=''"), 8, "");
}

class StandardsCommandTest : public CliTest {
 protected:
  void WriteOwn(const std::string& name, const std::string& text) const {
    std::filesystem::create_directories(Path("state/standards"));
    Write("state/standards/" + name, text);
  }
  /// A document with the whole test of class I equipment.
  std::string WholeDocument() const { return NewDocument({"100"}); }

  static std::size_t Count(const std::string& text, const std::string& part) {
    std::size_t count = 0;
    for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++count;
    return count;
  }
};

TEST_F(StandardsCommandTest, ListsShippedAndOwnSets) {
  WriteOwn("mine.xml", Own());
  const auto listed = Bench({"standards"});
  EXPECT_EQ(listed.status, 0) << listed.error;
  EXPECT_THAT(listed.out, HasSubstr("iec-62353-class-1-bf"));
  EXPECT_THAT(listed.out, HasSubstr(Path("state/standards")));
  const auto sets = Json({"standards", "--json"})["standards"];
  ASSERT_EQ(sets.size(), 13U);
  EXPECT_EQ(sets[0]["set"], "iec-60601-1-class-1-b");
  EXPECT_EQ(sets[0]["standard"], "IEC 60601-1");
  EXPECT_EQ(sets[0]["class"], "I");
  EXPECT_EQ(sets[0]["type"], "B");
  EXPECT_EQ(sets[12]["set"], "mine");
  EXPECT_EQ(sets[12]["edition"], "7");
  EXPECT_EQ(sets[12]["figures"], 2);
  EXPECT_EQ(sets[12]["file"], Path("state/standards/mine.xml"));
}

TEST_F(StandardsCommandTest, ReportsABadSet_ListsTheOthers) {
  WriteOwn("bad.xml", "<LimitSet>\n");
  const auto listed = Bench({"standards"});
  EXPECT_EQ(listed.status, 3);
  EXPECT_THAT(listed.error, HasSubstr(Path("state/standards/bad.xml") + ", line "));
  EXPECT_THAT(listed.out, HasSubstr("iec-62353-class-2-cf"));
  const auto json = Bench({"standards", "--json"});
  EXPECT_EQ(json.status, 3);
  EXPECT_TRUE(nlohmann::json::parse(json.out)["standards"][12].contains("fault"));
}

TEST_F(StandardsCommandTest, ShowsTheFiguresOfASetWithTheirSources) {
  const auto shown = Bench({"standards", "iec-62353-class-1-bf"});
  EXPECT_EQ(shown.status, 0) << shown.error;
  for (const char* part :
       {"at most 300 mOhm", "tests 410", "IEC 62353:2014, 5.3.2.2", "Left out:", "Table 2"})
    EXPECT_THAT(shown.out, HasSubstr(part));
  const auto json = Json({"standards", "iec-62353-class-1-bf", "--json"});
  EXPECT_EQ(json["figures"][0]["high"], 300.0);
  EXPECT_EQ(json["figures"][0]["low"], nullptr);
  EXPECT_EQ(json["figures"][0]["tests"][0], 410);
  EXPECT_FALSE(json["leftOut"].empty());
}

TEST_F(StandardsCommandTest, AppliesASetToEveryElementItCovers) {
  const auto file = WholeDocument();
  const auto applied = Bench({"limit", file, "--from", "iec-60601-1-class-1-cf"});
  EXPECT_EQ(applied.status, 0) << applied.error;
  // All tests of the catalogue but mains voltage and the two of insulation resistance.
  const auto text = Contents(file);
  const auto all = Count(text, "Class=\"orvikKELD.CKELDTestElement\"");
  EXPECT_EQ(Count(text, "<Limit "), all - 3);
  EXPECT_EQ(Count(applied.out, "not judged: it needs a limit or --record-only"), 3U) << applied.out;
  const auto unknown = applied.out.substr(applied.out.find("Not covered by this set:"));
  for (const char* name : {"Mains voltage", "Insulation, mains part", "Insulation, applied parts"})
    EXPECT_THAT(unknown, HasSubstr(name));
  EXPECT_THAT(text, HasSubstr("Description=\"2005+A1:2012, class I, type CF\""));
}

TEST_F(StandardsCommandTest, ApplyingTwice_ChangesNothing) {
  const auto file = WholeDocument();
  Done({"limit", file, "--from", "iec-62353-class-1-bf"});
  const auto once = Contents(file);
  Done({"limit", file, "--from", "iec-62353-class-1-bf"});
  EXPECT_EQ(Contents(file), once);
}

TEST_F(StandardsCommandTest, ElementOption_SelectsABranch) {
  const auto file = NewDocument({"410", "400"});
  const auto applied = Bench({"limit", file, "--from", "iec-62353-class-1-b", "--element", "2"});
  EXPECT_EQ(applied.status, 0) << applied.error;
  EXPECT_EQ(Count(applied.out, "at most"), 2U) << applied.out;
  const auto text = Contents(file);
  EXPECT_LT(text.find("TestID=\"400\""), text.find("<Limit ")) << "element 1 has got a limit";
}

TEST_F(StandardsCommandTest, AppliesOwnSetsByNameAndPath_Converted) {
  WriteOwn("mine.xml", Own());
  Write("elsewhere.xml", Own());
  for (const auto& set : {std::string("mine"), Path("elsewhere.xml")}) {
    const auto file = NewDocument({"410"});
    const auto applied = Bench({"limit", file, "--from", set});
    EXPECT_EQ(applied.status, 0) << applied.error;
    EXPECT_THAT(applied.out, HasSubstr("at most 250 mOhm"));
    EXPECT_THAT(Contents(file), HasSubstr("Unit=\"mOhm\" High=\"250\""));
    std::filesystem::remove(file);
  }
}

TEST_F(StandardsCommandTest, FailedLimitOfASet_FailsTheRun) {
  const auto file = NewDocument({"410"});
  Done({"limit", file, "--from", "iec-62353-class-1-bf"});
  EXPECT_EQ(RunSound(file).status, 0);
  Write("broken", "based-on = sound-class-1\n410 = 0.301 Ohm\n");
  EXPECT_EQ(Bench(Simulated(file, Path("broken"))).status, 1);
  EXPECT_EQ(Show(file)["elements"][0]["failedStandards"][0], "IEC 62353");
}

class RefusedLimits : public StandardsCommandTest, public testing::WithParamInterface<Refusal> {};

TEST_P(RefusedLimits, NameTheReasonAndChangeNothing) {
  const auto file = NewDocument({"410", "210"});
  Write("volts.xml",
        "<LimitSet Version='1' Standard='S' Edition='1'>"
        "<Figure Tests='410' High='1' Unit='V' Source='s'/></LimitSet>");
  Write("later.xml",
        "<LimitSet Version='1' Standard='S' Edition='1'><Figure Tests='410' High='1' Unit='Ohm' "
        "Source='s'/><Figure Tests='210' High='1' Unit='A' Source='s'/></LimitSet>");
  Write("bad.xml", "<LimitSet Version='1' Standard='S' Edition='1'>\n<Figure/></LimitSet>");
  ExpectRefused(Join({"limit", file}, GetParam().words), GetParam().named);
}

INSTANTIATE_TEST_SUITE_P(
    Table, RefusedLimits,
    testing::Values(
        Refusal{"NoSuchSet", {"--from", "none"}, {"\"none\"", "standards"}},
        Refusal{"NoSuchFile", {"--from", "@none.xml"}, {"none.xml"}},
        Refusal{"BadSet", {"--from", "@bad.xml"}, {"bad.xml, line 2", "Tests"}},
        Refusal{"EmptyName", {"--from", ""}, {"--from"}},
        Refusal{"UnitDoesNotFit", {"--from", "@volts.xml"}, {"volts.xml", "element 1", "V", "mOhm"}},
        Refusal{"SecondUnitDoesNotFit", {"--from", "@later.xml"}, {"later.xml", "element 2", "A"}},
        Refusal{"KnowsNothing", {"--from", "iec-62353-class-1-b", "--element", "2"}, {"covers none"}},
        Refusal{"NoSuchElement", {"--from", "iec-62353-class-1-b", "--element", "9"}, {"--element 9"}},
        Refusal{"FromAndStandard",
                {"--from", "iec-62353-class-1-b", "--standard", "S"},
                {"--from", "--standard"}},
        Refusal{"FromAndHigh", {"--from", "iec-62353-class-1-b", "--high", "1"}, {"--from", "--high"}},
        Refusal{"NeitherElementNorSet", {"--standard", "S", "--high", "1"}, {"--element", "--from"}},
        Refusal{"NoStandard", {"--element", "1", "--high", "1"}, {"--standard"}},
        Refusal{"SingleUnit",
                {"--element", "1", "--standard", "S", "--high", "1", "--unit", "A"},
                {"--unit", "A", "mOhm"}}),
    kNamed);

TEST_F(StandardsCommandTest, SingleLimit_IsConvertedToTheUnit) {
  const auto file = NewDocument({"410"});
  const auto set =
      Bench({"limit", file, "--element", "1", "--standard", "S", "--high", "0.3", "--unit", "Ohm"});
  EXPECT_EQ(set.status, 0) << set.error;
  EXPECT_THAT(set.out, HasSubstr("at most 300 mOhm"));
  EXPECT_THAT(Contents(file), HasSubstr("Unit=\"mOhm\" High=\"300\""));
}

TEST_F(StandardsCommandTest, ElementWithoutAUnit_RefusesABoundWithOne) {
  Write("own.xml",
        R"(<TemplateData><TestElement ID="410"><Type LID=""/><Name LID="1::Mine"/><Parameter LID=""/>
                      <Unit LID=""/></TestElement></TemplateData>)");
  const auto file = Path("d.orvik");
  Done({"new", file, "--add", "410", "--catalogue", Path("own.xml")});
  const auto refused =
      Bench({"limit", file, "--from", "iec-62353-class-1-b", "--catalogue", Path("own.xml")});
  EXPECT_EQ(refused.status, 3);
  EXPECT_THAT(refused.error, HasSubstr("without a unit"));
}

}  // namespace
}  // namespace cli

#include <regex>

#include "tests/system/cli/CliTest.h"

namespace cli {
namespace {

class DocumentCommandsTest : public CliTest {};

TEST_F(DocumentCommandsTest, Tests_PrintsTheCatalogue) {
  const auto text = Bench({"tests"});
  EXPECT_EQ(text.status, 0) << text.error;
  EXPECT_THAT(text.out, HasSubstr("410"));
  EXPECT_THAT(text.out, HasSubstr("mOhm"));
  const auto json = Json({"tests", "--json"});
  EXPECT_EQ(json["tests"][0]["testId"], 100);
  EXPECT_EQ(json["tests"][0]["kind"], "sequence");
}

TEST_F(DocumentCommandsTest, Tests_PrintsACatalogueOfAnyDepth) {
  std::string entries, ends;
  for (int level = 0; level < 3000; ++level) {
    entries += R"(<TestElement ID="100">)";
    ends += "</TestElement>";
  }
  Write("deep.xml", "<TemplateData>" + entries + ends + "</TemplateData>");
  const auto text = Bench({"tests", "--catalogue", Path("deep.xml")});
  EXPECT_EQ(text.status, 0) << text.error;
  EXPECT_LT(text.out.size(), 3000U * 100);
}

TEST_F(DocumentCommandsTest, CatalogueFile_ReplacesTheRegistry) {
  Write("own.xml",
        R"(<TemplateData><TestElement ID="410"><Type LID=""/><Name LID="1::Mine"/><Parameter LID=""/>
                      <Unit LID="2::mOhm"/></TestElement></TemplateData>)");
  for (const auto& words : {Words{"--catalogue", Path("own.xml"), "tests", "--json"},
                            Words{"tests", "--json", "--catalogue", Path("own.xml")}}) {
    const auto json = Json(words);
    ASSERT_EQ(json["tests"].size(), 1u);
    EXPECT_EQ(json["tests"][0]["name"], "Mine");
    EXPECT_EQ(json["tests"][0]["unit"], "mOhm");
  }
  EXPECT_GT(Json({"tests", "--json"})["tests"].size(), 1u);
}

TEST_F(DocumentCommandsTest, New_PrintsTheIdentifiers) {
  const auto made = Bench({"new", Path("a.orvik"), "--add", "210", "400", "--asset", "A7"});
  EXPECT_EQ(made.status, 0) << made.error;
  EXPECT_EQ(made.out,
            "   1   210  Mains voltage\n"
            "   2   400  Protective earth resistance\n"
            "   3   410  Protective earth, with mains cord\n"
            "   4   420  Protective earth, without mains cord\n");
  const auto shown = Show(Path("a.orvik"));
  EXPECT_EQ(shown["outcome"], "incomplete");
  EXPECT_EQ(shown["instrument"], nullptr);
  EXPECT_EQ(shown["elements"][3]["parent"], 2);
  EXPECT_EQ(shown["elements"][3]["measurement"], nullptr);
  EXPECT_EQ(shown["elements"][3]["statusText"], "not tested");
}

// A document that was changed by hand after its run: nothing counts that is not what the run recorded.
TEST_F(DocumentCommandsTest, ChangedResult_DoesNotPass) {
  const auto file = NewDocument({"410"});
  SetLimit(file, "1", "300");
  ASSERT_EQ(RunSound(file).status, 0);
  const auto text = std::regex_replace(Contents(file), std::regex("\n *"), "\n");
  struct Change {
    const char *from, *to, *verdict, *code;
    bool wrong = true;  ///< whether `check` finds it
  };
  for (const auto& [from, to, verdict, code, wrong] :
       {Change{"<Measurement>[^]*</Measurement>", "", "not tested", "other-reading"},
        Change{"<Status>1</Status>\n</Measurement>", "<Status>2</Status></Measurement>", "not tested",
               "other-reading"},
        Change{"<Unit>mOhm</Unit>", "<Unit>Ohm</Unit>", "not tested", "other-reading"},
        Change{"<Limit Key=\"NO LIMIT KEY\" Unit=\"mOhm\"", "<Limit Key=\"NO LIMIT KEY\" Unit=\"V\"",
               "doubtful", "limit-unit"},
        Change{"<Limit Key=\"NO LIMIT KEY\" Unit=\"mOhm\"", "<Limit Key=\"NO LIMIT KEY\" Unit=\"\"",
               "doubtful", "limit-unit"},
        Change{"<Limit Key=\"NO LIMIT KEY\"", "<Limit Key=\"OTHER\"", "doubtful", "limit-key"},
        Change{"<Value>123</Value>", "<Value>1230</Value>", "not tested", "other-reading"},
        Change{"<Value>123</Value>", "<Value>-123</Value>", "not tested", "other-reading"},
        Change{"<Value>123</Value>", "<Value>abc</Value>", "not tested", "other-reading"},
        Change{"<Value>123</Value>", "<Value></Value>", "not tested", "other-reading"},
        Change{"<Value>123</Value>", "", "not tested", "other-reading"},
        Change{"<Measurement>", "<Measurement Flags=\"O\">", "not tested", "other-reading"},
        Change{"Code=\"P\" Value", "Code=\"F\" Value", "doubtful", "service-code"},
        Change{"<Said>gres,410,0,0.123", "<Said>gres,410,0,0.12", "doubtful", "record-changed"},
        Change{"<Takes Elements=\"1\"", "<Takes Elements=\"1 2\"", "doubtful", "record-changed"},
        Change{"<Run [^]*</Run>", "", "not tested", "not-recorded"},
        Change{"<Runs Last=\"[^\"]*\"", "<Runs Last=\"sha256:0\"", "doubtful", "record-changed"},
        Change{"<Runs Last=\"[^\"]*\"", "<Runs", "doubtful", "record-changed"},
        Change{"Asset=\"\" Serial=\"\" Maker=\"\" Model=\"\" />\n<Standards", "Asset=\"B\" />\n<Standards",
               "not tested", "other-equipment", false},
        Change{"Options=\"3\"", "Options=\"4096\"", "not tested", "other-settings", false},
        Change{"<TestElement ID=\"1\" TestID=\"410\"", "<TestElement ID=\"1\" TestID=\"411\"", "not tested",
               "other-test"}}) {
    SCOPED_TRACE(from);
    const auto changed =
        std::regex_replace(text, std::regex(from), to, std::regex_constants::format_first_only);
    ASSERT_NE(changed, text);
    Write("d.orvik", changed);
    const auto shown = Show(file);
    EXPECT_EQ(shown["outcome"], "incomplete");
    EXPECT_EQ(shown["elements"][0]["verdict"], verdict) << shown["elements"][0];
    EXPECT_THAT(shown["elements"][0]["reasons"].dump(), HasSubstr(code)) << shown["elements"][0];
    EXPECT_EQ(Bench({"check", file}).status, wrong ? 3 : 0) << Bench({"check", file}).out;
  }
}

TEST_F(DocumentCommandsTest, NumbersWithLeadingZerosAreDecimal) {
  const auto made = Bench({"new", Path("z.orvik"), "--add", "0410", "910"});
  EXPECT_EQ(made.status, 0) << made.error;
  EXPECT_THAT(made.out, HasSubstr(" 410 "));
}

TEST_F(DocumentCommandsTest, New_NeverOverwrites) {
  Write("a.orvik", "mine");
  const auto refused = Bench({"new", Path("a.orvik"), "--add", "210"});
  EXPECT_EQ(refused.status, 3);
  EXPECT_THAT(refused.error, HasSubstr("a.orvik"));
  EXPECT_EQ(Contents(Path("a.orvik")), "mine");
}

TEST_F(DocumentCommandsTest, Limit_AcceptsNegativeAndReplacesOlderBounds) {
  const auto file = NewDocument({"410"});
  const auto first =
      Bench({"limit", file, "--element", "1", "--standard", "S", "--low", "-5", "--high", "7"});
  EXPECT_EQ(first.status, 0) << first.error;
  EXPECT_THAT(first.out, HasSubstr("at least -5 at most 7 mOhm"));
  Done({"limit", file, "--element", "1", "--standard", "S", "--high", "8"});
  const auto text = Contents(file);
  EXPECT_THAT(text, Not(HasSubstr("-5")));
}

TEST_F(DocumentCommandsTest, Config_ShowsAndChangesSettings) {
  const auto file = NewDocument({"910", "400"});
  EXPECT_EQ(Bench({"config", file, "--element", "1", "--options", "4"}).out,
            "element 1: options 4 (leads: 1; buttons: none)\n");
  Done({"config", file, "--element", "2", "--filter", "Maximum value"});
  EXPECT_THAT(Bench({"config", file, "--element", "2"}).out, HasSubstr("Maximum value"));
  SetWideLimits(file, {"1", "3", "4"});
  EXPECT_EQ(RunSound(file).status, 0);
  EXPECT_EQ(SentIn(file + ".wire.log", 1), "STST,910,1");
  EXPECT_EQ(Show(file)["elements"][1]["measurement"]["value"], 123.0);
}

// Saved as an empty text, which the element reads back as 0.
TEST_F(DocumentCommandsTest, ReopenedSequence_HasNoValue) {
  const auto file = NewDocument({"400"});
  SetWideLimits(file, {"2", "3"});
  ASSERT_EQ(RunSound(file).status, 0);
  EXPECT_TRUE(Show(file)["elements"][0]["measurement"]["value"].is_null()) << Show(file);
  EXPECT_THAT(Bench({"show", file}).out, HasSubstr("   1  passed          -  "));
}

TEST_F(DocumentCommandsTest, ReadingBelowTheTestLeads_IsDoubtful) {
  Write("leads", "based-on = sound-class-1\n410 = 400 mOhm\n");
  Done({"calibrate", "--simulate", Path("leads"), "--time-scale", kTimeScale});
  const auto file = NewDocument({"400"});
  SetLimit(file, "2", "200");
  EXPECT_EQ(RunSound(file).status, 2);
  const auto element = Show(file)["elements"][1];
  EXPECT_EQ(element["measurement"]["value"], 0.0);
  EXPECT_THAT(element["doubts"].dump(), HasSubstr("123 mOhm is less than the 400 mOhm of the test leads"))
      << element;
}

TEST_F(DocumentCommandsTest, Report_ContainsTheReadings) {
  Write("over", "based-on = sound-class-1\n420 = 0.001 Ohm overload\n");
  const auto file = Path("a.orvik");
  EXPECT_EQ(Bench({"new", file, "--add", "410", "420", "--asset", "A|7;{}"}).status, 0);
  SetWideLimits(file, {"1", "2"});
  EXPECT_EQ(Bench(Simulated(file, Path("over"))).status, 2);
  const auto written = Bench({"report", file, "--to", Path("a.txt")});
  EXPECT_EQ(written.status, 0) << written.error;
  const auto text = Contents(Path("a.txt"));
  for (const char* part : {"A|7;{}", "INCOMPLETE", "SIM-0001", "123 mOhm", "OL", "doubtful", "passed"})
    EXPECT_THAT(text, HasSubstr(part));
}

// A limit that opening would otherwise drop: the element would count as not tested, without a word.
TEST_F(DocumentCommandsTest, FaultyElement_IsRefused) {
  const auto file = NewDocument({"410", "1010"});
  SetLimit(file, "1", "300");
  const auto good = Contents(file);
  const struct {
    const char *from, *to, *reason;
  } kFaults[] = {{"High=\"300\"", "High=\"abc\"", "abc"},
                 {"ID=\"2\" TestID=\"1010\"", "ID=\"1\" TestID=\"1010\"", "the identifier 1 is used twice"}};
  for (const auto& [from, to, reason] : kFaults) {
    auto text = good;
    const auto at = text.find(from);
    ASSERT_NE(at, std::string::npos) << from;
    const auto line = 1 + std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(at), '\n');
    text.replace(at, std::string(from).size(), to);
    Write("d.orvik", text);
    for (const auto* command : {"show", "check"}) {
      const auto refused = Bench({command, Path("d.orvik")});
      EXPECT_EQ(refused.status, 3) << command << from;
      EXPECT_THAT(refused.out + refused.error, HasSubstr("d.orvik, line " + std::to_string(line)));
      EXPECT_THAT(refused.out + refused.error, HasSubstr(reason));
    }
    EXPECT_EQ(Contents(Path("d.orvik")), text);
  }
}

TEST_F(DocumentCommandsTest, HelpAndVersionEndWithZero) {
  Done({"--help"});
  Done({"run", "--help"});
  EXPECT_EQ(Bench({"--version"}).out, "orvik-bench 2.2.0.2\n");
}

}  // namespace
}  // namespace cli

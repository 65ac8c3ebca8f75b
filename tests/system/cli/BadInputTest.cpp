#include "tests/system/cli/CliTest.h"

namespace cli {
namespace {

struct BadInput {
  const char* name;
  std::vector<std::string> words;  ///< "@x" stands for the file x in the test's folder
  std::vector<std::string> told;   ///< what the message names
};

std::ostream& operator<<(std::ostream& out, const BadInput& input) { return out << input.name; }

class BadInputTest : public CliTest, public testing::WithParamInterface<BadInput> {
 protected:
  std::string Resolved(const std::string& word) const { return word[0] == '@' ? Path(word.substr(1)) : word; }
};

TEST_P(BadInputTest, EndsWithThreeAndNamesWhatIsWrong) {
  NewDocument({"410"});
  Write("garbled.orvik", "<OrvikDocument>\n<Elements>\n</OrvikDocument>\n");
  Write("garbled.xml", "<TemplateData>\n<TestElement>\n</TemplateData>\n");
  Write("other.xml", "<Other/>");
  Write("text", "text");
  const auto document = Contents(Path("d.orvik"));
  Words words;
  for (const auto& word : GetParam().words) words.push_back(Resolved(word));
  const auto refused = Bench(words);
  EXPECT_EQ(refused.status, 3) << refused.error;
  EXPECT_EQ(refused.out, "");
  EXPECT_EQ(refused.error.find("\n\n"), std::string::npos) << refused.error;
  for (const auto& told : GetParam().told)
    EXPECT_NE(refused.error.find(Resolved(told)), std::string::npos)
        << told << " is not in: " << refused.error;
  EXPECT_EQ(Contents(Path("d.orvik")), document) << "the document was changed";
}

INSTANTIATE_TEST_SUITE_P(
    Table, BadInputTest,
    testing::Values(
        BadInput{"NoCommand", {}, {"--help"}}, BadInput{"UnknownCommand", {"fly"}, {"fly"}},
        BadInput{"UnknownOption", {"tests", "--fast"}, {"--fast"}},
        BadInput{"CatalogueAbsent", {"tests", "--catalogue", "@none.xml"}, {"@none.xml"}},
        BadInput{"CatalogueGarbled", {"tests", "--catalogue", "@garbled.xml"}, {"@garbled.xml", "line 3"}},
        BadInput{"CatalogueOther", {"tests", "--catalogue", "@other.xml"}, {"@other.xml", "TemplateData"}},
        BadInput{"StateIsAFile", {"run", "@d.orvik", "--simulate", "--state", "@text"}, {"@text"}},
        BadInput{"NewEmptyName", {"new", "", "--add", "410"}, {"FILE", "empty"}},
        BadInput{"ShowEmptyName", {"show", ""}, {"FILE", "empty"}},
        BadInput{"StateEmptyName", {"show", "@d.orvik", "--state", ""}, {"--state", "empty"}},
        BadInput{
            "WireLogEmptyName", {"run", "@d.orvik", "--simulate", "--wire-log", ""}, {"--wire-log", "empty"}},
        BadInput{"SetEmptyName", {"limit", "@d.orvik", "--from", ""}, {"--from", "empty"}},
        BadInput{"ArchiveEmptyName", {"archive", "list", "--archive", ""}, {"--archive", "empty"}},
        BadInput{"ExportEmptyName", {"archive", "export", "1", "--to", ""}, {"--to", "empty"}},
        BadInput{"NewWithoutTests", {"new", "@n.orvik"}, {"--add"}},
        BadInput{"NewWithNoNumber", {"new", "@n.orvik", "--add", "x"}, {"--add", "x"}},
        BadInput{
            "NewWithAList", {"new", "@n.orvik", "--add", "410,910"}, {"--add 410,910: ", ": --add 410 910"}},
        BadInput{"NewWithAnotherList",
                 {"new", "@n.orvik", "--add", "410", "610; 910"},
                 {"--add 610; 910: ", ": --add 610 910"}},
        BadInput{"RunWithAList",
                 {"run", "@d.orvik", "--simulate", "--element", "1,2"},
                 {"--element 1,2: ", ": --element 1 --element 2"}},
        BadInput{
            "NewWithAFraction", {"new", "@n.orvik", "--add", "410.0"}, {"--add 410.0: ", "whole number"}},
        BadInput{"NewInHexadecimal", {"new", "@n.orvik", "--add", "0x19A"}, {"--add 0x19A: ", "digits"}},
        BadInput{"NewWithNothing", {"new", "@n.orvik", "--add", ""}, {"--add : ", "whole number"}},
        BadInput{"NewBeyondAllNumbers",
                 {"new", "@n.orvik", "--add", "99999999999999999999"},
                 {"--add 99999999999999999999: ", "up to 2147483647"}},
        BadInput{"LimitElementNoNumber",
                 {"limit", "@d.orvik", "--element", "one", "--standard", "S", "--high", "1"},
                 {"--element one: ", "whole number"}},
        BadInput{"LimitElementsInAList",
                 {"limit", "@d.orvik", "--element", "1,2", "--standard", "S", "--high", "1"},
                 {"--element 1,2: ", ": --element 1 2"}},
        BadInput{
            "ConfigElementNoNumber", {"config", "@d.orvik", "--element", "a"}, {"--element a: ", "whole"}},
        BadInput{"ConfigOptionsNoNumber",
                 {"config", "@d.orvik", "--element", "1", "--options", "skip"},
                 {"--options skip: ", "whole number"}},
        BadInput{"RunTimeScaleNoNumber",
                 {"run", "@d.orvik", "--simulate", "--time-scale", "0,5"},
                 {"--time-scale 0,5: ", "from 0.001 to 1000000"}},
        BadInput{"GuiTimeScaleNoNumber",
                 {"gui", "--time-scale", "fast"},
                 {"--time-scale fast: ", "from 0.001 to 1000000"}},
        BadInput{"ArchiveShowNoNumber", {"archive", "show", "first"}, {"ID first: ", "whole number"}},
        BadInput{"ArchiveListNoNumber", {"archive", "list", "--limit", "ten"}, {"--limit ten: ", "whole"}},
        BadInput{"ArchiveTrendNoNumber",
                 {"archive", "trend", "--asset", "A", "--test", "earth"},
                 {"--test earth: ", "whole number"}},
        BadInput{"NewWithUnknownTest", {"new", "@n.orvik", "--add", "411"}, {"--add 411"}},
        BadInput{"NewInNoFolder", {"new", "@none/n.orvik", "--add", "410"}, {"@none/n.orvik"}},
        BadInput{"DocumentAbsent", {"show", "@none.orvik"}, {"@none.orvik"}},
        BadInput{"DocumentGarbled", {"show", "@garbled.orvik"}, {"@garbled.orvik", "line 3"}},
        BadInput{"DocumentIsAFolder", {"show", "@"}, {"is no file"}},
        BadInput{"LimitWithoutBound",
                 {"limit", "@d.orvik", "--element", "1", "--standard", "S"},
                 {"--low", "--high"}},
        BadInput{"LimitOfNoElement",
                 {"limit", "@d.orvik", "--element", "9", "--standard", "S", "--high", "1"},
                 {"--element 9"}},
        BadInput{"LimitNoNumber",
                 {"limit", "@d.orvik", "--element", "1", "--standard", "S", "--high", "abc"},
                 {"--high", "abc"}},
        BadInput{"LimitCrossed",
                 {"limit", "@d.orvik", "--element", "1", "--standard", "S", "--low", "5", "--high", "1"},
                 {"--low"}},
        BadInput{"LimitPercentage",
                 {"limit", "@d.orvik", "--element", "1", "--standard", "S", "--high", "10%"},
                 {"--high", "percent"}},
        BadInput{"ConfigOptions",
                 {"config", "@d.orvik", "--element", "1", "--options", "9000"},
                 {"--options 9000"}},
        BadInput{
            "ConfigFilter", {"config", "@d.orvik", "--element", "1", "--filter", "Best"}, {"--filter Best"}},
        BadInput{"ConfigEmptyFilter",
                 {"config", "@d.orvik", "--element", "1", "--filter", ""},
                 {"--filter : ", "Maximum value"}},
        BadInput{"RunWithoutTester", {"run", "@d.orvik"}, {"--port", "--simulate"}},
        BadInput{"RunWithTwoTesters", {"run", "@d.orvik", "--port", "/dev/null", "--simulate"}, {"--port"}},
        BadInput{
            "RunNoSuchDevice", {"run", "@d.orvik", "--port", "@none"}, {"--port", "@none", "does not exist"}},
        BadInput{"RunNoDevice",
                 {"run", "@d.orvik", "--port", "@text"},
                 {"--port", "@text", "is not a serial device"}},
        BadInput{"RunNoElement", {"run", "@d.orvik", "--simulate", "--element", "7"}, {"--element 7"}},
        BadInput{"RunNoProfile", {"run", "@d.orvik", "--simulate", "@none"}, {"--simulate", "@none"}},
        BadInput{
            "RunTimeScaleZero", {"run", "@d.orvik", "--simulate", "--time-scale", "0"}, {"--time-scale 0"}},
        BadInput{
            "RunTimeScaleText", {"run", "@d.orvik", "--simulate", "--time-scale", "x"}, {"--time-scale"}},
        BadInput{"RunOperator", {"run", "@d.orvik", "--simulate", "--operator", "me"}, {"--operator me"}},
        BadInput{"RunJsonAndEvents", {"run", "@d.orvik", "--simulate", "--json", "--events"}, {"--events"}},
        BadInput{"RunWireLog",
                 {"run", "@d.orvik", "--simulate", "--wire-log", "@none/log"},
                 {"@none/log", "--wire-log"}},
        BadInput{"RunWireLogIsTheDocument",
                 {"run", "@d.orvik", "--simulate", "--wire-log", "@d.orvik"},
                 {"@d.orvik: the file has other content", "--wire-log"}},
        BadInput{"RunWireLogIsAText",
                 {"run", "@d.orvik", "--simulate", "--wire-log", "@text"},
                 {"@text: the file has other content", "--wire-log"}},
        BadInput{"WaitNegative", {"tests", "--wait", "-1"}, {"--wait -1"}},
        BadInput{"WaitNoNumber", {"tests", "--wait", "long"}, {"--wait long: ", "whole number"}},
        BadInput{"ReportOfAnotherKind", {"report", "@d.orvik", "--to", "@x.doc"}, {"--to", "@x.doc"}},
        BadInput{"Language", {"tests", "--lang", "../x"}, {"../x"}}),
    [](const auto& tested) { return std::string(tested.param.name); });

}  // namespace
}  // namespace cli

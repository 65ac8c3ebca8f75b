#include "tests/system/cli/CliTest.h"

namespace cli {
namespace {

class BadInputTest : public CliTest, public testing::WithParamInterface<Refusal> {};

TEST_P(BadInputTest, EndsWithThree_NamesTheFault) {
  NewDocument({"410"});
  Write("garbled.orvik", "<OrvikDocument>\n<Elements>\n</OrvikDocument>\n");
  Write("garbled.xml", "<TemplateData>\n<TestElement>\n</TemplateData>\n");
  Write("other.xml", "<Other/>");
  Write("text", "text");
  ExpectRefused(GetParam().words, GetParam().named);
}

INSTANTIATE_TEST_SUITE_P(
    Table, BadInputTest,
    testing::Values(
        Refusal{"NoCommand", {}, {"--help"}}, Refusal{"UnknownCommand", {"fly"}, {"fly"}},
        Refusal{"UnknownOption", {"tests", "--fast"}, {"--fast"}},
        Refusal{"CatalogueAbsent", {"tests", "--catalogue", "@none.xml"}, {"@none.xml"}},
        Refusal{"CatalogueGarbled", {"tests", "--catalogue", "@garbled.xml"}, {"@garbled.xml", "line 3"}},
        Refusal{"CatalogueOther", {"tests", "--catalogue", "@other.xml"}, {"@other.xml", "TemplateData"}},
        Refusal{"StateIsAFile", {"run", "@d.orvik", "--simulate", "--state", "@text"}, {"@text"}},
        Refusal{"NewEmptyName", {"new", "", "--add", "410"}, {"FILE", "empty"}},
        Refusal{"ShowEmptyName", {"show", ""}, {"FILE", "empty"}},
        Refusal{"StateEmptyName", {"show", "@d.orvik", "--state", ""}, {"--state", "empty"}},
        Refusal{
            "WireLogEmptyName", {"run", "@d.orvik", "--simulate", "--wire-log", ""}, {"--wire-log", "empty"}},
        Refusal{"SetEmptyName", {"limit", "@d.orvik", "--from", ""}, {"--from", "empty"}},
        Refusal{"ArchiveEmptyName", {"archive", "list", "--archive", ""}, {"--archive", "empty"}},
        Refusal{"ExportEmptyName", {"archive", "export", "1", "--to", ""}, {"--to", "empty"}},
        Refusal{"NewWithoutTests", {"new", "@n.orvik"}, {"--add"}},
        Refusal{"NewWithNoNumber", {"new", "@n.orvik", "--add", "x"}, {"--add", "x"}},
        Refusal{
            "NewWithAList", {"new", "@n.orvik", "--add", "410,910"}, {"--add 410,910: ", ": --add 410 910"}},
        Refusal{"NewWithAnotherList",
                {"new", "@n.orvik", "--add", "410", "610; 910"},
                {"--add 610; 910: ", ": --add 610 910"}},
        Refusal{"RunWithAList",
                {"run", "@d.orvik", "--simulate", "--element", "1,2"},
                {"--element 1,2: ", ": --element 1 --element 2"}},
        Refusal{"NewWithAFraction", {"new", "@n.orvik", "--add", "410.0"}, {"--add 410.0: ", "whole number"}},
        Refusal{"NewInHexadecimal", {"new", "@n.orvik", "--add", "0x19A"}, {"--add 0x19A: ", "digits"}},
        Refusal{"NewWithNothing", {"new", "@n.orvik", "--add", ""}, {"--add : ", "whole number"}},
        Refusal{"NewBeyondAllNumbers",
                {"new", "@n.orvik", "--add", "99999999999999999999"},
                {"--add 99999999999999999999: ", "up to 2147483647"}},
        Refusal{"LimitElementNoNumber",
                {"limit", "@d.orvik", "--element", "one", "--standard", "S", "--high", "1"},
                {"--element one: ", "whole number"}},
        Refusal{"LimitElementsInAList",
                {"limit", "@d.orvik", "--element", "1,2", "--standard", "S", "--high", "1"},
                {"--element 1,2: ", ": --element 1 2"}},
        Refusal{
            "ConfigElementNoNumber", {"config", "@d.orvik", "--element", "a"}, {"--element a: ", "whole"}},
        Refusal{"ConfigOptionsNoNumber",
                {"config", "@d.orvik", "--element", "1", "--options", "skip"},
                {"--options skip: ", "whole number"}},
        Refusal{"RunTimeScaleNoNumber",
                {"run", "@d.orvik", "--simulate", "--time-scale", "0,5"},
                {"--time-scale 0,5: ", "from 0.001 to 1000000"}},
        Refusal{"GuiTimeScaleNoNumber",
                {"gui", "--time-scale", "fast"},
                {"--time-scale fast: ", "from 0.001 to 1000000"}},
        Refusal{"ArchiveShowNoNumber", {"archive", "show", "first"}, {"ID first: ", "whole number"}},
        Refusal{"ArchiveListNoNumber", {"archive", "list", "--limit", "ten"}, {"--limit ten: ", "whole"}},
        Refusal{"ArchiveTrendNoNumber",
                {"archive", "trend", "--asset", "A", "--test", "earth"},
                {"--test earth: ", "whole number"}},
        Refusal{"NewWithUnknownTest", {"new", "@n.orvik", "--add", "411"}, {"--add 411"}},
        Refusal{"NewInNoFolder", {"new", "@none/n.orvik", "--add", "410"}, {"@none/n.orvik"}},
        Refusal{"DocumentAbsent", {"show", "@none.orvik"}, {"@none.orvik"}},
        Refusal{"DocumentGarbled", {"show", "@garbled.orvik"}, {"@garbled.orvik", "line 3"}},
        Refusal{"DocumentIsAFolder", {"show", "@"}, {"is no file"}},
        Refusal{"LimitWithoutBound",
                {"limit", "@d.orvik", "--element", "1", "--standard", "S"},
                {"--low", "--high"}},
        Refusal{"LimitOfNoElement",
                {"limit", "@d.orvik", "--element", "9", "--standard", "S", "--high", "1"},
                {"--element 9"}},
        Refusal{"LimitNoNumber",
                {"limit", "@d.orvik", "--element", "1", "--standard", "S", "--high", "abc"},
                {"--high", "abc"}},
        Refusal{"LimitCrossed",
                {"limit", "@d.orvik", "--element", "1", "--standard", "S", "--low", "5", "--high", "1"},
                {"--low"}},
        Refusal{"LimitPercentage",
                {"limit", "@d.orvik", "--element", "1", "--standard", "S", "--high", "10%"},
                {"--high", "percent"}},
        Refusal{"ConfigOptions",
                {"config", "@d.orvik", "--element", "1", "--options", "9000"},
                {"--options 9000"}},
        Refusal{
            "ConfigFilter", {"config", "@d.orvik", "--element", "1", "--filter", "Best"}, {"--filter Best"}},
        Refusal{"ConfigEmptyFilter",
                {"config", "@d.orvik", "--element", "1", "--filter", ""},
                {"--filter : ", "Maximum value"}},
        Refusal{"RunWithoutTester", {"run", "@d.orvik"}, {"--port", "--simulate"}},
        Refusal{"RunWithTwoTesters", {"run", "@d.orvik", "--port", "/dev/null", "--simulate"}, {"--port"}},
        Refusal{
            "RunNoSuchDevice", {"run", "@d.orvik", "--port", "@none"}, {"--port", "@none", "does not exist"}},
        Refusal{"RunNoDevice",
                {"run", "@d.orvik", "--port", "@text"},
                {"--port", "@text", "is not a serial device"}},
        Refusal{"RunNoElement", {"run", "@d.orvik", "--simulate", "--element", "7"}, {"--element 7"}},
        Refusal{"RunNoProfile", {"run", "@d.orvik", "--simulate", "@none"}, {"--simulate", "@none"}},
        Refusal{
            "RunTimeScaleZero", {"run", "@d.orvik", "--simulate", "--time-scale", "0"}, {"--time-scale 0"}},
        Refusal{"RunTimeScaleText", {"run", "@d.orvik", "--simulate", "--time-scale", "x"}, {"--time-scale"}},
        Refusal{"RunOperator", {"run", "@d.orvik", "--simulate", "--operator", "me"}, {"--operator me"}},
        Refusal{"RunJsonAndEvents", {"run", "@d.orvik", "--simulate", "--json", "--events"}, {"--events"}},
        Refusal{"RunWireLog",
                {"run", "@d.orvik", "--simulate", "--wire-log", "@none/log"},
                {"@none/log", "--wire-log"}},
        Refusal{"RunWireLogIsTheDocument",
                {"run", "@d.orvik", "--simulate", "--wire-log", "@d.orvik"},
                {"@d.orvik: the file has other content", "--wire-log"}},
        Refusal{"RunWireLogIsAText",
                {"run", "@d.orvik", "--simulate", "--wire-log", "@text"},
                {"@text: the file has other content", "--wire-log"}},
        Refusal{"WaitNegative", {"tests", "--wait", "-1"}, {"--wait -1"}},
        Refusal{"WaitNoNumber", {"tests", "--wait", "long"}, {"--wait long: ", "whole number"}},
        Refusal{"ReportOfAnotherKind", {"report", "@d.orvik", "--to", "@x.doc"}, {"--to", "@x.doc"}},
        Refusal{"Language", {"tests", "--lang", "../x"}, {"../x"}}),
    kNamed);

}  // namespace
}  // namespace cli

#include "host/document/Document.h"
#include "tests/support/Errors.h"
#include "tests/support/HostFixture.h"

namespace host::samples {
namespace {

struct RunFault {
  const char* name;
  const char* run;
  const char* complaint;
};

class MalformedRun : public support::HostFixture, public ::testing::WithParamInterface<RunFault> {};

TEST_P(MalformedRun, IsRejectedWithItsLine) {
  const auto text = std::string("<OrvikDocument Version='1'>\n<Elements/>\n<Runs>\n") + GetParam().run +
                    "\n</Runs></OrvikDocument>";
  folder_.Write("given.orvik", text);
  const auto refusal =
      support::ErrorText([&] { document::Document::Open(host_, folder_.Path() / "given.orvik"); });
  EXPECT_TRUE(support::Holds(refusal, "given.orvik"));
  EXPECT_TRUE(support::Holds(refusal, GetParam().complaint));
  EXPECT_EQ(folder_.Read("given.orvik"), text);
}

#define RUN "<Run Number='1' Simulated='0' TimeScale='1'>\n"

INSTANTIATE_TEST_SUITE_P(
    Table, MalformedRun,
    ::testing::Values(
        RunFault{"NoNumber", "<Run Simulated='0' TimeScale='1'/>",
                 "line 4: the attribute \"Number\" of \"Run\""},
        RunFault{"NumberNotWhole", "<Run Number='1.5' Simulated='0' TimeScale='1'/>", "line 4: "},
        RunFault{"NotSimulatedNorReal", "<Run Number='1' Simulated='2' TimeScale='1'/>",
                 "line 4: \"Simulated\" of \"Run\" must be 0 or 1"},
        RunFault{"SimulatedNotSaid", "<Run Number='1' TimeScale='1'/>",
                 "line 4: the attribute \"Simulated\""},
        RunFault{"NoTimeScale", "<Run Number='1' Simulated='0'/>", "line 4: invalid time scale \"\""},
        RunFault{"TimeScaleZero", "<Run Number='1' Simulated='0' TimeScale='0'/>",
                 "line 4: invalid time scale \"0\""},
        RunFault{"TimeScaleInfinite", "<Run Number='1' Simulated='0' TimeScale='inf'/>",
                 "line 4: invalid time scale \"inf\""},
        RunFault{"UnknownEnd", "<Run Number='1' Simulated='0' TimeScale='1' End='passed'/>",
                 "line 4: unknown end \"passed\" of a run"},
        RunFault{"TakesNoNumber", RUN "<Takes Elements='1 x'/></Run>", "line 5: "},
        RunFault{"ElementMissing", RUN "<Test TestID='1' Settings='0' Status='0' By='tester'/></Run>",
                 "line 5: the attribute \"Element\" of \"Test\""},
        RunFault{"TestMissing", RUN "<Test Element='1' Settings='0' Status='0' By='tester'/></Run>",
                 "line 5: the attribute \"TestID\" of \"Test\""},
        RunFault{"SettingsMissing", RUN "<Test Element='1' TestID='1' Status='0' By='tester'/></Run>",
                 "line 5: the attribute \"Settings\" of \"Test\""},
        RunFault{"StatusMissing", RUN "<Test Element='1' TestID='1' Settings='0' By='tester'/></Run>",
                 "line 5: the attribute \"Status\" of \"Test\""},
        RunFault{"ByNobody", RUN "<Test Element='1' TestID='1' Settings='0' Status='0'/></Run>",
                 "line 5: \"By\" of a recorded test must be \"tester\" or \"operator\""},
        RunFault{
            "TesterOutOfRange",
            RUN
            "<Tester/>\n<Test Element='1' TestID='1' Settings='0' Status='0' By='tester' Tester='2'/></Run>",
            "line 6: tester 2 of the run is out of range (1 to 1)"},
        RunFault{"TesterNegative",
                 RUN "<Test Element='1' TestID='1' Settings='0' Status='0' By='tester' Tester='-1'/></Run>",
                 "line 5: tester -1 of the run"},
        RunFault{"LeadsNotWhole", RUN "<Tester Leads='x'/></Run>", "line 5: "}),
    [](const auto& tested) { return std::string(tested.param.name); });

#undef RUN

}  // namespace
}  // namespace host::samples

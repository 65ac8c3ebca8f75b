#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/system/faults/RunEvidence.h"

namespace faults {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

constexpr const char* kPassed =
    R"json({"outcome": "passed", "elements": [{"id": 1, "testId": 410, "kind": "test",
  "verdict": "passed", "reasons": [], "measurement": {"value": 123.0, "unit": "mOhm", "flags": ""}}]})json";

/// A run of one test in which all went well, but for what the tests below change.
RunEvidence Sound() {
  return {0,
          kPassed,
          "",
          {"T note /dev/pts/1 9600,O,8,1", "T sent IREM", "T recv irem,KELD(IN),1,1", "T sent STST,410,0",
           "T sent GRES,410,0", "T recv gres,410,0,0.123,0,Ohm", "T sent STST,210,0", "T sent EREM"},
          {"T recv IREM", "T note fault: delay 500", "T sent irem,KELD(IN),1,1"}};
}

std::string Replaced(std::string text, const std::string& what, const std::string& with) {
  return text.replace(text.find(what), what.size(), with);
}

TEST(RunEvidence, IsSummedUpInOneLine) {
  const auto observed = Judge(Sound(), "delay 500");
  EXPECT_EQ(observed.Text(), "IREM, STST 1, GRES 1, STST end, EREM: passed, exit status 0");
  EXPECT_TRUE(observed.met);
  EXPECT_THAT(observed.offences, IsEmpty());
}

TEST(RunEvidence, AFaultThatNeverHappenedProvesNothing) { EXPECT_FALSE(Judge(Sound(), "drop").met); }

TEST(RunEvidence, APassWithoutItsReadingIsAnOffence) {
  auto evidence = Sound();
  evidence.wireLog[5] = "T recv gres,420,0,0.123,0,Ohm";
  EXPECT_THAT(Judge(evidence, "delay 500").offences,
              UnorderedElementsAre(HasSubstr("its reading never came")));
}

TEST(RunEvidence, APassWithAnotherReadingIsAnOffence) {
  for (const auto& [what, with] : {std::pair{"123.0", "0.0"}, std::pair{"\"mOhm\"", "\"Ohm\""},
                                   std::pair{"\"flags\": \"\"", "\"flags\": \"O\""}}) {
    auto evidence = Sound();
    evidence.json = Replaced(kPassed, what, with);
    EXPECT_THAT(Judge(evidence, "delay 500").offences, UnorderedElementsAre(HasSubstr("another reading")))
        << what;
  }
}

TEST(RunEvidence, ADoubtfulElementCountsForNothing) {
  auto evidence = Sound();
  evidence.json = Replaced(kPassed, R"("verdict": "passed", "reasons": [])",
                           R"("verdict": "doubtful", "reasons": [{"code": "late-reply"}])");
  const auto observed = Judge(evidence, "delay 500");
  EXPECT_EQ(observed.Text(), "IREM, STST 1, GRES 1, STST end, EREM: doubtful, exit status 0");
  EXPECT_THAT(observed.offences,
              UnorderedElementsAre(HasSubstr("the outcome is"), HasSubstr("exit status 0")));
}

TEST(RunEvidence, AVerdictWithoutAReasonIsAnOffence) {
  auto evidence = Sound();
  evidence.exitStatus = 2;
  evidence.json = Replaced(Replaced(kPassed, R"("verdict": "passed")", R"("verdict": "not tested")"),
                           R"("outcome": "passed")", R"("outcome": "incomplete")");
  EXPECT_THAT(Judge(evidence, "delay 500").offences, UnorderedElementsAre(HasSubstr("nothing says why")));
}

TEST(RunEvidence, ASequenceThatPassesWithoutATestOfItIsAnOffence) {
  auto evidence = Sound();
  evidence.exitStatus = 2;
  evidence.json = R"json({"outcome": "incomplete", "elements": [
    {"id": 1, "testId": 400, "kind": "sequence", "verdict": "passed", "reasons": [], "measurement": null},
    {"id": 2, "testId": 410, "kind": "test", "verdict": "not tested", "reasons": [{"code": "no-result"}],
     "measurement": null}]})json";
  const auto observed = Judge(evidence, "delay 500");
  EXPECT_EQ(observed.verdicts, "passed, not tested");
  EXPECT_THAT(observed.offences, UnorderedElementsAre("the sequence passed with children not tested"));
}

TEST(RunEvidence, CommandsAreCountedAndReadBack) {
  const std::vector<std::string> commands{"IREM", "STST 1", "STST 1", "STST 1", "IREM"};
  EXPECT_EQ(TextOf(commands), "IREM, STST 1 x3, IREM");
  EXPECT_EQ(CommandsIn(TextOf(commands)), commands);
}

TEST(RunEvidence, ARunWithoutAResultIsAnOffence) {
  auto evidence = Sound();
  evidence.json = "orvik-bench: internal error";
  EXPECT_THAT(Judge(evidence, "delay 500").offences, UnorderedElementsAre(HasSubstr("no JSON")));
}

}  // namespace
}  // namespace faults

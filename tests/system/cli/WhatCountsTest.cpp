// What counts, by ordinary commands: each of these once gave a clean "passed" that nobody had measured.
#include <filesystem>

#include "tests/system/cli/CliTest.h"

namespace cli {
namespace {

class WhatCountsTest : public CliTest {
 protected:
  std::string Verdict(const std::string& file, std::size_t element) const {
    return Show(file)["elements"][element]["verdict"];
  }
  std::string Code(const std::string& file, std::size_t element) const {
    const auto reasons = Show(file)["elements"][element]["reasons"];
    return reasons.empty() ? "" : reasons[0]["code"];
  }
  std::string Outcome(const std::string& file) const { return Show(file)["outcome"]; }

  /// Every output says that the document has not passed.
  void ExpectNotPassed(const std::string& file, const std::string& outcome = "incomplete") const {
    EXPECT_EQ(Outcome(file), outcome);
    EXPECT_THAT(Bench({"show", file}).out, HasSubstr("d.orvik: " + outcome));
    const auto text = Path("report.txt");
    Done({"report", file, "--to", text});
    EXPECT_THAT(Contents(text), Not(HasSubstr("PASSED")));
  }
};

TEST_F(WhatCountsTest, StoppedRepeat_LeavesTheRestUntested) {
  for (const int signal : {SIGINT, SIGKILL}) {
    std::filesystem::remove(Path("d.orvik"));
    const auto file = NewDocument({"410", "420"});
    SetWideLimits(file, {"1", "2"});
    ASSERT_EQ(RunSound(file).status, 0);
    const auto again = Start(Simulated(file, "sound-class-1", {"--events"}));
    ASSERT_TRUE(again->AwaitOutput("STST,420,0")) << again->Output();
    again->Signal(signal);
    again->Wait();
    EXPECT_EQ(Verdict(file, 0), "passed");
    EXPECT_EQ(Verdict(file, 1), "not tested");
    ExpectNotPassed(file);
    // Resuming measures what the interrupted run had left, and nothing else.
    std::filesystem::remove(file + ".wire.log");
    EXPECT_EQ(RunSound(file, {"--resume"}).status, 0);
    EXPECT_EQ(SentIn(file + ".wire.log"), (Words{"IREM", "STST,420,0", "GRES,420,0", "STST,210,0", "EREM"}));
    EXPECT_EQ(Outcome(file), "passed");
    const auto runs = Json({"show", file, "--runs", "--json"})["runs"];
    ASSERT_EQ(runs.size(), 3U);
    EXPECT_EQ(runs[1]["end"], signal == SIGKILL ? "" : "stopped");
    EXPECT_EQ(runs[1]["finished"], 1);
    EXPECT_EQ(runs[2]["elements"], nlohmann::json({2}));
  }
}

TEST_F(WhatCountsTest, StopInAGroup_KeepsTheEarlierRun) {
  const auto file = NewDocument({"400"});
  SetWideLimits(file, {"2", "3"});
  ASSERT_EQ(RunSound(file).status, 0);
  const auto again = Start(Simulated(file, "sound-class-1", {"--events"}));
  ASSERT_TRUE(again->AwaitOutput("STST,420,0")) << again->Output();
  again->Signal(SIGINT);
  again->Wait();
  ExpectNotPassed(file);
  const auto first = Json({"show", file, "--run", "1", "--json"});
  EXPECT_EQ(first["end"], "finished");
  ASSERT_EQ(first["tests"].size(), 3U);
  EXPECT_EQ(first["tests"][0]["said"], nlohmann::json({"gres,410,0,0.123,0,Ohm"}));
  EXPECT_EQ(first["tests"][0]["recorded"]["value"], 123);
}

TEST_F(WhatCountsTest, LeadsChangedAfterTheRun_InvalidateTheResult) {
  const auto file = NewDocument({"910"});
  SetWideLimits(file, {"1"});
  Done({"config", file, "--element", "1", "--leads", "1"});
  ASSERT_EQ(RunSound(file).status, 0);
  const auto changed = Bench({"config", file, "--element", "1", "--leads", "all"});
  EXPECT_THAT(changed.out, HasSubstr("no longer counts"));
  EXPECT_EQ(Code(file, 0), "other-settings");
  ExpectNotPassed(file);
}

TEST_F(WhatCountsTest, OtherEquipment_HasNoResults) {
  const auto file = NewDocument({"410"});
  SetWideLimits(file, {"1"});
  Done({"edit", file, "--asset", "PUMP-7"});
  ASSERT_EQ(RunSound(file).status, 0);
  ASSERT_EQ(Outcome(file), "passed");
  const auto copy = Path("e.orvik");
  std::filesystem::copy_file(file, copy);
  Done({"edit", copy, "--asset", "PUMP-8"});
  EXPECT_EQ(Outcome(copy), "incomplete");
  EXPECT_EQ(Code(copy, 0), "other-equipment");
  Done({"edit", copy, "--asset", "PUMP-7"});
  EXPECT_EQ(Outcome(copy), "passed");
}

TEST_F(WhatCountsTest, TesterWithoutSerialNumber_IsDoubted) {
  Write("nameless", "based-on = sound-class-1\nserial =\n");
  const auto file = NewDocument({"410"});
  SetWideLimits(file, {"1"});
  EXPECT_EQ(Bench(Simulated(file, Path("nameless"))).status, 2);
  EXPECT_EQ(Code(file, 0), "no-serial-number") << Show(file);
  ExpectNotPassed(file);
}

TEST_F(WhatCountsTest, TesterOfAnotherType_IsDoubted) {
  Write("other", "based-on = sound-class-1\ntype = OTHER(1)\n");
  const auto file = NewDocument({"410"});
  SetWideLimits(file, {"1"});
  EXPECT_EQ(Bench(Simulated(file, Path("other"))).status, 2);
  EXPECT_EQ(Code(file, 0), "other-tester");
  ExpectNotPassed(file);
}

TEST_F(WhatCountsTest, Group_IsJudgedByItsPresentLimitsAndChildren) {
  const auto file = NewDocument({"400"});
  SetWideLimits(file, {"2", "3"});
  Done({"config", file, "--element", "1", "--filter", "Maximum value"});
  ASSERT_EQ(RunSound(file).status, 0);
  ASSERT_EQ(Outcome(file), "passed");
  // A limit of the group's own that was set afterwards.
  ASSERT_EQ(
      Bench({"limit", file, "--element", "1", "--standard", "Own", "--high", "100", "--unit", "mOhm"}).status,
      0);
  EXPECT_EQ(Outcome(file), "failed") << Show(file);
  EXPECT_EQ(Code(file, 0), "above-limit");
  ASSERT_EQ(
      Bench({"limit", file, "--element", "1", "--standard", "Own", "--high", "200", "--unit", "mOhm"}).status,
      0);
  EXPECT_EQ(Outcome(file), "passed");
  // A child that is run again.
  Write("bad", "based-on = sound-class-1\n410 = 1.85 Ohm\n");
  Bench(Simulated(file, Path("bad"), {"--element", "2"}));
  EXPECT_EQ(Verdict(file, 0), "not tested");
  EXPECT_EQ(Code(file, 0), "older-than-child");
  ExpectNotPassed(file);
}

TEST_F(WhatCountsTest, GroupLimitWithoutAValue_IsReported) {
  for (const auto* filter : {"No values", "All values"}) {
    std::filesystem::remove(Path("d.orvik"));
    const auto file = NewDocument({"400"});
    SetWideLimits(file, {"1", "2", "3"});
    Done({"config", file, "--element", "1", "--filter", filter});
    EXPECT_EQ(RunSound(file).status, 2);
    EXPECT_EQ(Verdict(file, 0), "not judged");
    EXPECT_EQ(Code(file, 0), "group-without-value");
    EXPECT_EQ(Show(file)["elements"][0]["failedStandards"], nlohmann::json::array());
    ExpectNotPassed(file);
  }
}

TEST_F(WhatCountsTest, AllTestsRefused_HasNotPassed) {
  Write("lacks", "based-on = sound-class-1\nlacks = 410 420\n");
  const auto file = NewDocument({"410", "420"});
  EXPECT_EQ(Bench(Simulated(file, Path("lacks"))).status, 2);
  EXPECT_EQ(Verdict(file, 0), "not applicable");
  ExpectNotPassed(file);
  SetWideLimits(file, {"1"});
  EXPECT_EQ(Verdict(file, 0), "doubtful");
  EXPECT_EQ(Code(file, 0), "refused-with-limits");
}

TEST_F(WhatCountsTest, ReadingWithoutALimit_HasNotPassed) {
  const auto file = NewDocument({"410", "420"});
  SetWideLimits(file, {"2"});
  EXPECT_EQ(RunSound(file).status, 2);
  EXPECT_EQ(Verdict(file, 0), "not judged");
  EXPECT_FALSE(Show(file)["elements"][0]["judged"]);
  ExpectNotPassed(file);
  Done({"limit", file, "--element", "1", "--record-only"});
  EXPECT_EQ(Verdict(file, 0), "recorded");
  EXPECT_EQ(Outcome(file), "passed");
}

TEST_F(WhatCountsTest, SimulatedRuns_AreMarkedAndRefusedAmongRealOnes) {
  const auto file = NewDocument({"410"});
  SetWideLimits(file, {"1"});
  const auto run = RunSound(file);
  EXPECT_THAT(run.out, HasSubstr("SIMULATED"));
  EXPECT_TRUE(Show(file)["simulated"]);
  auto text = Contents(file);
  text.replace(text.find("Simulated=\"1\""), 13, "Simulated=\"0\"");
  Write("d.orvik", text);
  const auto refused = RunSound(file);
  EXPECT_EQ(refused.status, 3);
  EXPECT_THAT(refused.error, HasSubstr("holds runs on a real tester"));
}

TEST_F(WhatCountsTest, OhmsWhereMegaohmsAreRecorded_AreDoubted) {
  Write("ohms", "based-on = sound-class-1\n1010 = 500 Ohm\n");
  const auto file = NewDocument({"1010"});
  Done({"limit", file, "--element", "1", "--standard", "S", "--low", "2"});
  EXPECT_EQ(Bench(Simulated(file, Path("ohms"))).status, 2);
  EXPECT_EQ(Verdict(file, 0), "doubtful") << Show(file);
  ExpectNotPassed(file);
}

TEST_F(WhatCountsTest, ViewByOneStandard_NamesTheOthers) {
  const auto file = NewDocument({"410"});
  SetLimit(file, "1", "100");
  Done({"limit", file, "--element", "1", "--standard", "Own", "--high", "200"});
  const auto run = RunSound(file, {"--standard", "Own"});
  EXPECT_EQ(run.status, 0);
  EXPECT_THAT(run.out, HasSubstr("Judged by Own alone; left out: IEC 62353"));
  EXPECT_EQ(Outcome(file), "failed") << "every other view judges by both";
  const auto shown = Bench({"show", file, "--standard", "Own"});
  EXPECT_THAT(shown.out, HasSubstr("left out: IEC 62353"));
  EXPECT_EQ(Bench({"show", file, "--standard", "None"}).status, 3);
}

TEST_F(WhatCountsTest, Runs_AreListedAndShownAsRecorded) {
  const auto file = NewDocument({"410"});
  EXPECT_THAT(Bench({"show", file, "--runs"}).out, HasSubstr("not been run yet"));
  EXPECT_EQ(Bench({"show", file, "--run", "1"}).status, 3);
  SetLimit(file, "1", "100");
  EXPECT_EQ(RunSound(file, {"--by", "A. Berg"}).status, 1);
  SetLimit(file, "1", "200");
  EXPECT_EQ(RunSound(file, {"--by", "K. Holm"}).status, 0);
  const auto runs = Bench({"show", file, "--runs"}).out;
  EXPECT_THAT(runs, HasSubstr("A. Berg"));
  EXPECT_THAT(runs, HasSubstr("K. Holm"));
  const auto first = Bench({"show", file, "--run", "1"}).out;
  for (const char* said : {"Run 1 of 2", "A. Berg", "failed", "123 mOhm", "said: gres,410,0,0.123,0,Ohm",
                           "at most 100 mOhm: exceeded", "SIMULATED"})
    EXPECT_THAT(first, HasSubstr(said));
  const auto absent = Bench({"show", file, "--run", "3"});
  EXPECT_EQ(absent.status, 3);
  EXPECT_THAT(absent.error, HasSubstr("--run 3: the document has runs 1 to 2"));
}

TEST_F(WhatCountsTest, RecordedRun_ShowsAReadingAsNotJudged) {
  const auto file = NewDocument({"410"});
  EXPECT_EQ(RunSound(file).status, 2);
  SetLimit(file, "1", "200");
  EXPECT_EQ(Outcome(file), "passed");
  const auto run = Bench({"show", file, "--run", "1"}).out;
  EXPECT_THAT(run, HasSubstr("not judged      123 mOhm"));
  EXPECT_THAT(run, Not(HasSubstr("passed")));
}

}  // namespace
}  // namespace cli

#include <filesystem>

#include "tests/support/PseudoTerminal.h"
#include "tests/system/cli/CliTest.h"

namespace cli {
namespace {

class RunCommandTest : public CliTest {};

TEST_F(RunCommandTest, Passed_EndsWithZero) {
  const auto file = NewDocument({"410", "400"});
  SetWideLimits(file, {"1", "3", "4"});
  const auto run = RunSound(file);
  EXPECT_EQ(run.status, 0) << run.error;
  EXPECT_THAT(run.out, HasSubstr("[1/2] 410 Protective earth, with mains cord"));
  EXPECT_THAT(run.out, HasSubstr("d.orvik: passed"));
  EXPECT_THAT(run.out, HasSubstr("divided by 10"));
  EXPECT_EQ(SentIn(file + ".wire.log"),
            (Words{"IREM", "STST,410,0", "GRES,410,0", "STST,210,0", "EREM", "IREM", "STST,410,0",
                   "GRES,410,0", "STST,420,0", "GRES,420,0", "STST,210,0", "EREM"}));
}

TEST_F(RunCommandTest, ExceededLimit_EndsWithOne) {
  const auto file = NewDocument({"410"});
  SetLimit(file, "1", "100");
  const auto run = RunSound(file, {"--json"});
  EXPECT_EQ(run.status, 1) << run.error;
  const auto json = nlohmann::json::parse(run.out);
  EXPECT_EQ(json["outcome"], "failed");
  EXPECT_EQ(json["elements"][0]["failedStandards"], nlohmann::json({"IEC 62353"}));
  EXPECT_EQ(Show(file), json);
}

TEST_F(RunCommandTest, ValueOnTheBound_Passes) {
  const auto file = NewDocument({"410"});
  SetLimit(file, "1", "123");
  EXPECT_EQ(RunSound(file).status, 0);
}

TEST_F(RunCommandTest, Json_ContainsEachElement) {
  const auto file = NewDocument({"400"});
  SetWideLimits(file, {"2", "3"});
  const auto run = RunSound(file, {"--json", "--by", "M. Holm"});
  ASSERT_EQ(run.status, 0) << run.error;
  const auto json = nlohmann::json::parse(run.out);
  const auto instrument = nlohmann::json::parse(
      R"json({"type": "KELD(IN)", "serial": "SIM-0001", "firmware": "3.10", "calibration": 0,
                "calibrated": ""})json");
  EXPECT_EQ(json["instrument"], instrument);
  ASSERT_EQ(json["elements"].size(), 3u);
  EXPECT_EQ(json["elements"][0]["kind"], "sequence");
  EXPECT_EQ(json["elements"][0]["parent"], 0);
  auto test = json["elements"][1];
  EXPECT_TRUE(test["serviceValue"].is_string());
  EXPECT_TRUE(test["at"].is_string());
  for (const auto* varying : {"serviceValue", "at"}) test.erase(varying);
  const auto expected = nlohmann::json::parse(R"json({"id": 2, "parent": 1, "testId": 410, "kind": "test",
      "name": "Protective earth, with mains cord", "status": 1, "statusText": "passed", "mtiId": 1,
      "verdict": "passed", "judged": true, "recordOnly": false, "reasons": [], "run": 1, "operator": "M. Holm",
      "limits": [{"standard": "IEC 62353", "description": "", "unit": "mOhm", "low": null, "high": 100000.0,
                  "selected": true, "value": 123.0, "verdict": "passed"}],
      "serviceCode": "P", "measurement": {"value": 123.0, "unit": "mOhm", "flags": "", "status": 1},
      "failedStandards": [], "doubts": []})json");
  EXPECT_EQ(test, expected);
}

TEST_F(RunCommandTest, Events_AreOneObjectALine) {
  const auto file = NewDocument({"410"});
  SetWideLimits(file, {"1"});
  const auto run = RunSound(file, {"--events"});
  ASSERT_EQ(run.status, 0) << run.error;
  std::istringstream lines(run.out);
  Words events;
  for (std::string line; std::getline(lines, line);) events.push_back(nlohmann::json::parse(line)["event"]);
  const Words expected{"remark",  "planned", "reached", "started", "port-opened", "command",
                       "reply",   "command", "reply",   "command", "reply",       "finished",
                       "command", "reply",   "command", "reply",   "port-closed", "ended"};
  EXPECT_EQ(events, expected);
}

TEST_F(RunCommandTest, OverloadedReading_NeverPasses) {
  Write("over", "based-on = sound-class-1\n410 = 0.001 Ohm overload\n");
  const auto file = NewDocument({"410"});
  SetLimit(file, "1", "300");
  const auto run = Bench(Simulated(file, Path("over"), {"--json"}));
  EXPECT_EQ(run.status, 2) << run.error;
  const auto json = nlohmann::json::parse(run.out);
  EXPECT_EQ(json["outcome"], "incomplete");
  EXPECT_THAT(json["elements"][0]["doubts"].dump(), HasSubstr("OL"));
  EXPECT_EQ(Show(file)["outcome"], "incomplete") << "the doubt is not kept in the document";
  EXPECT_THAT(Bench({"show", file}).out, HasSubstr("OL"));
}

TEST_F(RunCommandTest, UnsupportedTest_IsNotApplicable) {
  Write("lacks", "based-on = sound-class-1\nlacks = 410\n");
  const auto file = NewDocument({"410", "210"});
  SetWideLimits(file, {"2"});
  const auto run = Bench(Simulated(file, Path("lacks")));
  EXPECT_EQ(run.status, 0) << run.error;
  EXPECT_THAT(run.out, HasSubstr("does not support the test"));
  EXPECT_EQ(Show(file)["elements"][0]["serviceCode"], "NA");
}

TEST_F(RunCommandTest, RunsTheNamedElements) {
  const auto file = NewDocument({"410", "420", "210"});
  SetWideLimits(file, {"1", "2", "3"});
  const auto run = RunSound(file, {"--element", "3", "--element", "2"});
  EXPECT_EQ(run.status, 0) << run.error;
  EXPECT_EQ(SentIn(file + ".wire.log"), (Words{"IREM", "STST,210,0", "GRES,210,0", "STST,210,0", "EREM",
                                               "IREM", "STST,420,0", "GRES,420,0", "STST,210,0", "EREM"}));
  EXPECT_EQ(Show(file)["outcome"], "incomplete");
}

TEST_F(RunCommandTest, Resume_RunsElementsWithoutResult) {
  const auto file = NewDocument({"410", "420"});
  SetWideLimits(file, {"1", "2"});
  EXPECT_EQ(RunSound(file, {"--element", "1"}).status, 0);
  std::filesystem::remove(file + ".wire.log");
  EXPECT_EQ(RunSound(file, {"--resume"}).status, 0);
  EXPECT_EQ(SentIn(file + ".wire.log"), (Words{"IREM", "STST,420,0", "GRES,420,0", "STST,210,0", "EREM"}));
  const auto again = RunSound(file, {"--resume"});
  EXPECT_EQ(again.status, 0);
  EXPECT_THAT(again.out, HasSubstr("nothing is left to run"));
}

TEST_F(RunCommandTest, Resume_SkipsPassedAndFailedElements) {
  const auto file = NewDocument({"410", "420", "210"});
  SetLimit(file, "1", "300");
  SetLimit(file, "2", "10");
  EXPECT_EQ(RunSound(file, {"--element", "1", "--element", "2"}).status, 1);
  std::filesystem::remove(file + ".wire.log");
  const auto resumed = RunSound(file, {"--resume"});
  EXPECT_EQ(resumed.status, 1) << resumed.error;
  EXPECT_EQ(SentIn(file + ".wire.log"), (Words{"IREM", "STST,210,0", "GRES,210,0", "STST,210,0", "EREM"}));
}

TEST_F(RunCommandTest, LimitsSetAfterTheRun_JudgeIt) {
  const auto file = NewDocument({"410"});
  SetLimit(file, "1", "300");
  EXPECT_EQ(RunSound(file).status, 0);
  Done({"limit", file, "--element", "1", "--standard", "Further", "--high", "100"});
  const auto shown = Show(file);
  EXPECT_EQ(shown["outcome"], "failed");
  EXPECT_EQ(shown["elements"][0]["failedStandards"], nlohmann::json({"Further"}));
  EXPECT_EQ(shown["elements"][0]["reasons"][0]["code"], "above-limit");
  EXPECT_THAT(Bench({"show", file}).out, HasSubstr("Further: 123 mOhm exceeds the limit of 100 mOhm"));
  EXPECT_EQ(RunSound(file, {"--resume"}).status, 1) << "there is nothing to resume";
}

TEST_F(RunCommandTest, JudgesByTheNamedStandard) {
  const auto file = NewDocument({"410"});
  SetLimit(file, "1", "100");
  Done({"limit", file, "--element", "1", "--standard", "Own", "--high", "200"});
  EXPECT_EQ(RunSound(file, {"--standard", "Own"}).status, 0);
  EXPECT_EQ(RunSound(file).status, 1);
  const auto absent = RunSound(file, {"--standard", "None"});
  EXPECT_EQ(absent.status, 3);
  EXPECT_THAT(absent.error, HasSubstr("\"IEC 62353\", \"Own\""));
}

TEST_F(RunCommandTest, SilentTester_EndsTheRunAsIncomplete) {
  const support::PseudoTerminal nobody;
  const auto file = NewDocument({"410", "420"});
  const auto run = Bench({"run", file, "--port", nobody.Path(), "--time-scale", "100"});
  EXPECT_EQ(run.status, 2);
  EXPECT_EQ(SentIn(file + ".wire.log"), (Words{"IREM", "IREM", "IREM"}));
  EXPECT_THAT(run.out, HasSubstr("attempt 3 of 3"));
  EXPECT_THAT(run.out, HasSubstr("Can not find a KELD"));
  EXPECT_THAT(run.out, HasSubstr("no tester answers"));
}

TEST_F(RunCommandTest, LockedDevice_IsNamed) {
  const support::PseudoTerminal terminal;
  const auto file = NewDocument({"410"});
  const auto holder = Start({"run", file, "--port", terminal.Path(), "--events"});
  ASSERT_TRUE(holder->AwaitOutput("port-opened"));
  const auto second = Path("e.orvik");
  Done({"new", second, "--add", "410"});
  const auto refused = Bench({"run", second, "--port", terminal.Path()});
  EXPECT_EQ(refused.status, 5);
  EXPECT_THAT(refused.error,
              HasSubstr("--port: serial device " + terminal.Path() + ": is held by another program"));
}

// As "run … | head -2".
TEST_F(RunCommandTest, ClosedOutput_LeavesNoSessionOpen) {
  const auto file = NewDocument({"410", "420"});
  std::string line = ORVIK_BENCH_PATH;
  for (const auto& word : Simulated(file, "sound-class-1", {"--events"})) line += " '" + word + "'";
  support::RunShell(line + " | head -2");
  const auto sent = SentIn(file + ".wire.log");
  ASSERT_FALSE(sent.empty());
  EXPECT_EQ(sent.back(), "EREM");
  EXPECT_EQ(Show(file)["elements"][1]["statusText"], "passed");
}

TEST_F(RunCommandTest, UnwritableWireLog_IsReported) {
  const auto file = NewDocument({"410"});
  SetLimit(file, "1", "300");
  const auto run = RunSound(file, {"--wire-log", "/dev/full"});
  EXPECT_EQ(run.status, 0) << run.error;
  EXPECT_THAT(run.out, HasSubstr("The wire log /dev/full could not be written: No space left on device"));
}

TEST_F(RunCommandTest, UnpluggedTester_EndsTheRunAndKeepsResults) {
  const auto file = NewDocument({"410", "420"});
  const auto link = Path("tester");
  support::Process tester(KELD_SIM_PATH, {"--link", link, "--time-scale", kTimeScale});
  ASSERT_TRUE(tester.AwaitOutput("ready"));
  const auto run = Start({"run", file, "--port", link, "--time-scale", kTimeScale, "--events"});
  ASSERT_TRUE(run->AwaitOutput("STST,420,0"));
  tester.Signal(SIGKILL);
  const auto ended = run->Wait();
  EXPECT_EQ(ended.status, 2) << ended.out;
  EXPECT_THAT(ended.out, HasSubstr("port-failed"));
  const auto shown = Show(file);
  EXPECT_EQ(shown["elements"][0]["statusText"], "passed");
  EXPECT_EQ(shown["elements"][1]["statusText"], "not tested");
}

// Somebody has put another file in the document's place: that one stays, and so do the results.
TEST_F(RunCommandTest, UnsavedResults_AreKeptBesideTheDocument) {
  const auto file = NewDocument({"410", "420"});
  const auto run = Start(Simulated(file, "sound-class-1", {"--events"}));
  ASSERT_TRUE(run->AwaitOutput("GRES,410,0")) << run->Output();
  Write("other", "another file");
  std::filesystem::rename(Path("other"), file);
  const auto ended = run->Wait();
  EXPECT_EQ(ended.status, 2) << ended.out << ended.error;
  EXPECT_THAT(ended.out, HasSubstr("was changed by another program"));
  EXPECT_THAT(ended.out, HasSubstr("The results are in " + file + ".unsaved"));
  EXPECT_EQ(SentIn(file + ".wire.log").back(), "EREM");
  EXPECT_EQ(Contents(file), "another file");
  const auto kept = Show(file + ".unsaved");
  EXPECT_EQ(kept["elements"][0]["statusText"], "passed");
  EXPECT_EQ(kept["elements"][1]["statusText"], "not tested");
}

class Interruption : public RunCommandTest, public testing::WithParamInterface<const char*> {};

// Whenever Ctrl-C comes, the session with the tester is closed, and the document holds no half result.
TEST_P(Interruption, ClosesTheSessionAndSaves) {
  const auto file = NewDocument({"410", "420"});
  const auto run = Start(Simulated(file, "sound-class-1", {"--events"}));
  ASSERT_TRUE(run->AwaitOutput(GetParam())) << run->Output();
  run->Signal(SIGINT);
  ASSERT_TRUE(run->AwaitOutput("Stopping")) << run->Output();
  run->Signal(SIGINT);
  EXPECT_TRUE(run->AwaitOutput("Already stopping: the session with the tester is being closed ("))
      << run->Output();
  EXPECT_TRUE(run->AwaitOutput("; it takes at most ")) << run->Output();
  run->Signal(SIGTERM);
  const auto ended = run->Wait();
  EXPECT_EQ(ended.status, 2) << ended.out;
  const auto sent = SentIn(file + ".wire.log");
  ASSERT_GE(sent.size(), 2u);
  EXPECT_EQ(sent[sent.size() - 2], "STST,210,0");
  EXPECT_EQ(sent.back(), "EREM");
  EXPECT_THAT(ended.out, HasSubstr("erem"));
  const auto shown = Show(file);
  EXPECT_EQ(shown["outcome"], "incomplete");
  EXPECT_EQ(shown["elements"][1]["status"], 0);
}

class EndingSignal : public RunCommandTest, public testing::WithParamInterface<int> {};

// A shutdown, a kill and a terminal that goes away end a run as Ctrl-C does.
TEST_P(EndingSignal, ClosesTheSessionAndSaves) {
  const auto file = NewDocument({"410"});
  const auto run = Start(Simulated(file, "sound-class-1", {"--events"}));
  ASSERT_TRUE(run->AwaitOutput("STST,410,0")) << run->Output();
  run->Signal(GetParam());
  EXPECT_EQ(run->Wait().status, 2);
  EXPECT_EQ(SentIn(file + ".wire.log").back(), "EREM");
  EXPECT_EQ(Show(file)["elements"][0]["status"], 0);
}

// With "nohup" the terminal may go.
TEST_F(RunCommandTest, Nohup_ContinuesAfterTheTerminal) {
  const auto file = NewDocument({"410"});
  SetWideLimits(file, {"1"});
  std::string line = "trap '' HUP; exec " ORVIK_BENCH_PATH;
  for (const auto& word : Simulated(file, "sound-class-1", {"--events"})) line += " '" + word + "'";
  support::Process run("/bin/sh", {"-c", line});
  ASSERT_TRUE(run.AwaitOutput("STST,410,0")) << run.Output();
  run.Signal(SIGHUP);
  EXPECT_EQ(run.Wait().status, 0);
  EXPECT_EQ(Show(file)["outcome"], "passed");
}

INSTANTIATE_TEST_SUITE_P(Signals, EndingSignal, testing::Values(SIGINT, SIGTERM, SIGHUP));

INSTANTIATE_TEST_SUITE_P(Moments, Interruption,
                         testing::Values("irem,", "STST,410,0", "stst,410,0", "GRES,410,0", "gres,410,0"));

TEST_F(RunCommandTest, AsksTheOperatorAtTheTerminal) {
  const auto file = NewDocument({"410"});
  SetWideLimits(file, {"1"});
  const auto run = Start(Simulated(file, "sound-class-1", {"--operator", "ask"}));
  ASSERT_TRUE(run->AwaitOutput("play")) << run->Output();
  run->Type("play\n");
  ASSERT_TRUE(run->AwaitOutput("next", 2)) << run->Output();  // offered again when the run is over
  run->Type("next\n");
  const auto ended = run->Wait();
  EXPECT_EQ(ended.status, 0) << ended.out << ended.error;
}

TEST_F(RunCommandTest, TerminalGuide_NamesItsTest) {
  const auto file = NewDocument({"410", "210"});
  const auto run = Start(Simulated(file, "sound-class-1", {"--operator", "ask"}));
  ASSERT_TRUE(run->AwaitOutput("410 Protective earth, with mains cord [play")) << run->Output();
  run->Type("next\n");
  ASSERT_TRUE(run->AwaitOutput("210 Mains voltage [play")) << run->Output();
  run->EndInput();
  EXPECT_EQ(run->Wait().status, 2);
}

TEST_F(RunCommandTest, TerminalNotApplicable_IsConfirmed) {
  const auto file = NewDocument({"410"});
  const auto run = Start(Simulated(file, "sound-class-1", {"--operator", "ask"}));
  const std::string question =
      "Record test 410 Protective earth, with mains cord as not applicable? [yes, no]";
  int asked = 0;
  // Only "yes" is consent; the guide asks again after anything else.
  for (const std::string answer : {"", "no", "na", "y"}) {
    ++asked;
    ASSERT_TRUE(run->AwaitOutput("[play", asked)) << run->Output();
    run->Type("na\n");
    ASSERT_TRUE(run->AwaitOutput(question, asked)) << run->Output();
    run->Type(answer + "\n");
  }
  ASSERT_TRUE(run->AwaitOutput("[play", asked + 1)) << run->Output();
  run->Type("na\n");
  ASSERT_TRUE(run->AwaitOutput(question, asked + 1)) << run->Output();
  EXPECT_EQ(Show(file)["elements"][0]["statusText"], "not tested");
  run->Type("yes\n");
  run->Wait();
  EXPECT_EQ(Show(file)["elements"][0]["statusText"], "not applicable");
}

TEST_F(RunCommandTest, EmptyLineAtTheTerminal_AnswersNoQuestion) {
  const auto file = NewDocument({"410"});
  const auto run = Start(Simulated(file, "sound-class-1", {"--operator", "ask"}));
  ASSERT_TRUE(run->AwaitOutput("[play")) << run->Output();
  run->Type("abort\n");
  ASSERT_TRUE(run->AwaitOutput("[yes, no]")) << run->Output();
  run->Type("\n");
  ASSERT_TRUE(run->AwaitOutput("[yes, no]", 2)) << run->Output();
  run->Type("no\n");
  ASSERT_TRUE(run->AwaitOutput("[play", 2)) << run->Output();
  run->EndInput();
  EXPECT_EQ(run->Wait().status, 2);
}

TEST_F(RunCommandTest, Operator_CanAbort) {
  const auto file = NewDocument({"410", "420"});
  const auto run = Start(Simulated(file, "sound-class-1", {"--operator", "ask"}));
  ASSERT_TRUE(run->AwaitOutput("play")) << run->Output();
  run->Type("play\n");
  ASSERT_TRUE(run->AwaitOutput("STST,410,0")) << run->Output();
  run->Type("abort\n");
  ASSERT_TRUE(run->AwaitOutput("[yes, no]")) << run->Output();
  run->Type("yes\n");
  const auto ended = run->Wait();
  EXPECT_EQ(ended.status, 2) << ended.out << ended.error;
  EXPECT_EQ(SentIn(file + ".wire.log").back(), "EREM");
  EXPECT_EQ(Show(file)["elements"][0]["statusText"], "aborted");
}

TEST_F(RunCommandTest, EndOfInput_StopsAnAskedRun) {
  const auto file = NewDocument({"410"});
  const auto run = Start(Simulated(file, "sound-class-1", {"--operator", "ask"}));
  ASSERT_TRUE(run->AwaitOutput("play")) << run->Output();
  run->EndInput();
  EXPECT_EQ(run->Wait().status, 2);
}

}  // namespace
}  // namespace cli

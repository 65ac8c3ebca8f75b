#include <gtest/gtest.h>

#include <filesystem>

#include "OrvikTypeLib/HostError.h"
#include "OrvikTypeLib/IResultData.h"
#include "host/document/SavedSettings.h"
#include "host/xml/XmlDocument.h"
#include "tester/FaultScript.h"
#include "tests/unit/run/RunFixture.h"

// What a run leaves in the document's record, at which moment it is on disk, and what it counts for.
namespace run {
namespace {

using namespace host::plugins::keld::guide;
using host::document::RecordedTest;
using host::document::RunRecord;
using host::serial::WireRecord;

constexpr char kTime[] = "2026-11-22T10:00:00+01:00";

/// Gives the element's result another status, as something else than a run may.
void SetStatus(orvik::ITestElement& element, std::int32_t status) {
  const auto xml = std::make_shared<host::xml::XmlDocument>();
  const auto node = element.Result()->Save(static_cast<orvik::IXmlDocument&>(*xml).CreateRoot("Result"));
  node->Append(keld::MKELDGlobalVars::Persistence()->WriteStatus(node, "", status));
  element.Result()->Load(node, nullptr);
}

class RunRecorderTest : public RunFixture {
 protected:
  /// Copies the file at the nth command of the run: what a power cut would leave at that moment.
  void CopyAtCommand(int nth) {
    copyAt_ = nth;
    watch_ = bench_.Ports().TheWire()->Subscribe([this](const WireRecord& record) {
      if (record.kind != WireRecord::Kind::kSent || --copyAt_ != 0) return;
      std::filesystem::copy_file(File(), Copy());
    });
  }
  std::filesystem::path Copy() { return bench_.Only().Folder() / "cut.orvik"; }
  std::shared_ptr<host::document::Document> Cut() {
    return host::document::Document::Open(bench_.Only().SharedHost(), Copy(),
                                          host::document::DocumentFile::Use::kRead);
  }
  /// Does it once, when that command goes out for the nth time.
  void At(const std::string& command, int nth, std::function<void()> act) {
    watch_ = bench_.Ports().TheWire()->Subscribe(
        [command, nth, act = std::move(act)](const WireRecord& record) mutable {
          if (record.kind == WireRecord::Kind::kSent && record.text == command && --nth == 0) act();
        });
  }
  void Fault(const std::string& rule) {
    bench_.Tester().UseFaults(std::make_shared<sim::FaultScript>(rule + "\n", "fault"));
  }
  Texts Steps() const { return StepsOf(Runs().back()); }
  Texts StepsOnDisk() { return StepsOf(OnDisk()->Runs().All().back()); }

 private:
  int copyAt_ = 0;
  orvik::platform::Subscription watch_;
};

TEST_F(RunRecorderTest, IsOnDiskBeforeTheFirstCommand) {
  document_->equipment = {"VENT-1", "S-2", "Maker", "Model"};
  Add(400);
  Add(410);
  auto& heading = parts_.heading;
  heading.equipment = document_->equipment;
  heading.by = "M. Holm";
  heading.port = "/dev/ttyS7";
  heading.program = "orvik-bench 9";
  heading.simulated = true;
  heading.timeScale = 2.5;
  CopyAtCommand(1);
  Run();
  const auto cut = Cut();
  ASSERT_EQ(cut->Runs().All().size(), 1U);
  const auto& run = cut->Runs().All()[0];
  EXPECT_EQ(StepsOf(run), Texts{"takes 1 2 3 4"});
  EXPECT_EQ(run.number, 1);
  EXPECT_EQ(run.begun, kTime);
  EXPECT_EQ(run.end, RunRecord::End::kNone);
  EXPECT_EQ(run.ended, "");
  EXPECT_EQ(run.by, "M. Holm");
  EXPECT_EQ(run.port, "/dev/ttyS7");
  EXPECT_EQ(run.program, "orvik-bench 9");
  EXPECT_TRUE(run.simulated);
  EXPECT_EQ(run.timeScale, 2.5);
  EXPECT_EQ(run.equipment, document_->equipment);
  EXPECT_TRUE(run.testers.empty());
  EXPECT_TRUE(run.intact);
  EXPECT_EQ(Runs().back().end, RunRecord::End::kFinished);
  EXPECT_EQ(Runs().back().ended, kTime);
}

// From the moment on at which a run took them up, earlier results do not count: killed, nothing is passed.
TEST_F(RunRecorderTest, AKilledRunLeavesNoResultOfTheRunBefore) {
  AddLimited(410);
  AddLimited(420);
  Run();
  EXPECT_EQ(Verdict(1), "passed");
  CopyAtCommand(6);  // the second element's IREM
  Run();
  const auto cut = Cut();
  EXPECT_EQ(cut->Runs().All().back().end, RunRecord::End::kNone);
  EXPECT_EQ(VerdictIn(*cut, 1), "passed");
  EXPECT_EQ(VerdictIn(*cut, 2), "not tested: not-finished");
  EXPECT_EQ(cut->Find(2)->Result()->Status(), 1) << "the plug-in's result of the run before is still there";
}

TEST_F(RunRecorderTest, EachFinishedElementIsOnDiskBeforeItIsReported) {
  Add(400);
  AddLimited(610);
  std::vector<Texts> onDisk;
  const auto finished = parts_.controller->Finished().Subscribe([&](const Element& element) {
    onDisk.push_back(StepsOnDisk());
    EXPECT_EQ(onDisk.back().back(), std::to_string(element->ID()) + " status 1 by tester");
    const auto saved = OnDisk()->Find(element->ID())->Result();
    ASSERT_TRUE(saved);
    EXPECT_EQ(saved->Status(), 1);
  });
  Run();
  ASSERT_EQ(onDisk.size(), 4U);
  EXPECT_EQ(onDisk.back(), (Texts{"takes 1 2 3 4", "2 status 1 by tester", "3 status 1 by tester",
                                  "1 status 1 by tester", "4 status 1 by tester"}));
}

// A kill while the session is being closed must not leave "passed".
TEST_F(RunRecorderTest, DoubtsAreOnDiskWithTheResult) {
  AddLimited(410);
  Answer("STST,410,0", "stst,420,0");  // only the wire shows it
  std::string verdict;
  const auto finished =
      parts_.controller->Finished().Subscribe([&](const Element&) { verdict = VerdictIn(*OnDisk(), 1); });
  Run();
  EXPECT_EQ(verdict, "doubtful: other-test-named");
}

TEST_F(RunRecorderTest, RecordsWhatWasSaidMeasuredAndJudged) {
  Add(410);
  Limit(1, "0.05", "100");
  support::SetLimit(*document_, bench_.Host(), 1, "", "300", "house rule", "2026");
  // Not selected, so the plug-in does not judge by it.
  document_->Find(1)->Limits()->CreateStandard("other", "")->Limit(1)->SetBounds("", "1");
  Add(610);
  host::run::StoreLeads(*bench_.Host().Registry(), "SIM-0001", 35, "2026-11-01T08:00:00+01:00");
  parts_.leadsMeasured = [&](const std::string& serial, std::int32_t leads) {
    return host::run::LeadsMeasured(*bench_.Host().Registry(), serial, leads).value_or("");
  };
  Read("410", "0.185,0,Ohm");
  Read("610",
       "90,0,\xB5"
       "A");
  int minute = 0;
  parts_.clock = [&] { return "minute " + std::to_string(++minute); };
  Run();

  const auto file = OnDisk();
  const auto& run = file->Runs().All().back();
  ASSERT_EQ(run.testers.size(), 1U);
  EXPECT_EQ(run.testers[0], (host::document::RecordedTester{"KELD(IN)", "SIM-0001", run.testers[0].firmware,
                                                            35, "2026-11-01T08:00:00+01:00"}));
  EXPECT_NE(run.testers[0].firmware, "");

  const auto& earth = TestOf(run, 1);
  EXPECT_EQ(earth.testId, 410);
  EXPECT_EQ(earth.settings, 0);
  EXPECT_EQ(earth.at, "minute 2");
  EXPECT_EQ(earth.status, 2);
  EXPECT_EQ(earth.by, RecordedTest::By::kTester);
  EXPECT_EQ(earth.tester, 1);
  EXPECT_EQ(earth.said, Texts{"gres,410,0,0.185,0,Ohm"});
  EXPECT_EQ(earth.recorded, (host::document::RecordedReading{"150", "mOhm", ""}));
  EXPECT_EQ(earth.judged,
            (std::vector<host::document::RecordedLimit>{{"IEC 62353", "", "mOhm", "0.05", "100", 2},
                                                        {"house rule", "2026", "mOhm", "", "300", 1}}));
  EXPECT_TRUE(earth.doubts.empty());

  const auto& leakage = TestOf(run, 2);
  EXPECT_EQ(leakage.said, Texts{"gres,610,0,90,0,\xC2\xB5"
                                "A"});
  EXPECT_TRUE(leakage.judged.empty());
  EXPECT_EQ(leakage.tester, 1);
}

TEST_F(RunRecorderTest, RecordsTheSettingsThatDecideWhatIsMeasured) {
  const auto element = AddLimited(410);
  const auto set = [&](std::int32_t options) {
    const host::document::SavedSettings settings(*element->Configuration());
    settings.Settings()->SetAttribute(host::document::SavedSettings::kOptions, std::to_string(options));
    element->Configuration()->Load(settings.Node());
  };
  set(8191);
  Run();
  EXPECT_EQ(TestOf(Runs().back(), 1).settings, 8188) << "without the buttons' bits";
  set(8188);
  EXPECT_NE(Verdict(1), "not tested: other-settings");
  set(4);
  EXPECT_EQ(Verdict(1), "not tested: other-settings");
}

TEST_F(RunRecorderTest, RecordsWhoSetAnElementAside) {
  AddLimited(410);
  AddLimited(420);
  AddLimited(610);
  EXPECT_EQ(RunByHand({{host::plugins::keld::guide::kSkip},
                       {host::plugins::keld::guide::kNotApplicable},
                       {host::plugins::keld::guide::kPlay, host::plugins::keld::guide::kSkip}}),
            End::kFinished);
  EXPECT_EQ(Steps(), (Texts{"takes 1 2 3", "1 status 0 by operator", "2 status 3 by operator",
                            "3 status 1 by tester", "3 status 0 by operator"}));
  EXPECT_EQ(Steps(), StepsOnDisk());
  EXPECT_EQ(Verdict(3), "not tested: skipped");
}

// What is said next of a test that was stopped is the operator's word.
TEST_F(RunRecorderTest, SettingAStoppedElementAsideIsTheOperatorsWord) {
  for (const std::int32_t test : {410, 400}) {
    const auto id = AddLimited(test)->ID();
    At("GRES,410,0", test == 410 ? 1 : 2, [this] {
      for (const auto& form : bench_.Application().Forms())
        if (form->Name() == host::plugins::keld::guide::kGuideForm)
          bench_.Application().Post(
              [form] { host::run::GuideToolbar(*form)->Click(host::plugins::keld::guide::kStop); });
    });
    RunByHand(
        test == 410
            ? Presser::Guides{{host::plugins::keld::guide::kPlay, host::plugins::keld::guide::kNotApplicable}}
            : Presser::Guides{
                  {host::plugins::keld::guide::kPlay, host::plugins::keld::guide::kNext},
                  {host::plugins::keld::guide::kPlay, host::plugins::keld::guide::kNotApplicable}});
    EXPECT_EQ(Steps(), test == 410 ? (Texts{"takes 1", "1 status 0 by tester", "1 status 3 by operator"})
                                   : (Texts{"takes 1 2 3 4", "1 status 1 by tester", "3 status 0 by tester",
                                            "2 status 0 by tester", "4 status 3 by operator",
                                            "3 status 3 by operator", "2 status 3 by operator"}));
    EXPECT_EQ(Verdict(id), "not applicable: set-aside-by-operator");
  }
}

TEST_F(RunRecorderTest, SettingAGroupAsideFinishesItsChildren) {
  Add(400);
  Run();
  RunByHand({{host::plugins::keld::guide::kNotApplicable}});
  EXPECT_EQ(Steps(), (Texts{"takes 1 2 3", "3 status 3 by operator", "2 status 3 by operator",
                            "1 status 3 by operator"}));
  for (const std::int32_t id : {1, 2, 3})
    EXPECT_EQ(VerdictIn(*OnDisk(), id), "not applicable: set-aside-by-operator") << id;
}

TEST_F(RunRecorderTest, SettingAMeasuredGroupAsideReplacesItsResults) {
  Add(400);
  Limit(2, "", "300");
  RunByHand({{host::plugins::keld::guide::kPlay, host::plugins::keld::guide::kNotApplicable}});
  for (const std::int32_t id : {1, 2, 3})
    EXPECT_EQ(VerdictIn(*OnDisk(), id), "not applicable: set-aside-by-operator") << id;
}

TEST_F(RunRecorderTest, AnAbortedGroupHasNoResult) {
  Add(400);
  Limit(2, "", "300");
  EXPECT_EQ(RunByHand({{host::plugins::keld::guide::kPlay, host::plugins::keld::guide::kAbort}}),
            End::kAborted);
  EXPECT_EQ(VerdictIn(*OnDisk(), 1), "not tested: other-status");
  EXPECT_EQ(VerdictIn(*OnDisk(), 2), "passed");
  EXPECT_EQ(RunByHand({{host::plugins::keld::guide::kAbort}}), End::kAborted);
  for (const std::int32_t id : {1, 2, 3})
    EXPECT_EQ(VerdictIn(*OnDisk(), id), "not tested: not-finished") << id;
}

TEST_F(RunRecorderTest, AnAbortEndsTheRunAndTheElement) {
  AddLimited(410);
  AddLimited(420);
  EXPECT_EQ(RunByHand({{host::plugins::keld::guide::kPlay, host::plugins::keld::guide::kNext},
                       {host::plugins::keld::guide::kAbort}}),
            End::kAborted);
  EXPECT_EQ(Steps(), (Texts{"takes 1 2", "1 status 1 by tester", "2 status 4 by operator"}));
  EXPECT_EQ(OnDisk()->Runs().All().back().end, RunRecord::End::kAborted);
  EXPECT_EQ(VerdictIn(*OnDisk(), 1), "passed");
  EXPECT_EQ(VerdictIn(*OnDisk(), 2), "aborted: aborted");
}

TEST_F(RunRecorderTest, AnAbortAfterAMeasurementTakesItsPlace) {
  AddLimited(410);
  EXPECT_EQ(RunByHand({{host::plugins::keld::guide::kPlay, host::plugins::keld::guide::kAbort}}),
            End::kAborted);
  EXPECT_EQ(Steps(), (Texts{"takes 1", "1 status 1 by tester", "1 status 4 by operator"}));
  const auto& aborted = TestOf(Runs().back(), 1);
  EXPECT_TRUE(aborted.said.empty()) << "the tester said nothing of the abort";
  EXPECT_EQ(aborted.tester, 0);
  EXPECT_EQ(Verdict(1), "aborted: aborted");
}

TEST_F(RunRecorderTest, AnAbortIsRecordedOnlyInItsOwnRun) {
  AddLimited(410);
  RunByHand({{host::plugins::keld::guide::kAbort}});
  EXPECT_EQ(RunByHand({{host::plugins::keld::guide::kNext}}), End::kFinished);
  EXPECT_EQ(Steps(), (Texts{"takes 1"}));
  EXPECT_EQ(Verdict(1), "not tested: not-finished");
}

TEST_F(RunRecorderTest, AStopLeavesTheRunningElementWithoutResult) {
  AddLimited(410);
  AddLimited(420);
  Run();
  At("GRES,420,0", 1, [this] { parts_.stop.Ask(); });
  EXPECT_EQ(Run(), End::kStopped);
  EXPECT_EQ(OnDisk()->Runs().All().back().end, RunRecord::End::kStopped);
  EXPECT_EQ(Verdict(1), "passed");
  EXPECT_EQ(VerdictIn(*OnDisk(), 2), Verdict(2));
  EXPECT_EQ(Judged(2).verdict, Verdict::kNotTested);
}

TEST_F(RunRecorderTest, AStopInAGroupKeepsItsFinishedChildren) {
  Add(400);
  Limit(2, "", "300");
  Limit(3, "", "300");
  At("GRES,420,0", 1, [this] { parts_.stop.Ask(); });
  EXPECT_EQ(Run(), End::kStopped);
  const auto& run = Runs().back();
  EXPECT_EQ(TestOf(run, 2).status, 1) << "the record of what was measured stays";
  EXPECT_NE(Judged(1).verdict, Verdict::kPassed);
  EXPECT_NE(Judged(3).verdict, Verdict::kPassed);
}

TEST_F(RunRecorderTest, PreviousAndAgainTakesTheElementUpOnceMore) {
  AddLimited(410);
  AddLimited(420);
  RunByHand({{host::plugins::keld::guide::kPlay, host::plugins::keld::guide::kNext},
             {host::plugins::keld::guide::kPrevious},
             {host::plugins::keld::guide::kPlay, host::plugins::keld::guide::kNext},
             {host::plugins::keld::guide::kPlay, host::plugins::keld::guide::kNext}});
  EXPECT_EQ(Steps(), (Texts{"takes 1 2", "1 status 1 by tester", "takes 1", "1 status 1 by tester",
                            "2 status 1 by tester"}));
  EXPECT_EQ(Verdict(1), "passed");
}

TEST_F(RunRecorderTest, KilledWhileMeasuringAgainLeavesNoResult) {
  AddLimited(410);
  CopyAtCommand(6);  // the second session's IREM
  RunByHand({{host::plugins::keld::guide::kPlay, host::plugins::keld::guide::kPrevious},
             {host::plugins::keld::guide::kPlay, host::plugins::keld::guide::kNext}});
  const auto cut = Cut();
  EXPECT_EQ(StepsOf(cut->Runs().All().back()), (Texts{"takes 1", "1 status 1 by tester", "takes 1"}));
  EXPECT_EQ(VerdictIn(*cut, 1), "not tested: not-finished");
}

TEST_F(RunRecorderTest, MeasuringAGroupAgainTakesItsChildrenUpToo) {
  Add(400);
  Limit(2, "", "300");
  CopyAtCommand(8);  // the second session's IREM
  RunByHand({{host::plugins::keld::guide::kPlay, host::plugins::keld::guide::kPrevious},
             {host::plugins::keld::guide::kPlay, host::plugins::keld::guide::kNext}});
  const auto cut = Cut();
  EXPECT_EQ(StepsOf(cut->Runs().All().back()),
            (Texts{"takes 1 2 3", "2 status 1 by tester", "3 status 1 by tester", "1 status 1 by tester",
                   "takes 1 2 3"}));
  EXPECT_EQ(VerdictIn(*cut, 2), "not tested: not-finished");
  EXPECT_EQ(Steps().size(), 8U) << "no element is taken up a third time";
}

TEST_F(RunRecorderTest, ALostPortEndsTheRunAsLost) {
  AddLimited(410);
  AddLimited(420);
  Fault("at GRES 1 hang-up");
  EXPECT_EQ(Run(), End::kTesterLost);
  EXPECT_EQ(OnDisk()->Runs().All().back().end, RunRecord::End::kLost);
  EXPECT_EQ(Judged(1).verdict, Verdict::kNotTested);
  EXPECT_EQ(Verdict(2), "not tested: not-finished");
}

TEST_F(RunRecorderTest, APortLostBetweenTwoElementsEndsTheRunAsLost) {
  AddLimited(410);
  AddLimited(420);
  Fault("at EREM 1 hang-up");
  EXPECT_EQ(Run(), End::kTesterLost);
  EXPECT_NE(parts_.runner.Reason().find("unplugged"), std::string::npos) << parts_.runner.Reason();
  EXPECT_EQ(Runs().back().end, RunRecord::End::kLost);
  EXPECT_EQ(Verdict(1), "passed");
  EXPECT_EQ(Verdict(2), "not tested: not-finished");
}

TEST_F(RunRecorderTest, RecordsTwoTestersOfOneRun) {
  AddLimited(410);
  AddLimited(420);
  AddLimited(410);
  host::run::StoreLeads(*bench_.Host().Registry(), "B", 20, "");
  int session = 0;
  const auto watch = parts_.controller->Started().Subscribe([&](const Element&) {
    Answer("IREM", ++session == 2 ? "irem,KELD(IN),B,2.0" : "irem,KELD(IN),A,1.0");
  });
  Run();
  const auto& run = Runs().back();
  EXPECT_EQ(run.testers, (std::vector<host::document::RecordedTester>{{"KELD(IN)", "A", "1.0", 0, ""},
                                                                      {"KELD(IN)", "B", "2.0", 20, ""}}));
  EXPECT_EQ(TestOf(run, 1).tester, 1);
  EXPECT_EQ(TestOf(run, 2).tester, 2);
  EXPECT_EQ(TestOf(run, 3).tester, 1);
  ASSERT_TRUE(Judged(2).tester);
  EXPECT_EQ(Judged(2).tester->serial, "B");
}

TEST_F(RunRecorderTest, NotesWhatComesUpWhileTheSessionIsClosed) {
  AddLimited(410);
  Fault("at STST 2 double");
  std::string whenFinished;
  const auto finished =
      parts_.controller->Finished().Subscribe([&](const Element&) { whenFinished = Verdict(1); });
  Run();
  EXPECT_EQ(whenFinished, "passed");
  EXPECT_EQ(VerdictIn(*OnDisk(), 1), "doubtful: late-reply");
  EXPECT_EQ(Steps().size(), 2U) << "the record of the test itself has it";
}

// The plug-in's element is not the only one that can change a result.
TEST_F(RunRecorderTest, NotesAStatusThatChangedAfterTheFinishOnce) {
  const auto element = AddLimited(410);
  const auto finished = parts_.controller->Finished().Subscribe(
      [&](const Element& finishedNow) { SetStatus(*finishedNow, 0); });
  Run();
  parts_.controller->Settle(element);
  const host::document::Reason changed{"changed-after-finish", {"1", "0"}};
  EXPECT_EQ(TestOf(Runs().back(), 1).doubts, std::vector<host::document::Reason>{changed});
  EXPECT_EQ(TestOf(OnDisk()->Runs().All().back(), 1).doubts, std::vector<host::document::Reason>{changed});
}

TEST_F(RunRecorderTest, AFinishedRunIsNeverChanged) {
  const auto element = AddLimited(410);
  Run();
  const auto before = OnDisk()->Runs().All();
  SetStatus(*element, 3);
  parts_.controller->Settle(element);
  orvik::IRunController& controller = *parts_.controller;
  controller.FinishedNotice(element);
  parts_.controller->End(RunRecord::End::kLost);
  ASSERT_EQ(Runs().size(), 1U);
  EXPECT_EQ(StepsOf(Runs()[0]), StepsOf(before[0]));
  EXPECT_EQ(Runs()[0].end, RunRecord::End::kFinished);
  EXPECT_TRUE(OnDisk()->Runs().All()[0].intact);
}

TEST_F(RunRecorderTest, RecordsOnlyTheElementsOfTheRun) {
  AddLimited(410);
  AddLimited(420);
  Run({1});
  EXPECT_EQ(Steps(), (Texts{"takes 1", "1 status 1 by tester"}));
  EXPECT_EQ(Verdict(2), "not tested: never-run");
}

}  // namespace
}  // namespace run

// A technician tests equipment in the window, on the simulated tester over a pseudo-terminal.
#include <gmock/gmock.h>

#include <QAction>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTextBrowser>
#include <QTreeWidget>

#include "host/bench/SimulatedTester.h"
#include "host/report/drawing/PageStyle.h"
#include "tester/BuiltInProfiles.h"
#include "tests/system/gui/DesktopTest.h"

namespace desktop_test {
namespace {

using testing::Contains;
using testing::HasSubstr;
using testing::Not;

class RunTest : public DesktopTest {
 protected:
  /// Opens a document with these tests, on a simulated tester with that profile.
  void Open(std::vector<std::string> tests, const std::string& profile) {
    file_ = NewDocument(std::move(tests));
    window_->Open(file_);
    ChooseTester("Simulated tester: " + profile);
  }
  Step Reached(const std::string& command) {
    return Await(command + " on the wire", [this, command] {
      const auto sent = Sent(file_);
      return std::any_of(sent.begin(), sent.end(),
                         [&](const std::string& line) { return line.starts_with(command); });
    });
  }

  std::string file_;
};

TEST_F(RunTest, CreatesRunsReportsAndArchives) {
  const auto file = Path("new.orvik");
  Drive({Press("new"), TakeFile(file), Press("addTests"),
         In("addTests",
            [](QDialog& dialog) {
              auto* search = dialog.findChild<QLineEdit*>("search");
              QTest::keyClicks(search, "410");
              auto* tests = dialog.findChild<QTreeWidget*>("catalogue");
              const auto found = tests->findItems("410", Qt::MatchExactly | Qt::MatchRecursive, 0);
              found.first()->setSelected(true);
              QTest::mouseClick(dialog.findChild<QPushButton*>("add"), Qt::LeftButton);
              return true;
            }),
         Press("addTests"),
         In("addTests",
            [](QDialog& dialog) {
              auto* tests = dialog.findChild<QTreeWidget*>("catalogue");
              tests->findItems("910", Qt::MatchExactly | Qt::MatchRecursive, 0).first()->setSelected(true);
              QTest::mouseClick(dialog.findChild<QPushButton*>("add"), Qt::LeftButton);
              return true;
            }),
         Press("limits"),
         In("limitSets",
            [](QDialog& dialog) {
              auto* sets = dialog.findChild<QTreeWidget*>("sets");
              sets->findItems("iec-60601-1-class-1-cf", Qt::MatchExactly, 2).first()->setSelected(true);
              QTest::mouseClick(dialog.findChild<QPushButton*>("apply"), Qt::LeftButton);
              return true;
            }),
         Answer("message", "Close", "These limits were set")});
  QTest::keyClicks(window_->findChild<QLineEdit*>("asset"), "PUMP-7");
  EXPECT_TRUE(Changed());
  EXPECT_EQ(Verdict(), "Incomplete");

  ChooseTester("Simulated tester: broken-earth");
  Drive({Press("run"), Guide(kPlay), Result(1, "failed"),
         Await("no verdict while it runs", [this] { return Verdict() == "Running"; }), Guide(kNext),
         Result(1, "failed"), Guide(kPlay), Result(2, "passed"), Guide(kNext), Idle()});

  EXPECT_EQ(Cell(1, kValue), "1850 mOhm");
  EXPECT_THAT(
      Cell(1, kRemark),
      HasSubstr("IEC 60601-1, 2005+A1:2012, class I, type CF: 1850 mOhm exceeds the limit of 200 mOhm"));
  EXPECT_EQ(Verdict(), "Failed");
  EXPECT_FALSE(Changed());
  ChooseElement(1);
  const auto details = window_->findChild<QTextBrowser*>("details")->toPlainText().toStdString();
  EXPECT_THAT(details, HasSubstr("1850 mOhm is above the upper bound: at most 200 mOhm"));

  const auto read = Show(file);
  EXPECT_EQ(read["outcome"], "failed");
  EXPECT_EQ(read["elements"][0]["statusText"], "failed");
  EXPECT_EQ(read["elements"][1]["statusText"], "passed");
  EXPECT_THAT(Contents(file), HasSubstr("Asset=\"PUMP-7\""));

  Drive({Press("report"), TakeFile(Path("pump.html")),
         Await("a report", [this] { return std::filesystem::exists(Path("pump.html")); })});
  EXPECT_THAT(Contents(Path("pump.html")), HasSubstr("Failed"));
  Drive({Press("report"), TakeFile(Path("pump.pdf")),
         Await("a report", [this] { return std::filesystem::exists(Path("pump.pdf")); })});
  EXPECT_TRUE(Contents(Path("pump.pdf")).starts_with("%PDF"));
  Drive({Press("archive"), Answer("question", "Cancel", "was run on a simulated tester")});
  EXPECT_FALSE(std::filesystem::exists(Path("state/archive.sqlite")));
  Drive({Press("archive"), Answer("question", "Add it as it is", "was run on a simulated tester"),
         Answer("message", "Close", "added as document 1 (simulated: nothing was measured)")});
}

TEST_F(RunTest, GuideShowsWhichStandardFails) {
  file_ = NewDocument({"410", "910"});
  // The standard whose limits the guide's own list shows is the first: that one holds.
  ASSERT_EQ(Bench({"limit", file_, "--element", "1", "--standard", "A", "--high", "5000"}).status, 0);
  window_->Open(file_);
  ChooseTester("Simulated tester: broken-earth");
  const auto shown = [] {
    auto* guide = Visible("FTestGuide");
    auto* label = guide ? guide->findChild<QLabel*>("lblJudgement") : nullptr;
    return label && label->isVisible() ? label->text().toStdString() : std::string();
  };
  std::string failed, next;
  QWidget* first = nullptr;
  Drive({Press("run"), Guide(kPlay), Await("a judgement", [&] { return !(failed = shown()).empty(); }),
         Await("the first guide",
               [&] {
                 first = Visible("FTestGuide");
                 return first != nullptr;
               }),
         Guide(kNext),
         Await("the next guide", [&] { return Visible("FTestGuide") && Visible("FTestGuide") != first; }),
         Await("its texts",
               [&] {
                 next = shown();
                 return true;
               }),
         Press("stop"), Idle()});
  EXPECT_THAT(failed, HasSubstr("\u2717 Protective earth, with mains cord: failed"));
  EXPECT_THAT(failed, HasSubstr("\u2717 IEC 60601-1 (2005+A1:2012, class I, type CF): at most 200 mOhm, "));
  EXPECT_THAT(failed, HasSubstr("\u2713 A: at most 5000 mOhm, "));
  EXPECT_EQ(next, "");
}

TEST_F(RunTest, SoundEquipment_PassesAsOnTheCommandLine) {
  Open({"410"}, "sound-class-1");
  Drive({Press("run"), Guide(kPlay), Result(1, "passed"), Guide(kNext), Idle()});
  EXPECT_EQ(Verdict(), "Passed");
  EXPECT_EQ(Show(file_)["outcome"], "passed");
}

TEST_F(RunTest, VerdictCountsRecordedReadings) {
  // No set has limits for the mains voltage.
  file_ = NewDocument({"210", "410"});
  ASSERT_EQ(Bench({"limit", file_, "--element", "1", "--record-only"}).status, 0);
  window_->Open(file_);
  ChooseTester("Simulated tester: sound-class-1");
  Drive({Press("run"), Guide(kPlay), Result(1, "recorded"), Guide(kNext), Guide(kPlay), Result(2, "passed"),
         Guide(kNext), Idle()});
  EXPECT_EQ(Cell(1, kRemark), "record only: not judged by any limit");
  EXPECT_THAT(window_->findChild<QLabel*>("verdictSentence")->text().toStdString(),
              HasSubstr("1 recorded only"));
  // The first has no limit and no mark; the second has limits.
  EXPECT_NE(ResultColour(1), ResultColour(2));
  EXPECT_EQ(ResultColour(1),
            host::report::drawing::ColourOf(host::report::Standing::kNotApplicable).name().toStdString());
}

TEST_F(RunTest, StopClosesTheSession_ResumeContinues) {
  Open({"410", "910"}, "sound-class-1");
  Drive({Press("run"), Guide(kPlay), Result(1, "passed"), Guide(kNext), Guide(kPlay), Reached("STST,910"),
         Press("stop"), Idle()});
  EXPECT_EQ(Sent(file_).back(), "EREM");
  EXPECT_EQ(Verdict(), "Incomplete");
  EXPECT_EQ(Show(file_)["outcome"], "incomplete");
  EXPECT_NE(Cell(2, kResult), "passed");

  Drive({Press("resume"), Guide(kPlay), Result(2, "passed"), Guide(kNext), Idle()});
  EXPECT_EQ(Verdict(), "Passed");
  EXPECT_EQ(Show(file_)["outcome"], "passed");
  Drive({Press("resume"), Answer("message", "Close", "Every element has a result")});
}

TEST_F(RunTest, RunsTheSelection_ReplacesOnlyWhenConfirmed) {
  Open({"410", "910"}, "sound-class-1");
  ChooseElement(2);
  Drive({Press("runSelected"), Guide(kPlay), Result(2, "passed"), Guide(kNext), Idle()});
  EXPECT_EQ(Cell(1, kResult), "not tested");
  EXPECT_EQ(Verdict(), "Incomplete");
  Drive({Press("run"), Answer("question", "Cancel", "PUMP-7 has results already"), Idle()});
  EXPECT_EQ(Cell(2, kResult), "passed");
}

TEST_F(RunTest, DoubtfulReading_IsNotShownAsPassed) {
  Write("faults", "at GRES reply gres,610,0,0.001,0,Ohm\n");
  support::Process tester(KELD_SIM_PATH,
                          {"--link", Path("line"), "--time-scale", "10", "--faults", Path("faults")});
  ASSERT_TRUE(tester.AwaitOutput("ready"));
  file_ = NewDocument({"410"});
  window_->Open(file_);
  ChooseTester(Path("line"));
  Drive({Press("run"), Guide(kPlay), Await("a doubt", [this] { return !Cell(1, kRemark).empty(); }),
         Reached("EREM"), Guide(kNext), Idle()});
  EXPECT_EQ(Cell(1, kResult), "doubtful");
  EXPECT_THAT(Cell(1, kRemark), HasSubstr("doubt:"));
  EXPECT_EQ(Verdict(), "Incomplete");
  EXPECT_EQ(Show(file_)["outcome"], "incomplete");
}

TEST_F(RunTest, MissingTester_IsNamed) {
  Open({"410"}, "sound-class-1");
  const auto before = Contents(file_);
  ChooseTester("/dev/no-such-tester");
  Drive({Press("run"), Answer("message", "Close", "Tester: serial device /dev/no-such-tester"), Idle()});
  EXPECT_EQ(Cell(1, kResult), "not tested");
  EXPECT_EQ(Contents(file_), before);
  EXPECT_FALSE(Changed());
}

TEST_F(RunTest, ClosingDuringARun_AsksAndClosesTheSession) {
  Open({"410", "910"}, "sound-class-1");
  Drive({Press("run"), Guide(kPlay), Reached("STST"), Close(),
         Answer("question", "Go on with the run", "PUMP-7 is being tested"),
         Await("closed again", [this] { return !window_->close(); }),
         Answer("question", "Stop and quit", "PUMP-7 is being tested"), Left()});
  EXPECT_EQ(Sent(file_).back(), "EREM");
  EXPECT_FALSE(window_->LeftOver());
  EXPECT_EQ(Show(file_)["outcome"], "incomplete");
}

TEST_F(RunTest, RequestToEnd_StopsTheRunWithoutAQuestion) {
  Open({"410"}, "sound-class-1");
  Drive({Press("run"), Guide(kPlay), Reached("STST"),
         Await("asked",
               [this] {
                 window_->EndByRequest();
                 return true;
               }),
         Left()});
  EXPECT_EQ(Sent(file_).back(), "EREM");
  EXPECT_TRUE(window_->LeftOver());
}

TEST_F(RunTest, OperatorAbortsInTheGuide) {
  Open({"410", "910"}, "sound-class-1");
  Drive({Press("run"), Guide(kAbort),
         Await("the question of the guide",
               [] {
                 auto* prompt = Visible("FYesNoPrompt");
                 auto* yes = prompt ? prompt->findChild<QPushButton*>("cmdAccept") : nullptr;
                 if (!yes) return false;
                 QTest::mouseClick(yes, Qt::LeftButton);
                 return true;
               }),
         Idle()});
  EXPECT_EQ(Verdict(), "Incomplete");
  EXPECT_THAT(Remark(), HasSubstr("Ended by the operator"));
}

TEST(SimulatedProfiles, AreThoseOfTheSimulator) {
  std::vector<std::string> offered(host::bench::kSimulatedProfiles.begin(),
                                   host::bench::kSimulatedProfiles.end()),
      known;
  for (const auto& profile : sim::BuiltInProfiles()) known.emplace_back(profile.name);
  EXPECT_EQ(offered, known);
}

}  // namespace
}  // namespace desktop_test

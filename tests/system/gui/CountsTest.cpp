// The window shows the judge's verdict after every change of a document that had passed.
#include <gmock/gmock.h>

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTextBrowser>
#include <QTreeWidget>

#include "host/document/Document.h"
#include "tests/system/gui/DesktopTest.h"

namespace desktop_test {
namespace {

using testing::HasSubstr;
using testing::Not;

class CountsTest : public DesktopTest {
 protected:
  /// Opens a document whose tests a sound simulated device has passed.
  void OpenPassed(std::vector<std::string> tests) {
    file_ = NewDocument(std::move(tests));
    RunByCommand();
    window_->Open(file_);
    ChooseTester("Simulated tester: sound-class-1");
    ASSERT_EQ(Verdict(), "Passed");
  }
  void RunByCommand() {
    const auto run =
        Bench({"run", file_, "--simulate", "sound-class-1", "--time-scale", "100", "--by", "M. Holm"});
    ASSERT_EQ(run.status, 0) << run.out << run.error;
  }
  /// A document with a run on a real tester, which the operator ended before the first test.
  std::string RealRun() const {
    const auto file = NewDocument({"410"});
    const auto document = host::document::Document::Open(bench_->Host(), file);
    host::document::RunRecord run;
    run.begun = run.ended = "2026-11-21T14:03:22+01:00";
    run.end = host::document::RunRecord::End::kAborted;
    run.equipment = document->equipment;
    document->Runs().Open(run);
    document->Runs().Close();
    document->Save();
    return file;
  }
  void TypeAsset(const std::string& text) {
    QTest::keyClicks(window_->findChild<QLineEdit*>("asset"), QString::fromStdString(text));
  }
  std::string Details() const {
    return window_->findChild<QTextBrowser*>("details")->toPlainText().toStdString();
  }
  bool Enabled(const char* action) const { return window_->findChild<QAction*>(action)->isEnabled(); }
  Step Sending(const std::string& command) {
    return Await(command + " on the wire", [this, command] {
      const auto sent = Sent(file_);
      return std::any_of(sent.begin(), sent.end(),
                         [&](const std::string& line) { return line.starts_with(command); });
    });
  }

  std::string file_;
};

TEST_F(CountsTest, ResultsDoNotCountForAnotherDevice) {
  OpenPassed({"410", "910"});
  const auto next = Path("next.orvik");
  Drive({Press("saveAs"), TakeFile(next),
         Await("saved", [this] { return window_->windowTitle().startsWith("next.orvik"); })});
  EXPECT_THAT(Remark(), HasSubstr("results are those of the same equipment"));
  TypeAsset("-B");
  EXPECT_EQ(Verdict(), "Incomplete");
  EXPECT_EQ(Cell(1, kResult), "not tested");
  EXPECT_EQ(Cell(1, kValue), "-");
  EXPECT_THAT(Cell(1, kRemark), HasSubstr("the asset number was \"PUMP-7\" and is \"PUMP-7-B\""));
  EXPECT_THAT(Remark(), HasSubstr("element 1 no longer counts: not tested (was: passed)"));
  EXPECT_THAT(Remark(), HasSubstr("the document is now: incomplete (was: passed)"));

  Drive({Press("save"), Await("saved", [this] { return !Changed(); }), Press("report"),
         TakeFile(Path("next.txt")),
         Await("a report", [this] { return std::filesystem::exists(Path("next.txt")); }), Press("archive"),
         Answer("question", "Add it as it is", "simulated"),
         Answer("question", "Add it as it is", "is not finished"), Answer("message", "Close", "added")});
  EXPECT_EQ(Verdict(), "Incomplete");
  EXPECT_THAT(Contents(Path("next.txt")), HasSubstr("INCOMPLETE"));
  EXPECT_THAT(Contents(Path("next.txt")), Not(HasSubstr("PASSED")));
  EXPECT_EQ(Show(next)["outcome"], "incomplete");
  const auto archived = Bench({"archive", "list", "--json"});
  EXPECT_THAT(archived.out, HasSubstr("\"outcome\": \"incomplete\""));
  EXPECT_THAT(archived.out, Not(HasSubstr("\"outcome\": \"passed\"")));
}

TEST_F(CountsTest, RevertedEdit_CountsAgain) {
  OpenPassed({"410"});
  TypeAsset("B");
  EXPECT_EQ(Verdict(), "Incomplete");
  QTest::keyClick(window_->findChild<QLineEdit*>("asset"), Qt::Key_Backspace);
  EXPECT_EQ(Verdict(), "Passed");
  EXPECT_EQ(Remark(), "");
}

TEST_F(CountsTest, NextDevice_StartsWithoutResults) {
  OpenPassed({"410", "910"});
  Drive({Press("newFrom"), TakeFile(Path("next.orvik")),
         Await("the new one", [this] { return window_->windowTitle().startsWith("next.orvik"); })});
  EXPECT_EQ(Cell(2, kResult), "not tested");
  EXPECT_EQ(window_->findChild<QLineEdit*>("asset")->text(), "");
  EXPECT_EQ(window_->findChild<QLabel*>("simulated")->isVisible(), false);
  Drive({Press("save"), Await("saved", [this] { return !Changed(); })});
  const auto next = Show(Path("next.orvik"));
  EXPECT_EQ(next["elements"][0]["limits"][0]["high"], 200);
  EXPECT_EQ(next["run"], 0);
}

TEST_F(CountsTest, RunWithoutATest_ReplacesTheEarlierOne) {
  OpenPassed({"410", "910", "610"});
  Drive({Press("run"), Answer("question", "Run again", "results already"), Guide(kNext), Guide(kNext),
         Guide(kNext), Idle()});
  EXPECT_EQ(Verdict(), "Incomplete");
  for (const int id : {1, 2, 3}) EXPECT_EQ(Cell(id, kResult), "not tested") << id;
  EXPECT_EQ(Show(file_)["outcome"], "incomplete");
}

TEST_F(CountsTest, StoppedInAGroup_ListsTheEarlierRun) {
  OpenPassed({"400"});
  Drive({Press("run"), Answer("question", "Run again", "results already"), Guide(kPlay), Sending("STST"),
         Press("stop"), Idle()});
  EXPECT_EQ(Verdict(), "Incomplete");
  Drive({Press("runs"), Await("the runs", [this] { return Details().find("Begun") != std::string::npos; })});
  EXPECT_THAT(Details(), testing::ContainsRegex("finished[^\n]*\n(.*\n)*M\\. Holm"));
  EXPECT_THAT(Details(), HasSubstr("stopped"));
  EXPECT_THAT(Details(), HasSubstr("passed: 2, 3"));
  EXPECT_EQ(Show(file_)["run"], 2);
}

TEST_F(CountsTest, AnotherStandardsLimits_FailTheReadingAtOnce) {
  OpenPassed({"410"});
  std::filesystem::create_directories(Path("state/standards"));
  Write("state/standards/house.xml",
        "<LimitSet Version=\"1\" Standard=\"House rule\" Edition=\"1\" Class=\"I\" Type=\"B\">"
        "<Figure Tests=\"410\" High=\"1\" Unit=\"mOhm\" Condition=\"any\" Source=\"house\"/></LimitSet>");
  Drive({Press("limits"),
         In("limitSets",
            [](QDialog& dialog) {
              auto* sets = dialog.findChild<QTreeWidget*>("sets");
              sets->findItems("house", Qt::MatchExactly, 2).first()->setSelected(true);
              QTest::mouseClick(dialog.findChild<QPushButton*>("apply"), Qt::LeftButton);
              return true;
            }),
         In("message",
            [this](QDialog& dialog) {
              EXPECT_EQ(Verdict(), "Failed");
              EXPECT_THAT(dialog.findChild<QPlainTextEdit*>()->toPlainText().toStdString(),
                          HasSubstr("element 1 is now: failed (was: passed)"));
              dialog.accept();
              return true;
            }),
         Idle()});
  EXPECT_EQ(Cell(1, kResult), "failed");
  EXPECT_THAT(Cell(1, kRemark), HasSubstr("House rule"));
  ChooseElement(1);
  EXPECT_THAT(Details(), HasSubstr("within limit"));
  EXPECT_THAT(Details(), HasSubstr("exceeded"));
}

TEST_F(CountsTest, ForeignChangeOfARun_IsDoubted) {
  file_ = NewDocument({"410"});
  RunByCommand();
  auto text = Contents(file_);
  const auto at = text.find("Operator=\"M. Holm\"");
  ASSERT_NE(at, std::string::npos);
  Write("pump.orvik", text.replace(at, 18, "Operator=\"N. Nilo\""));
  window_->Open(file_);
  EXPECT_EQ(Verdict(), "Incomplete");
  EXPECT_EQ(Cell(1, kResult), "doubtful");
  EXPECT_THAT(Cell(1, kRemark), HasSubstr("changed or removed by another program"));
  EXPECT_THAT(Details(), HasSubstr("the record was changed by another program"));
}

TEST_F(CountsTest, RepeatedChild_LeavesItsGroupUntested) {
  OpenPassed({"400"});
  ChooseElement(2);
  Drive({Press("runSelected"), Answer("question", "Run again", "results already"), Guide(kPlay),
         Result(2, "passed"), Guide(kNext), Idle()});
  EXPECT_EQ(Cell(1, kResult), "not tested");
  EXPECT_THAT(Cell(1, kRemark), HasSubstr("run the group again"));
  EXPECT_EQ(Verdict(), "Incomplete");
}

TEST_F(CountsTest, RecordOnly_NeedsTheMark) {
  file_ = NewDocument({"210", "410"});
  Bench({"run", file_, "--simulate", "sound-class-1", "--time-scale", "100"});
  window_->Open(file_);
  EXPECT_EQ(Cell(1, kResult), "not judged");
  EXPECT_EQ(Verdict(), "Incomplete");
  ChooseElement(1);
  Drive({Press("recordOnly"), Result(1, "recorded")});
  EXPECT_EQ(Verdict(), "Passed");
  EXPECT_TRUE(window_->findChild<QAction*>("recordOnly")->isChecked());
  EXPECT_THAT(Remark(), HasSubstr("element 1 counts now: recorded (was: not judged)"));
  Drive({Press("recordOnly"), Result(1, "not judged")});
  EXPECT_EQ(Verdict(), "Incomplete");
  EXPECT_FALSE(window_->findChild<QAction*>("recordOnly")->isChecked());
  EXPECT_THAT(Remark(), HasSubstr("element 1 no longer counts: not judged (was: recorded)"));
}

TEST_F(CountsTest, LimitExcludesRecordOnly) {
  OpenPassed({"410"});
  EXPECT_FALSE(Enabled("recordOnly"));
  ChooseElement(1);
  Drive({Press("recordOnly"), Answer("message", "Close", "Remove its limits first"), Idle()});
  EXPECT_EQ(Cell(1, kResult), "passed");
  EXPECT_FALSE(window_->findChild<QAction*>("recordOnly")->isChecked());
  Drive({Press("removeLimits"), Answer("question", "Cancel", "Remove all limits of test 1"), Idle()});
  EXPECT_EQ(Cell(1, kResult), "passed");
  Drive({Press("removeLimits"), Answer("question", "Remove the limits"), Result(1, "not judged")});
  EXPECT_THAT(Remark(), HasSubstr("element 1 no longer counts: not judged (was: passed)"));
  EXPECT_FALSE(Enabled("removeLimits"));
  Drive({Press("recordOnly"), Result(1, "recorded")});
  // Nothing was judged at all.
  EXPECT_EQ(Verdict(), "Incomplete");
}

TEST_F(CountsTest, NamesARemovedResult) {
  OpenPassed({"410", "910"});
  ChooseElement(2);
  Drive({Press("remove"), Answer("question", "Remove"), Idle()});
  EXPECT_THAT(Remark(), HasSubstr("element 2 is removed; its result was: passed"));
}

TEST_F(CountsTest, ChangedSettings_InvalidateTheResult) {
  OpenPassed({"910"});
  ChooseElement(1);
  const auto chooseOneLead = [] {
    auto* dialog = Visible("FElementSetup");
    auto* list = dialog ? dialog->findChild<QTreeWidget*>("tvwSettings") : nullptr;
    if (!list) return false;
    list->findItems("1", Qt::MatchEndsWith | Qt::MatchRecursive).first()->setCheckState(0, Qt::Checked);
    return true;
  };
  const auto close = [] {
    auto* dialog = Visible("FElementSetup");
    return !dialog || !dialog->close();
  };
  Drive({Press("setUp"), Await("the settings", chooseOneLead), Await("closed", close), Idle()});
  EXPECT_EQ(Cell(1, kResult), "not tested");
  EXPECT_THAT(Remark(), HasSubstr("element 1 no longer counts: not tested (was: passed)"));
}

TEST_F(CountsTest, MarksSimulatedResults) {
  OpenPassed({"410"});
  const auto* mark = window_->findChild<QLabel*>("simulated");
  EXPECT_TRUE(mark->isVisible());
  EXPECT_EQ(mark->text(), "SIMULATED");
  EXPECT_THAT(window_->findChild<QLabel*>("verdictSentence")->text().toStdString(),
              HasSubstr("nothing was measured"));
  EXPECT_THAT(Details(), HasSubstr("SIMULATED"));
  ChooseElement(1);
  EXPECT_THAT(Details(), HasSubstr("SIMULATED"));
  EXPECT_THAT(Details(), HasSubstr("M. Holm"));
  EXPECT_THAT(Details(), HasSubstr("SIM-0001"));
}

TEST_F(CountsTest, DoesNotMarkRealRuns) {
  window_->Open(RealRun());
  EXPECT_FALSE(window_->findChild<QLabel*>("simulated")->isVisible());
  EXPECT_THAT(Details(), HasSubstr("aborted"));
  EXPECT_THAT(Details(), Not(HasSubstr("SIMULATED")));
}

TEST_F(CountsTest, RefusesASimulatedRunAmongRealOnes) {
  const auto file = RealRun();
  const auto before = Contents(file);
  window_->Open(file);
  ChooseTester("Simulated tester: sound-class-1");
  Drive({Press("run"), Answer("message", "Close", "holds runs on a real tester"), Idle()});
  EXPECT_FALSE(Changed());
  EXPECT_EQ(Contents(file), before);
  EXPECT_FALSE(std::filesystem::exists(file + ".wire.log"));
}

}  // namespace
}  // namespace desktop_test

// How the window ends, and what it reports, during a run or a dialog.
#include <gmock/gmock.h>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTest>
#include <map>

#include "tests/system/gui/DesktopTest.h"

namespace desktop_test {
namespace {

using testing::HasSubstr;
using testing::Not;

class EndTest : public DesktopTest {
 protected:
  void OpenOnSoundEquipment() {
    file_ = NewDocument({"410"});
    OpenAgain();
  }
  void OpenAgain() {
    window_->Open(file_);
    ChooseTester("Simulated tester: sound-class-1");
  }
  Step OnTheWire(const std::string& text) {
    return Await(text + " on the wire",
                 [this, text] { return Contents(file_ + ".wire.log").find(text) != std::string::npos; });
  }

  std::string file_;
};

TEST_F(EndTest, StartsNoRun_AfterARequestToEnd) {
  OpenOnSoundEquipment();
  window_->findChild<QAction*>("run")->trigger();
  window_->EndByRequest();
  EXPECT_TRUE(left_);
  bench_->Application()->WaitMessages(bench_->Application()->Now());
  EXPECT_FALSE(std::filesystem::exists(file_ + ".wire.log"));
  EXPECT_FALSE(Visible("FTestGuide"));
}

TEST_F(EndTest, ShowsErrorsOfARunAfterTheSession) {
  OpenOnSoundEquipment();
  Drive({Press("run"), Guide(kPlay), OnTheWire("STST"), Do([this] {
           window_->ShowErrorLater("the lamp is out");
           window_->ShowErrorLater("the lamp is out");
         }),
         Result(1, "passed"), Do([this] {
           EXPECT_FALSE(QApplication::activeModalWidget());
           EXPECT_EQ(window_->findChild<QLabel*>("remark")->text(), "the lamp is out");
         }),
         Guide(kNext), Answer("message", "Close", "the lamp is out"), Idle(),
         Await("shown once", [] { return !QApplication::activeModalWidget(); })});
  EXPECT_EQ(Sent(file_).back(), "EREM");
}

TEST_F(EndTest, PrintsErrors_AfterARequestToEnd) {
  OpenOnSoundEquipment();
  testing::internal::CaptureStderr();
  Drive({Press("run"), Guide(kPlay), OnTheWire("STST"), Do([this] {
           window_->EndByRequest();
           window_->ShowErrorLater("the lamp is out");
         }),
         Left()});
  EXPECT_THAT(testing::internal::GetCapturedStderr(), HasSubstr("orvik-bench: the lamp is out"));
  EXPECT_EQ(Sent(file_).back(), "EREM");
}

TEST_F(EndTest, PendingErrors_DoNotDelayTheEnd) {
  window_->ShowErrorLater("the lamp is out");
  window_->ShowErrorLater("the bell is out");
  testing::internal::CaptureStderr();
  Drive({In("message",
            [this](QDialog&) {
              window_->EndByRequest();
              return true;
            }),
         Left(), Await("closed", [] { return !QApplication::activeModalWidget(); })});
  EXPECT_THAT(testing::internal::GetCapturedStderr(), HasSubstr("the bell is out"));
}

TEST_F(EndTest, QuestionDuringARun_KeepsTheReading) {
  OpenOnSoundEquipment();
  Drive({Press("run"), Guide(kPlay), OnTheWire("GRES"), Close(),
         In("question", [](QDialog&) { return true; }), OnTheWire("gres"),
         Answer("question", "Go on with the run", "PUMP-7 is being tested"),
         Await("a result", [this] { return Cell(1, kResult) != "running"; }), OnTheWire("EREM"), Guide(kNext),
         Idle()});
  EXPECT_EQ(Cell(1, kResult), "passed");
  EXPECT_EQ(Cell(1, kRemark), "");
}

TEST_F(EndTest, EndsOnRequest_WithAnyDialogOpen) {
  OpenOnSoundEquipment();
  const auto clicked = [](const char* window, const char* button) {
    return [=] {
      auto* shown = Visible(window);
      auto* found = shown ? shown->findChild<QPushButton*>(button) : nullptr;
      if (found && found->isEnabled()) QTest::mouseClick(found, Qt::LeftButton);
      return found && !found->isEnabled();
    };
  };
  const auto shown = [this](const char* name) {
    return Await(name, [name] { return Visible(name) != nullptr; });
  };
  const std::map<std::string, Steps> ways{
      {"a file dialog", {Press("open"), In("fileDialog", [](QDialog&) { return true; })}},
      {"the catalogue", {Press("addTests"), In("addTests", [](QDialog&) { return true; })}},
      {"the sets of limits", {Press("limits"), In("limitSets", [](QDialog&) { return true; })}},
      {"an open menu", {Do([this] { window_->findChild<QMenu*>()->popup({}); })}},
      {"the list of testers", {Do([this] { window_->findChild<QComboBox*>("tester")->showPopup(); })}},
      {"settings", {Do([this] { ChooseElement(1); }), Press("setUp"), shown("FElementSetup")}},
      {"calibration", {Press("calibrate"), shown("FCalibrateLeads")}},
      {"a measurement of the leads",
       {Press("calibrate"), Await("calibrating", clicked("FCalibrateLeads", "cmdCalibrate"))}},
      {"a question about changes",
       {Do([this] {
          QTest::keyClicks(window_->findChild<QLineEdit*>("asset"), "B");
          window_->close();
        }),
        In("question", [](QDialog&) { return true; })}},
      {"the guide", {Press("run"), shown("FTestGuide")}},
      {"the question of the guide", {Press("run"), Guide(kAbort), shown("FYesNoPrompt")}},
      {"a question during a run",
       {Press("run"), Guide(kPlay), OnTheWire("STST"), Do([this] { window_->close(); }),
        In("question", [](QDialog&) { return true; })}},
  };
  for (auto [name, steps] : ways) {
    SCOPED_TRACE(name);
    steps.push_back(Do([this] { window_->EndByRequest(); }));
    steps.push_back(Left());
    testing::internal::CaptureStderr();
    Drive(steps);
    testing::internal::GetCapturedStderr();
    EXPECT_FALSE(QApplication::activeModalWidget());
    EXPECT_FALSE(Visible("FTestGuide"));
    if (HasFailure()) return;
    window_.reset();
    left_ = false;
    MakeWindow();
    OpenAgain();
  }
}

TEST_F(EndTest, UnsavableResults_AreSavedUnderAnotherName) {
  OpenOnSoundEquipment();
  Drive({Press("run"), Guide(kPlay), OnTheWire("STST"),
         Do([this] { Write("pump.orvik", "another program's"); }), Result(1, "passed"), OnTheWire("EREM"),
         Guide(kNext), Answer("message", "Close", "the document cannot be saved"), Idle()});
  EXPECT_TRUE(Changed());
  EXPECT_EQ(Contents(file_), "another program's");
  Drive({Press("saveAs"), TakeFile(file_), Answer("message", "Close", "is there already"), Press("saveAs"),
         TakeFile(Path("again.orvik")), Await("saved", [this] { return !Changed(); })});
  EXPECT_TRUE(window_->windowTitle().startsWith("again.orvik"));
  EXPECT_EQ(Show(Path("again.orvik"))["outcome"], "passed");
  EXPECT_EQ(Contents(file_), "another program's");
}

TEST_F(EndTest, LostTester_IsReportedAndPassesNothing) {
  auto tester = std::make_unique<support::Process>(
      KELD_SIM_PATH, std::vector<std::string>{"--link", Path("line"), "--time-scale", "10"});
  ASSERT_TRUE(tester->AwaitOutput("ready"));
  file_ = NewDocument({"410", "910"});
  window_->Open(file_);
  ChooseTester(Path("line"));
  Drive({Press("run"), Guide(kPlay), OnTheWire("STST"), Do([&tester] { tester.reset(); }),
         Await("the guide asks for the tester",
               [] {
                 auto* prompt = Visible("FPretestPrompt");
                 auto* seen = prompt ? prompt->findChild<QPushButton*>("cmdOK") : nullptr;
                 if (seen) QTest::mouseClick(seen, Qt::LeftButton);
                 return seen != nullptr;
               }),
         Guide(kNext), Answer("message", "Close", "The run has ended"), Idle()});
  EXPECT_EQ(Verdict(), "Incomplete");
  EXPECT_EQ(Cell(2, kResult), "not tested");
  EXPECT_EQ(Show(file_)["outcome"], "incomplete");
}

TEST_F(EndTest, StopKey_WorksInTheGuide) {
  OpenOnSoundEquipment();
  Drive({Press("run"), Guide(kPlay), OnTheWire("STST"), Do([] {
           auto* guide = Visible("FTestGuide");
           guide->activateWindow();
           QTest::keyClick(guide, Qt::Key_F8);
         }),
         Idle()});
  EXPECT_EQ(Sent(file_).back(), "EREM");
  EXPECT_THAT(Remark(), HasSubstr("Stopped."));
  EXPECT_THAT(Cell(1, kResult), Not("passed"));
}

}  // namespace
}  // namespace desktop_test

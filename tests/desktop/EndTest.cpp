// How the window ends, and what it tells on the way, while something goes on.
#include <gmock/gmock.h>

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QTest>

#include "tests/desktop/DesktopTest.h"

namespace desktop_test {
namespace {

using testing::HasSubstr;
using testing::Not;

constexpr int kNext = 103, kPlay = 202;
constexpr int kResult = 2, kRemark = 4;

class EndTest : public DesktopTest {
 protected:
  void OpenOnSoundEquipment() {
    file_ = NewDocument({"410"});
    window_->Open(file_);
    ChooseTester("Simulated tester: sound-class-1");
  }
  Step OnTheWire(const std::string& text) {
    return Await(text + " on the wire",
                 [this, text] { return Contents(file_ + ".wire.log").find(text) != std::string::npos; });
  }
  Step Do(std::function<void()> work) {
    return Await("do", [work] {
      work();
      return true;
    });
  }
  Step Left() {
    return Await("left", [this] { return left_; });
  }

  std::string file_;
};

TEST_F(EndTest, WhatIsAskedForTogetherWithTheEndIsNotBegun) {
  OpenOnSoundEquipment();
  window_->findChild<QAction*>("run")->trigger();
  window_->EndByRequest();
  EXPECT_TRUE(left_);
  bench_->Application()->WaitMessages(bench_->Application()->Now());
  EXPECT_FALSE(std::filesystem::exists(file_ + ".wire.log"));
  EXPECT_FALSE(Visible("FTestGuide"));
}

TEST_F(EndTest, AnErrorDuringARunIsRemarkedAndToldOnceTheSessionIsOver) {
  OpenOnSoundEquipment();
  Drive({Press("run"), Guide(kPlay), OnTheWire("STST"), Do([this] {
           window_->TellLater("the lamp is out");
           window_->TellLater("the lamp is out");
         }),
         Await("a result", [this] { return Cell(1, kResult) == "passed"; }), Do([this] {
           EXPECT_FALSE(QApplication::activeModalWidget());
           EXPECT_EQ(window_->findChild<QLabel*>("remark")->text(), "the lamp is out");
         }),
         Guide(kNext), Answer("message", "Close", "the lamp is out"), Idle(),
         Await("told once", [] { return !QApplication::activeModalWidget(); })});
  EXPECT_EQ(Sent(file_).back(), "EREM");
}

TEST_F(EndTest, AnErrorOnTheWayOutAsksForNobody) {
  OpenOnSoundEquipment();
  testing::internal::CaptureStderr();
  Drive({Press("run"), Guide(kPlay), OnTheWire("STST"), Do([this] {
           window_->EndByRequest();
           window_->TellLater("the lamp is out");
         }),
         Left()});
  EXPECT_THAT(testing::internal::GetCapturedStderr(), HasSubstr("orvik-bench: the lamp is out"));
  EXPECT_EQ(Sent(file_).back(), "EREM");
}

TEST_F(EndTest, ErrorsThatWaitToBeToldDoNotHoldUpTheEnd) {
  window_->TellLater("the lamp is out");
  window_->TellLater("the bell is out");
  testing::internal::CaptureStderr();
  Drive({In("message",
            [this](QDialog&) {
              window_->EndByRequest();
              return true;
            }),
         Left(), Await("closed", [] { return !QApplication::activeModalWidget(); })});
  EXPECT_THAT(testing::internal::GetCapturedStderr(), HasSubstr("the bell is out"));
}

TEST_F(EndTest, AQuestionDuringARunSpoilsNoReading) {
  OpenOnSoundEquipment();
  Drive({Press("run"), Guide(kPlay), OnTheWire("GRES"), Await("closed", [this] { return !window_->close(); }),
         In("question", [](QDialog&) { return true; }), OnTheWire("gres"),
         Answer("question", "Go on with the run", "A run is on"),
         Await("a result", [this] { return Cell(1, kResult) != "running"; }), OnTheWire("EREM"), Guide(kNext),
         Idle()});
  EXPECT_EQ(Cell(1, kResult), "passed");
  EXPECT_EQ(Cell(1, kRemark), "");
}

TEST_F(EndTest, ResultsThatCannotBeSavedEndTheRunAndAreSavedUnderAnotherName) {
  OpenOnSoundEquipment();
  Drive({Press("run"), Guide(kPlay), OnTheWire("STST"),
         Do([this] { Write("pump.orvik", "somebody else's"); }),
         Await("a result", [this] { return Cell(1, kResult) == "passed"; }), OnTheWire("EREM"), Guide(kNext),
         Answer("message", "Close", "the document cannot be saved"), Idle()});
  EXPECT_TRUE(Changed());
  EXPECT_EQ(Contents(file_), "somebody else's");
  Drive({Press("saveAs"), TakeFile(file_), Answer("message", "Close", "is there already"), Press("saveAs"),
         TakeFile(Path("again.orvik")), Await("saved", [this] { return !Changed(); })});
  EXPECT_TRUE(window_->windowTitle().startsWith("again.orvik"));
  EXPECT_EQ(Show(Path("again.orvik"))["outcome"], "passed");
  EXPECT_EQ(Contents(file_), "somebody else's");
}

TEST_F(EndTest, TheKeyForStopIsHeardInTheGuide) {
  OpenOnSoundEquipment();
  Drive({Press("run"), Guide(kPlay), OnTheWire("STST"), Do([] {
           auto* guide = Visible("FTestGuide");
           guide->activateWindow();
           QTest::keyClick(guide, Qt::Key_F8);
         }),
         Idle()});
  EXPECT_EQ(Sent(file_).back(), "EREM");
  EXPECT_THAT(window_->findChild<QLabel*>("remark")->text().toStdString(), HasSubstr("Stopped."));
  EXPECT_THAT(Cell(1, kResult), Not("passed"));
}

}  // namespace
}  // namespace desktop_test

// Test leads are measured by hand, from the window's menu and from the guide.
#include <gmock/gmock.h>

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QTest>

#include "host/run/GuideToolbar.h"
#include "host/run/LeadCalibrations.h"
#include "platform/IForm.h"
#include "tests/system/gui/DesktopTest.h"

namespace desktop_test {
namespace {

using testing::HasSubstr;

class CalibrationTest : public DesktopTest {
 protected:
  void Open(const std::string& profile) {
    file_ = NewDocument({"410"});
    window_->Open(file_);
    ChooseTester("Simulated tester: " + profile);
  }
  /// Clicks a button of the dialog once it can be clicked.
  Step Click(const char* name) {
    return Await(name, [name] {
      auto* window = Visible("FCalibrateLeads");
      auto* button = window ? window->findChild<QPushButton*>(name) : nullptr;
      if (!button || !button->isEnabled()) return false;
      QTest::mouseClick(button, Qt::LeftButton);
      return true;
    });
  }
  /// Takes "Calibrate..." from the guide's tools.
  Step CalibrateInTheGuide() {
    return Await("the guide's calibration", [this] {
      if (!Visible("FTestGuide")) return false;
      for (const auto& form : bench_->Application()->Forms())
        if (const auto toolbar = host::run::GuideToolbar(*form))
          bench_->Application()->Post([toolbar] { toolbar->Click(host::plugins::keld::guide::kCalibrate); });
      return true;
    });
  }
  Step Opened() {
    return Await("the dialog", [] { return Visible("FCalibrateLeads") != nullptr; });
  }
  std::optional<host::run::LeadCalibration> Stored() const {
    return host::run::StoredLeadsOf(host::RegistryStore(Path("state")), "SIM-0001");
  }

  std::string file_;
};

TEST_F(CalibrationTest, ShowsTheResult) {
  Open("sound-class-1");
  Drive({Press("calibrate"), Click("cmdCalibrate"), Click("cmdSave"), Idle()});
  EXPECT_THAT(Remark(), HasSubstr("The test leads of tester SIM-0001 have 123 mOhm, measured "));
  ASSERT_TRUE(Stored());
  EXPECT_TRUE(Stored()->measured);
  Drive({Press("run"), Guide(kPlay), Result(1, "passed"), Guide(kNext), Idle()});
  EXPECT_EQ(Show(file_)["instrument"]["calibration"], 123);
}

TEST_F(CalibrationTest, RefusesAnImpossibleValue) {
  Open("broken-earth");
  Drive({Press("calibrate"), Click("cmdCalibrate"),
         Answer("message", "Close", "1850 mOhm is more than test leads have"), Idle()});
  EXPECT_FALSE(Stored());
}

TEST_F(CalibrationTest, ReportsATesterWithoutTheTest) {
  Open("sound-class-2");
  Drive({Press("calibrate"), Click("cmdCalibrate"), Answer("message", "Close", "does not have the test 410"),
         Idle()});
  EXPECT_FALSE(Stored());
}

TEST_F(CalibrationTest, RefusesAnImpossibleValue_InTheGuide) {
  Open("broken-earth");
  Drive({Press("run"), CalibrateInTheGuide(), Click("cmdCalibrate"),
         Await("refused", [this] { return Remark().find("1850 mOhm is more than") != std::string::npos; }),
         Await("closed", [] { return !Visible("FCalibrateLeads"); }), Guide(kNext),
         Answer("message", "Close", "1850 mOhm is more than test leads have"), Idle()});
  EXPECT_FALSE(Stored());
}

TEST_F(CalibrationTest, ShowsTheResult_InTheGuide) {
  Open("sound-class-1");
  Drive({Press("run"), CalibrateInTheGuide(), Click("cmdCalibrate"), Click("cmdSave"),
         Await("stored", [this] { return Remark().find("have 123 mOhm, measured") != std::string::npos; }),
         Guide(kNext), Idle()});
  ASSERT_TRUE(Stored());
  EXPECT_EQ(Stored()->milliohms, 123);
}

TEST_F(CalibrationTest, Stop_EndsTheRun_InTheGuide) {
  Open("sound-class-1");
  Drive({Press("run"), CalibrateInTheGuide(), Opened(), Press("stop"), Idle()});
  EXPECT_FALSE(Visible("FCalibrateLeads"));
  Drive({Press("run"), CalibrateInTheGuide(), Click("cmdCalibrate"), Press("stop"), Idle()});
  EXPECT_FALSE(Visible("FCalibrateLeads"));
  Drive(
      {Press("run"), CalibrateInTheGuide(), Click("cmdCalibrate"), Click("cmdSave"), Press("stop"), Idle()});
  EXPECT_FALSE(Stored());
}

TEST_F(CalibrationTest, Stop_StoresNothingAndAsksNothing) {
  Open("sound-class-1");
  Drive({Press("calibrate"), Click("cmdCalibrate"), Press("stop"), Idle()});
  EXPECT_FALSE(Visible("FCalibrateLeads"));
  EXPECT_FALSE(QApplication::activeModalWidget());
  EXPECT_FALSE(Stored());
}

}  // namespace
}  // namespace desktop_test

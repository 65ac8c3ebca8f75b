#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QPushButton>
#include <QToolButton>
#include <QTreeView>

#include "host/qt/Screen.h"
#include "tests/unit/qt/Person.h"
#include "tests/unit/qt/WidgetDifferences.h"
#include "tests/unit/ui/GuideTest.h"
#include "toolkit/headless/Form.h"

// Whole tests on the simulated tester, operated by mouse at the real widgets.
namespace ui {
namespace {

using support::Inner;
using testing::Contains;
using testing::StartsWith;
namespace person = support::person;

enum Command : int {
  kAbort = 101,
  kPrevious = 102,
  kNext = 103,
  kStop = 201,
  kPlay = 202,
  kNotApplicable = 301,
  kSkip = 302,
  kTools = 501,
};

class GuideOnScreen : public GuideTest {
 protected:
  GuideOnScreen() {
    onWindow_ = [this](const std::shared_ptr<orvik::platform::IForm>& form) {
      screen_.Update();
      if (answer_.empty()) return;
      person::Click(Inner<QPushButton>(*screen_.WidgetOf(*form), answer_));
    };
  }

  QWidget& Window(const std::string& name) {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (window->isVisible() && window->objectName().toStdString() == name) return *window;
    }
    throw std::runtime_error("no window " + name);
  }
  QToolButton& ButtonOf(int command) {
    return Inner<QToolButton>(Window("FTestGuide"), "tbrCommands." + std::to_string(command));
  }
  void Press(int command) {
    screen_.Update();
    person::Click(ButtonOf(command));
  }
  QTreeView& Results() { return Inner<QTreeView>(Window("FTestGuide"), "lvwResults"); }
  std::string ResultCell(int row, int column) {
    return Results().model()->index(row, column).data().toString().toStdString();
  }
  void ExpectMirrored() {
    const auto finder = [this](const auto& control) { return screen_.WidgetOf(control); };
    EXPECT_EQ(support::Differences(finder, App()), std::vector<std::string>{});
  }

  host::qt::Screen screen_{bench_.Only().SharedApplication()};
  /// The button that is pressed in every other window.
  std::string answer_ = "cmdDecline";
};

TEST_F(GuideOnScreen, MeasuresAndShowsTheValue) {
  const auto element = Element(410);
  Perform(element, [&](GuideScreen) {
    screen_.Update();
    EXPECT_FALSE(ButtonOf(kStop).isEnabled());
    Press(kPlay);
    screen_.Update();
    EXPECT_EQ(Results().model()->rowCount(), 1);
    EXPECT_EQ(ResultCell(0, 1), "123  mOhm");
    EXPECT_EQ(Inner<QComboBox>(Window("FTestGuide"), "cboSerial").currentText(), "SIM-0001");
    ExpectMirrored();
    Press(kNext);
  });
  EXPECT_EQ(controller_->finished, std::vector<std::int32_t>{7});
  EXPECT_TRUE(left_);
}

TEST_F(GuideOnScreen, OffersOnlyStopAndAbortDuringATest) {
  bool looked = false;
  Perform(Element(410), [&](GuideScreen) {
    When("GRES", [&] {
      screen_.Update();
      looked = true;
      for (const int command : {kPrevious, kNext, kNotApplicable, kSkip, kTools})
        EXPECT_FALSE(ButtonOf(command).isEnabled()) << command;
      EXPECT_TRUE(ButtonOf(kAbort).isEnabled());
      EXPECT_TRUE(ButtonOf(kStop).isEnabled());
      EXPECT_FALSE(Inner<QComboBox>(Window("FTestGuide"), "cboSerial").isEnabled());
    });
    Press(kPlay);
  });
  EXPECT_TRUE(looked);
}

TEST_F(GuideOnScreen, EndsTheSessionOnStop) {
  const auto element = Element(410);
  Perform(element, [&](GuideScreen) {
    When("STST", [&] { Press(kStop); });
    Press(kPlay);
    screen_.Update();
    EXPECT_EQ(Results().model()->rowCount(), 0);
    EXPECT_TRUE(ButtonOf(kPlay).isEnabled());
  });
  EXPECT_THAT(bench_.Wire().Sent(), Contains("EREM"));
  EXPECT_EQ(element->Result()->Status(), 0);
}

TEST_F(GuideOnScreen, ContinuesAfterNoToAbort) {
  Perform(Element(410), [&](GuideScreen) {
    When("STST", [&] { Press(kAbort); });
    Press(kPlay);
    screen_.Update();
    EXPECT_EQ(Results().model()->rowCount(), 1);
  });
  EXPECT_EQ(windows_, std::vector<std::string>{"FYesNoPrompt"});
}

TEST_F(GuideOnScreen, EndsTheTestAfterYesToAbort) {
  answer_ = "cmdAccept";
  Perform(Element(410), [&](GuideScreen) {
    When("STST", [&] { Press(kAbort); });
    Press(kPlay);
  });
  EXPECT_EQ(windows_, std::vector<std::string>{"FYesNoPrompt"});
  EXPECT_THAT(bench_.Wire().Sent(), Contains("EREM"));
  EXPECT_TRUE(left_);
}

TEST_F(GuideOnScreen, AnswersTheQuestionWithAKey) {
  onWindow_ = [&](const std::shared_ptr<orvik::platform::IForm>& form) {
    screen_.Update();
    person::Press(*screen_.WidgetOf(*form), Qt::Key_Y);
  };
  Perform(Element(410), [&](GuideScreen) { Press(kAbort); });
  EXPECT_EQ(windows_, std::vector<std::string>{"FYesNoPrompt"});
  EXPECT_TRUE(left_);
}

TEST_F(GuideOnScreen, DoesNotTakeReturnForYes) {
  onWindow_ = [&](const std::shared_ptr<orvik::platform::IForm>& form) {
    screen_.Update();
    person::Press(*screen_.WidgetOf(*form), Qt::Key_Return);
  };
  Perform(Element(410), [&](GuideScreen guide) {
    Press(kAbort);
    EXPECT_TRUE(guide.Form().Visible());
  });
  EXPECT_FALSE(left_);
}

TEST_F(GuideOnScreen, AbortsWhenItsWindowIsClosed) {
  answer_ = "cmdAccept";
  Perform(Element(410), [&](GuideScreen) {
    screen_.Update();
    When("STST", [&] { Window("FTestGuide").windowHandle()->close(); });
    Press(kPlay);
  });
  EXPECT_EQ(windows_, std::vector<std::string>{"FYesNoPrompt"});
  EXPECT_TRUE(left_);
}

TEST_F(GuideOnScreen, ShowsAFailedValueInBoldRed) {
  auto standards = Make<orvik::IStandardColl>(orvik::HostClasses::kStandardColl);
  standards->Add(Standard("IEC 60601-1", "100"));
  controller_->standards = standards;
  Perform(Element(410), [&](GuideScreen) {
    Press(kPlay);
    screen_.Update();
    ExpectMirrored();
  });
}

}  // namespace
}  // namespace ui

// The window that waits for the operator is on top after every click.
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QToolButton>
#include <QTreeWidget>

#include "tests/system/screen/ScreenTest.h"

namespace screen_test {
namespace {

constexpr char kSound[] = "sound-class-1";

class StackingTest : public ScreenTest {
 protected:
  /// Clicks the row beside the guide.
  Step ClickRow(int id) {
    return Do([this, id] {
      const auto* row = Tree().findItems(QString::number(id), Qt::MatchExactly, 0).first();
      Display::Click(*Tree().viewport(), {4, Tree().visualItemRect(row).center().y()});
    });
  }
  /// The click has come through to the window.
  Step Chosen(int id) {
    return Await("row " + std::to_string(id) + " chosen", [this, id] {
      const auto* row = Tree().currentItem();
      return row && row->text(0).toInt() == id;
    });
  }
  static QWidget& GuideWindow() { return *Visible("FTestGuide"); }
  static QWidget& GuideButton(int command) {
    return *GuideWindow().findChild<QToolButton*>("tbrCommands." + QString::number(command));
  }

 private:
  QTreeWidget& Tree() { return *window_->findChild<QTreeWidget*>("tree"); }
};

TEST_F(StackingTest, ClickIntoWindow_KeepsTheGuideAbove) {
  DriveRun({"410", "910"}, kSound, {ClickRow(2), Chosen(2), Do([this] {
                                      EXPECT_EQ(Display::OwnerOf(GuideWindow()), window_->winId());
                                      EXPECT_TRUE(Display::OnTop(GuideWindow()));
                                    })});
}

TEST_F(StackingTest, NextGuideStaysAbove) {
  QWidget* first = nullptr;
  DriveRun(
      {"410", "910"}, kSound,
      {Guide(kPlay), Await("a reading", [this] { return Cell(1, kValue) == "123 mOhm"; }),
       Do([&] { first = &GuideWindow(); }), Guide(kNext),
       Await("the next guide", [&] { return Visible("FTestGuide") && Visible("FTestGuide") != first; }),
       OnTop("FTestGuide"), ClickRow(2), Chosen(2), Do([] { EXPECT_TRUE(Display::OnTop(GuideWindow())); })});
}

// openbox minimises a window with its owner, whichever of both is asked for.
TEST_F(StackingTest, MinimisesGuideAndWindowTogether) {
  const auto minimised = [this](const std::string& what, bool are) {
    return Await(what,
                 [this, are] { return window_->isMinimized() == are && GuideWindow().isMinimized() == are; });
  };
  const auto back = Do([this] { Display::Activate(*window_); });
  // Until then one may still ask for the keyboard, which brings a window back.
  const auto active = [this](const std::string& what, const std::function<QWidget*()>& window) {
    return Await(what + " active", [window] { return window()->isActiveWindow(); });
  };
  DriveRun({"410"}, kSound,
           {active("the guide", [] { return &GuideWindow(); }), Do([this] { Display::Minimise(*window_); }),
            minimised("minimised with the window", true), back, minimised("restored", false),
            OnTop("FTestGuide"), active("the window", [this] { return window_.get(); }),
            Do([] { Display::Minimise(GuideWindow()); }), minimised("minimised with the guide", true), back,
            minimised("restored again", false), OnTop("FTestGuide")});
}

TEST_F(StackingTest, PromptIsAboveTheGuide_AndBlocksIt) {
  QWidget* first = nullptr;
  DriveRun({"410", "910"}, kSound,
           {Guide(kAbort), OnTop("FYesNoPrompt"), Do([&] {
              first = &GuideWindow();
              EXPECT_EQ(Display::OwnerOf(*Visible("FYesNoPrompt")), first->winId());
              Display::Click(GuideButton(kNext));
            }),
            OnTop("FYesNoPrompt"),
            Do([] { Display::Click(*Visible("FYesNoPrompt")->findChild<QPushButton*>("cmdDecline")); }),
            Await("an answer", [] { return !Visible("FYesNoPrompt"); }),
            Do([&] { EXPECT_EQ(&GuideWindow(), first) << "Next was clicked while the prompt waited"; })});
}

TEST_F(StackingTest, QuestionIsAboveTheGuide_ReturnEndsNothing) {
  DriveRun({"410"}, kSound,
           {Do([this] { window_->close(); }), OnTop("question"), Do([] {
              const auto& question = *qobject_cast<QMessageBox*>(Visible("question"));
              EXPECT_EQ(Display::OwnerOf(question), GuideWindow().winId());
              EXPECT_TRUE(question.text().startsWith("PUMP-7 is being tested"));
              Display::Click(GuideWindow(), {5, 5});
            }),
            OnTop("question"), Do([] { Display::Press("Return"); }),
            Await("an answer", [] { return !Visible("question"); }), OnTop("FTestGuide")});
  EXPECT_FALSE(left_);
}

}  // namespace
}  // namespace screen_test

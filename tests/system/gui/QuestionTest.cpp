// Neither Return nor Escape changes or ends anything, and a question names what it is about.
#include <gmock/gmock.h>

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "tests/system/gui/DesktopTest.h"

namespace desktop_test {
namespace {

using testing::HasSubstr;
using testing::Not;

/// The key that a person answers a question with.
class QuestionTest : public DesktopTest, public testing::WithParamInterface<Qt::Key> {
 protected:
  /// Presses the key in the question, which must show the text.
  Step AnswerByKey(const std::string& text) {
    return In("question", [text](QDialog& shown) {
      EXPECT_THAT(qobject_cast<QMessageBox*>(&shown)->text().toStdString(), HasSubstr(text));
      QTest::keyClick(&shown, GetParam());
      return true;
    });
  }
  Step NoQuestion() {
    return Await("no question", [] { return QApplication::activeModalWidget() == nullptr; });
  }
  void OpenPump(const std::vector<std::string>& equipment) {
    file_ = Path("pump.orvik");
    std::vector<std::string> words{"new", file_, "--add", "410", "910"};
    words.insert(words.end(), equipment.begin(), equipment.end());
    ASSERT_EQ(Bench(words).status, 0);
    ASSERT_EQ(Bench({"limit", file_, "--from", "iec-60601-1-class-1-cf"}).status, 0);
    window_->Open(file_);
    ChooseTester("Simulated tester: sound-class-1");
  }

  std::string file_;
};

TEST_P(QuestionTest, RemovesNothing) {
  OpenPump({"--asset", "PUMP-7", "--maker", "Acme", "--model", "X2"});
  ChooseElement(2);
  Drive({Press("remove"), AnswerByKey("from PUMP-7 (Acme X2)"), NoQuestion()});
  EXPECT_EQ(Cell(2, kResult), "not tested");
  EXPECT_FALSE(Changed());
}

TEST_P(QuestionTest, RunsNothingAgain) {
  OpenPump({"--maker", "Acme", "--model", "X2"});
  ChooseElement(1);
  Drive({Press("runSelected"), Guide(kPlay), Result(1, "passed"), Guide(kNext), Idle(), Press("run"),
         AnswerByKey("Acme X2 has results already"), NoQuestion(), Idle()});
  EXPECT_EQ(Cell(1, kResult), "passed");
  EXPECT_FALSE(Visible("FTestGuide"));
}

TEST_P(QuestionTest, StopsNoRun) {
  OpenPump({});
  Drive({Press("run"), Await("the guide", [] { return Visible("FTestGuide") != nullptr; }), Close(),
         AnswerByKey("pump.orvik is being tested"), NoQuestion(), Guide(kPlay), Result(1, "passed"),
         Press("stop"), Idle()});
  EXPECT_FALSE(left_);
}

TEST_P(QuestionTest, DropsNoChanges) {
  OpenPump({});
  ChooseElement(2);
  Drive({Press("remove"), Answer("question", "Remove"), Close(), AnswerByKey("pump.orvik has changes"),
         NoQuestion()});
  EXPECT_TRUE(Changed());
  EXPECT_FALSE(left_);
}

TEST_P(QuestionTest, AddsNothingUnfinishedToTheArchive) {
  OpenPump({});
  Drive({Press("archive"), AnswerByKey("pump.orvik is not finished"), NoQuestion()});
  EXPECT_THAT(Bench({"archive", "list"}).out, Not(HasSubstr("pump")));
}

TEST_P(QuestionTest, OverwritesNoReport) {
  OpenPump({});
  Write("pump.pdf", "an older report");
  const auto report = Path("pump.pdf");
  const auto takeFile = In("fileDialog", [report](QDialog& dialog) {
    dialog.findChild<QLineEdit*>("fileNameEdit")->setText(QString::fromStdString(report));
    auto* save = dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Save);
    // Later: its question waits inside the click.
    QTimer::singleShot(0, save, [save] { save->click(); });
    return true;
  });
  const auto answer = Await("the question of the file dialog", [] {
    auto* question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!question) return false;
    EXPECT_THAT(question->text().toStdString(), HasSubstr("pump.pdf"));
    QTest::keyClick(question, GetParam());
    return true;
  });
  const auto cancel = In("fileDialog", [](QDialog& dialog) {
    dialog.reject();
    return true;
  });
  Drive({Press("report"), takeFile, answer, cancel, NoQuestion()});
  EXPECT_EQ(Contents(report), "an older report");
}

INSTANTIATE_TEST_SUITE_P(Keys, QuestionTest, testing::Values(Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape),
                         [](const testing::TestParamInfo<Qt::Key>& key) {
                           return key.param == Qt::Key_Return  ? "Return"
                                  : key.param == Qt::Key_Enter ? "Enter"
                                                               : "Escape";
                         });

}  // namespace
}  // namespace desktop_test

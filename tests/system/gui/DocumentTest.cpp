// What the window does with documents.
#include <gmock/gmock.h>

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QTextBrowser>
#include <QTreeWidget>

#include "host/document/Document.h"
#include "tests/system/gui/DesktopTest.h"

namespace desktop_test {
namespace {

using testing::HasSubstr;
using testing::Not;

class DocumentWindowTest : public DesktopTest {
 protected:
  void TypeAsset(const std::string& text) {
    QTest::keyClicks(window_->findChild<QLineEdit*>("asset"), QString::fromStdString(text));
  }
};

TEST_F(DocumentWindowTest, DisablesActions_WithoutADocument) {
  for (const auto* name :
       {"save", "addTests", "remove", "limits", "setUp", "report", "archive", "run", "stop"})
    EXPECT_FALSE(window_->findChild<QAction*>(name)->isEnabled()) << name;
  EXPECT_EQ(Verdict(), "");
}

TEST_F(DocumentWindowTest, MalformedFile_KeepsTheOpenDocument) {
  window_->Open(NewDocument({"410"}));
  Write("broken.orvik", "<OrvikDocument Version=\"1\">\n<Elements>\n</OrvikDocument>\n");
  Drive({Press("open"), TakeFile(Path("broken.orvik")), Answer("message", "Close", "broken.orvik, line 3")});
  EXPECT_EQ(Cell(1, 1), "Protective earth, with mains cord");
  EXPECT_THAT(window_->windowTitle().toStdString(), HasSubstr("pump.orvik"));
}

TEST_F(DocumentWindowTest, RefusesAFileInUse) {
  const auto file = NewDocument({"410"});
  const auto other = host::document::Document::Open(bench_->Host(), file);
  Drive({Press("open"), TakeFile(file), Answer("message", "Close", "pump.orvik")});
  EXPECT_EQ(Verdict(), "");
}

TEST_F(DocumentWindowTest, New_RefusesAnExistingFile) {
  const auto file = NewDocument({"410"});
  const auto before = Contents(file);
  Drive({Press("new"), TakeFile(file), Answer("message", "Close", "pump.orvik")});
  EXPECT_EQ(Contents(file), before);
}

TEST_F(DocumentWindowTest, AsksAboutUnsavedChangesOnClose) {
  const auto file = NewDocument({"410"});
  window_->Open(file);
  EXPECT_FALSE(Changed());
  TypeAsset("-B");
  EXPECT_TRUE(Changed());
  Drive({Close(), Answer("question", "Cancel", "pump.orvik has changes that were not saved")});
  EXPECT_FALSE(left_);
  EXPECT_TRUE(window_->isVisible());
  Drive({Close(), Answer("question", "Save", "not saved"), Left()});
  EXPECT_THAT(Contents(file), HasSubstr("Asset=\"PUMP-7-B\""));
  EXPECT_FALSE(window_->isVisible());
}

// As from a scanner that ends with a line, or the clipboard.
TEST_F(DocumentWindowTest, FieldsRejectControlCharacters) {
  window_->Open(NewDocument({"410"}));
  for (const auto* name : {"asset", "serial", "maker", "model", "operator"}) {
    auto* field = window_->findChild<QLineEdit*>(name);
    field->clear();
    field->insert(
        QString::fromUtf8("\x02PUMP\t-\x1BΩ\xC2\x9B"
                          "9\r\n"));
    EXPECT_EQ(field->text().toStdString(), "PUMP-Ω9") << name;
    EXPECT_EQ(field->cursorPosition(), 7) << name;
  }
}

TEST_F(DocumentWindowTest, DiscardsChangesOnRequest) {
  const auto file = NewDocument({"410"});
  const auto before = Contents(file);
  window_->Open(file);
  TypeAsset("-B");
  Drive({Close(), Answer("question", "Drop the changes"), Left()});
  EXPECT_EQ(Contents(file), before);
}

TEST_F(DocumentWindowTest, RequestToEnd_KeepsUnsavedChanges) {
  const auto file = NewDocument({"410"});
  const auto before = Contents(file);
  window_->Open(file);
  TypeAsset("-B");
  testing::internal::CaptureStderr();
  window_->EndByRequest();
  EXPECT_THAT(testing::internal::GetCapturedStderr(), HasSubstr("pump.orvik.unsaved"));
  EXPECT_TRUE(left_);
  EXPECT_TRUE(window_->LeftOver());
  EXPECT_EQ(Contents(file), before);
  EXPECT_THAT(Contents(file + ".unsaved"), HasSubstr("Asset=\"PUMP-7-B\""));
  EXPECT_EQ(Show(file + ".unsaved")["elements"].size(), 1u);
  window_->Open(file);
  EXPECT_THAT(Remark(), HasSubstr("pump.orvik.unsaved"));
}

TEST_F(DocumentWindowTest, SavesWhatTheCommandLineReads) {
  const auto file = NewDocument({"410", "910"});
  window_->Open(file);
  ChooseElement(1);
  Drive({Press("remove"), Answer("question", "Remove", "Protective earth"), Press("save"),
         Await("saved", [this] { return !Changed(); })});
  const auto read = Show(file);
  ASSERT_EQ(read["elements"].size(), 1u);
  EXPECT_EQ(read["elements"][0]["id"], 2);
}

TEST_F(DocumentWindowTest, DoubleClick_OpensOneDialog) {
  window_->Open(NewDocument({"410"}));
  int dialogs = 0;
  Drive({Press("addTests"), Press("addTests"),
         In("addTests",
            [&dialogs](QDialog& dialog) {
              ++dialogs;
              dialog.reject();
              return true;
            }),
         Idle(), Await("nothing more", [] { return !QApplication::activeModalWidget(); })});
  EXPECT_EQ(dialogs, 1);
}

TEST_F(DocumentWindowTest, KeepsUnknownXml) {
  const auto file = NewDocument({"410"});
  auto text = Contents(file);
  text.insert(text.find("<Elements>"), "<Extra Kept=\"yes\"/>");
  Write("pump.orvik", text);
  window_->Open(file);
  TypeAsset("-B");
  Drive({Press("save"), Await("saved", [this] { return !Changed(); })});
  EXPECT_THAT(Contents(file), HasSubstr("<Extra Kept=\"yes\""));
}

TEST_F(DocumentWindowTest, ChangesSettingsInThePlugInsDialog) {
  window_->Open(NewDocument({"410"}));
  ChooseElement(1);
  Drive({Press("setUp"),
         Await("the window",
               [] {
                 auto* dialog = Visible("FElementSetup");
                 auto* list = dialog ? dialog->findChild<QTreeWidget*>("tvwSettings") : nullptr;
                 if (!list) return false;
                 auto* first = list->topLevelItem(0);
                 while (first->childCount() > 0) first = first->child(0);
                 first->setCheckState(0, first->checkState(0) == Qt::Checked ? Qt::Unchecked : Qt::Checked);
                 return true;
               }),
         Await("closed",
               [] {
                 auto* dialog = Visible("FElementSetup");
                 return !dialog || !dialog->close();
               }),
         Idle()});
  EXPECT_TRUE(Changed());
}

TEST_F(DocumentWindowTest, ArchivesUnfinishedDocuments_WhenConfirmed) {
  window_->Open(NewDocument({"410"}));
  Drive({Press("archive"), Answer("question", "Cancel", "is not finished")});
  EXPECT_FALSE(std::filesystem::exists(Path("state/archive.sqlite")));
  Drive({Press("archive"), Answer("question", "Add it as it is", "is not finished"),
         Answer("message", "Close", "added as document 1")});
  EXPECT_TRUE(std::filesystem::exists(Path("state/archive.sqlite")));
}

TEST_F(DocumentWindowTest, RemovesTheRemark_WithItsDocument) {
  window_->Open(NewDocument({"410"}));
  TypeAsset("-B");
  Drive({Press("save"), Await("saved", [this] { return !Changed(); })});
  const auto* remark = window_->findChild<QLabel*>("remark");
  EXPECT_THAT(remark->text().toStdString(), HasSubstr("Saved: "));
  Drive({Press("new"), TakeFile(Path("other.orvik")),
         Await("the new one", [this] { return window_->windowTitle().startsWith("other.orvik"); })});
  EXPECT_THAT(remark->text().toStdString(), Not(HasSubstr("Saved: ")));
}

TEST_F(DocumentWindowTest, KeepsEarlierUnsavedChanges) {
  const auto file = NewDocument({"410"});
  Write("pump.orvik.unsaved", "of an earlier session");
  window_->Open(file);
  TypeAsset("-B");
  testing::internal::CaptureStderr();
  window_->EndByRequest();
  EXPECT_THAT(testing::internal::GetCapturedStderr(), HasSubstr("pump.orvik.unsaved.2"));
  EXPECT_EQ(Contents(file + ".unsaved"), "of an earlier session");
  EXPECT_THAT(Contents(file + ".unsaved.2"), HasSubstr("Asset=\"PUMP-7-B\""));
}

}  // namespace
}  // namespace desktop_test

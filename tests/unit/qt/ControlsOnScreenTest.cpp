#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTabBar>
#include <QTimer>
#include <QToolButton>
#include <QTreeView>
#include <QTreeWidget>

#include "tests/unit/qt/ScreenTest.h"

namespace toolkit::headless {
namespace {

using support::Inner;
namespace person = support::person;
using Texts = std::vector<std::string>;

class ControlsOnScreen : public ScreenTest {};

TEST_F(ControlsOnScreen, ClickButtonsByMouseAndKeys) {
  auto button = NewForm("F").AddButton("cmdGo");
  button->SetCaption("&Go");
  const auto clicks = Count(button->Clicked());
  auto form = Column("F", {"cmdGo"});
  auto& widget = WidgetOf<QPushButton>(*button);
  person::Click(widget);
  Pump();
  EXPECT_EQ(*clicks, 1);
  person::Press(*widget.window(), Qt::Key_Space);
  Pump();
  EXPECT_EQ(*clicks, 2);
  person::Press(*widget.window(), Qt::Key_Return);
  Pump();
  EXPECT_EQ(*clicks, 3);
}

TEST_F(ControlsOnScreen, IgnoreClicksOnDisabledButtons) {
  auto button = NewForm("F").AddButton("cmdGo");
  const auto clicks = Count(button->Clicked());
  Column("F", {"cmdGo"});
  button->SetEnabled(false);
  Pump();
  EXPECT_FALSE(WidgetOf(*button).isEnabled());
  person::Click(WidgetOf(*button));
  Pump();
  EXPECT_EQ(*clicks, 0);
}

TEST_F(ControlsOnScreen, ShowWhatAHandlerMakesOfTypedText) {
  auto box = NewForm("F").AddTextBox("txtName");
  On(box->Changed(), [&] {
    if (box->Text() == "ab") box->SetText("AB");
  });
  Column("F", {"txtName"});
  auto& line = WidgetOf<QLineEdit>(*box);
  person::Type(line, "ab");
  Pump();
  EXPECT_EQ(box->Text(), "AB");
  EXPECT_EQ(line.text(), "AB");
  person::Type(line, "c");
  Pump();
  EXPECT_EQ(box->Text(), "ABc");
}

TEST_F(ControlsOnScreen, KeepTypedTextUntilTheModelHasIt) {
  auto box = NewForm("F").AddTextBox("txtName");
  Column("F", {"txtName"});
  auto& line = WidgetOf<QLineEdit>(*box);
  QKeyEvent press(QEvent::KeyPress, Qt::Key_A, {}, "a");
  QApplication::sendEvent(&line, &press);
  box->SetToolTip("changes before the text arrives");
  EXPECT_FALSE(onScreen->Update());
  EXPECT_EQ(line.text(), "a");
  Pump();
  EXPECT_EQ(box->Text(), "a");
  EXPECT_EQ(line.text(), "a");
}

TEST_F(ControlsOnScreen, ResetInputThatTheModelRejects) {
  auto tree = NewForm("F").AddTreeView("tvw");
  tree->AddNode("a", "First");
  auto form = Column("F", {"tvw"});
  auto other = Shown("Other");
  Pump();
  On(form->Activated(), [] { throw orvik::HostError(5, "test", "not now"); });
  onScreen->SetErrorHandler([](const std::string&) {});
  auto& widget = WidgetOf<QTreeWidget>(*tree);
  widget.topLevelItem(0)->setCheckState(0, Qt::Checked);
  Pump();
  EXPECT_FALSE(tree->Checked("a"));
  EXPECT_EQ(widget.topLevelItem(0)->checkState(0), Qt::Unchecked);
}

TEST_F(ControlsOnScreen, RejectTypingInLockedText) {
  auto box = NewForm("F").AddTextBox("txtName");
  box->SetText("kept");
  box->SetLocked(true);
  Column("F", {"txtName"});
  person::Type(WidgetOf<QLineEdit>(*box), "x");
  Pump();
  EXPECT_EQ(box->Text(), "kept");
  ExpectMirrored();
}

TEST_F(ControlsOnScreen, ReplaceTheWidgetForMultiLineText) {
  auto box = NewForm("F").AddTextBox("txtComment");
  Column("F", {"txtComment"});
  EXPECT_NE(dynamic_cast<QLineEdit*>(&WidgetOf(*box)), nullptr);
  box->SetMultiLine(true);
  box->SetText("one\ntwo");
  Pump();
  auto& lines = WidgetOf<QPlainTextEdit>(*box);
  EXPECT_EQ(lines.toPlainText(), "one\ntwo");
  lines.moveCursor(QTextCursor::End);
  person::Type(lines, "!");
  Pump();
  EXPECT_EQ(box->Text(), "one\ntwo!");
}

TEST_F(ControlsOnScreen, ChooseEntriesWithTheKeyboard) {
  auto box = NewForm("F").AddComboBox("cboUnit");
  box->SetEditable(false);
  for (const char* unit : {"V", "mA", "Ohm"}) box->AddItem(unit);
  const auto selected = Count(box->Selected());
  Column("F", {"cboUnit"});
  auto& widget = WidgetOf<QComboBox>(*box);
  EXPECT_EQ(widget.count(), 3);
  EXPECT_EQ(widget.currentIndex(), -1);
  QTest::keyClick(&widget, Qt::Key_Down);
  QTest::keyClick(&widget, Qt::Key_Down);
  Pump();
  EXPECT_EQ(box->Text(), "mA");
  EXPECT_EQ(*selected, 2);
  box->SetSelectedIndex(2);
  Pump();
  EXPECT_EQ(widget.currentText(), "Ohm");
}

TEST_F(ControlsOnScreen, DoNotCompleteTypedText) {
  auto box = NewForm("F").AddComboBox("cboSerial");
  box->AddItem("4711");
  Column("F", {"cboSerial"});
  person::Type(WidgetOf<QComboBox>(*box), "47");
  Pump();
  EXPECT_EQ(box->Text(), "47");
  EXPECT_EQ(box->SelectedIndex(), -1);
  EXPECT_EQ(box->Items(), Texts{"4711"});
  ExpectMirrored();
}

TEST_F(ControlsOnScreen, ToggleCheckMarksByMouse) {
  auto tree = NewForm("F").AddTreeView("tvwSettings");
  tree->AddNode("a", "First");
  tree->AddNode("b", "Second");
  Texts clicked;
  On(tree->NodeClicked(), [&](const std::string& key) { clicked.push_back(key); });
  Column("F", {"tvwSettings"});
  auto& widget = WidgetOf<QTreeWidget>(*tree);
  const QRect row = widget.visualItemRect(widget.topLevelItem(1));
  person::ClickAt(*widget.viewport(), QPoint(row.left() + 10, row.center().y()));
  Pump();
  EXPECT_EQ(clicked, Texts{"b"});
  EXPECT_TRUE(tree->Checked("b"));
  ExpectMirrored();
}

TEST_F(ControlsOnScreen, ShowACheckMarkThatAHandlerResets) {
  auto tree = NewForm("F").AddTreeView("tvwSettings");
  tree->AddNode("a", "First");
  tree->SetChecked("a", true);
  On(tree->NodeClicked(), [&](const std::string& key) { tree->SetChecked(key, true); });
  Column("F", {"tvwSettings"});
  auto& widget = WidgetOf<QTreeWidget>(*tree);
  widget.setFocus();
  widget.setCurrentItem(widget.topLevelItem(0));
  QTest::keyClick(&widget, Qt::Key_Space);
  Pump();
  EXPECT_EQ(widget.topLevelItem(0)->checkState(0), Qt::Checked);
  EXPECT_TRUE(tree->Checked("a"));
}

class ListOnScreen : public ScreenTest {
 protected:
  ListOnScreen() {
    list = NewForm("F").AddListView("lvwResults");
    list->AddColumn({"NAM", "Test", 3000, platform::Alignment::kLeft});
    list->AddColumn({"VAL", "Value", 1500, platform::Alignment::kRight});
    Column("F", {"lvwResults"});
  }
  void AddRow(const std::string& key, const std::string& value, bool failed = false) {
    list->AddRow(key);
    platform::ListCell cell;
    cell.text = value;
    cell.bold = failed;
    cell.color = failed ? platform::kRed : platform::kWindowText;
    list->SetCell(key, "VAL", cell);
  }
  QTreeView& View() { return WidgetOf<QTreeView>(*list); }
  QModelIndex Index(int row, int column) { return View().model()->index(row, column); }

  std::shared_ptr<platform::IListView> list;
};

TEST_F(ListOnScreen, ShowsWeightAndColourOfRows) {
  AddRow("1", "12 mOhm");
  AddRow("2", "1850 mOhm", true);
  Pump();
  EXPECT_EQ(View().model()->rowCount(), 2);
  EXPECT_EQ(Index(1, 1).data().toString(), "1850 mOhm");
  EXPECT_TRUE(Index(1, 1).data(Qt::FontRole).value<QFont>().bold());
  EXPECT_EQ(Index(1, 1).data(Qt::ForegroundRole).value<QColor>(), QColor(Qt::red));
  EXPECT_FALSE(Index(0, 1).data(Qt::FontRole).value<QFont>().bold());
  EXPECT_FALSE(Index(0, 1).data(Qt::ForegroundRole).isValid());
  ExpectMirrored();
}

TEST_F(ListOnScreen, ShowsRowsAfterClearing) {
  for (const char* key : {"1", "2", "3"}) AddRow(key, key);
  Pump();
  list->ClearRows();
  Pump();
  EXPECT_EQ(View().model()->rowCount(), 0);
  AddRow("9", "nine");
  Pump();
  ASSERT_EQ(View().model()->rowCount(), 1);
  EXPECT_EQ(Index(0, 1).data().toString(), "nine");
}

TEST_F(ListOnScreen, SelectsTheClickedRow) {
  for (const char* key : {"1", "2", "3"}) AddRow(key, key);
  std::vector<int> buttons;
  On(list->MouseUp(), [&](const platform::MouseEvent& mouse) { buttons.push_back(mouse.button); });
  Pump();
  person::ClickAt(*View().viewport(), View().visualRect(Index(1, 0)).center());
  Pump();
  EXPECT_EQ(list->SelectedRow(), "2");
  person::ClickAt(*View().viewport(), View().visualRect(Index(2, 0)).center(), Qt::RightButton);
  Pump();
  EXPECT_EQ(list->SelectedRow(), "3");
  EXPECT_EQ(buttons, (std::vector<int>{1, 2}));
}

TEST_F(ListOnScreen, ScrollsToTheSelectedRow) {
  for (int row = 0; row < 200; ++row) AddRow(std::to_string(row), "x");
  list->SelectRow("150");
  list->EnsureVisible("150");
  Pump();
  EXPECT_EQ(View().currentIndex().row(), 150);
  EXPECT_TRUE(View().viewport()->rect().intersects(View().visualRect(Index(150, 0))));
}

TEST_F(ListOnScreen, ShowsAHundredThousandRows) {
  for (int row = 0; row < 100000; ++row) list->AddRow(std::to_string(row));
  Pump();
  EXPECT_EQ(View().model()->rowCount(), 100000);
  EXPECT_EQ(Index(99999, 0).data().toString(), "");
}

class ToolbarOnScreen : public ScreenTest {
 protected:
  ToolbarOnScreen() {
    toolbar = NewForm("F").AddToolbar("tbr");
    toolbar->AddButton(202, "&Play");
    toolbar->AddButton(501, "Tools");
    toolbar->AddEntry(501, 900, "Calibrate");
    On(toolbar->CommandChosen(), [&](int command) { chosen.push_back(command); });
    Column("F", {"tbr"});
  }
  QToolButton& Button(int command) {
    return Inner<QToolButton>(WidgetOf(*toolbar), "tbr." + std::to_string(command));
  }

  std::shared_ptr<platform::IToolbar> toolbar;
  std::vector<int> chosen;
};

TEST_F(ToolbarOnScreen, ChoosesEnabledCommandsOnly) {
  person::Click(Button(202));
  Pump();
  EXPECT_EQ(chosen, std::vector<int>{202});
  toolbar->EnableCommand(202, false);
  Pump();
  person::Click(Button(202));
  Pump();
  EXPECT_EQ(chosen, std::vector<int>{202});
}

TEST_F(ToolbarOnScreen, CanBeUsedWithTheKeyboard) {
  Button(202).setFocus(Qt::TabFocusReason);
  QTest::keyClick(&Button(202), Qt::Key_Space);
  Pump();
  EXPECT_EQ(chosen, std::vector<int>{202});
}

TEST_F(ToolbarOnScreen, ServesTheLoopWhileAMenuIsOpen) {
  bool served = false;
  bool inMenu = false;
  app->Post([&] { served = Button(501).menu()->isVisible(); });
  // Runs in the loop of the open menu.
  QTimer::singleShot(0, &Button(501), [&] {
    QMenu& menu = *Button(501).menu();
    inMenu = menu.isVisible();
    app->Post([&] {
      served = menu.isVisible();
      menu.setActiveAction(menu.actions().first());
      QTest::keyClick(&menu, Qt::Key_Return);
    });
  });
  person::Click(Button(501));
  Pump();
  EXPECT_TRUE(inMenu);
  EXPECT_TRUE(served);
  EXPECT_EQ(chosen, std::vector<int>{900});
}

TEST_F(ToolbarOnScreen, IgnoresEntriesOfAReleasedForm) {
  QPointer<QMenu> menu = Button(501).menu();
  QTimer::singleShot(0, menu, [&] {
    app->Post([&] {
      Newest()->Unload();
      ReleaseForms();
      toolbar.reset();
      onScreen->Update();
      if (menu) menu->actions().first()->trigger();
    });
  });
  person::Click(Button(501));
  Pump();
  EXPECT_EQ(chosen, std::vector<int>{});
  EXPECT_TRUE(menu.isNull());
}

TEST_F(ToolbarOnScreen, FitsButtonsToTheirCaptions) {
  for (const char* caption : {"Play", "Nicht anwendbar und noch viel länger"}) {
    toolbar->AddButton(static_cast<int>(std::string(caption).size()), caption);
    Pump();
  }
  for (const int command : {202, 501, 4, 37}) {
    EXPECT_GE(Button(command).width(), Button(command).sizeHint().width()) << command;
    EXPECT_LE(Button(command).geometry().right(), WidgetOf(*toolbar).width()) << command;
  }
}

TEST_F(ControlsOnScreen, ChoosePagesByTab) {
  auto tabs = NewForm("F").AddTabs("tab");
  tabs->AddPage("one", "One")->AddLabel("lblOne")->SetCaption("1");
  auto second = tabs->AddPage("two", "Two");
  Column("F", {"tab"});
  auto& bar = *WidgetOf(*tabs).findChild<QTabBar*>();
  EXPECT_FALSE(IsOnScreen(*second));
  person::ClickAt(bar, bar.tabRect(1).center());
  Pump();
  EXPECT_EQ(tabs->SelectedKey(), "two");
  EXPECT_TRUE(IsOnScreen(*second));
  EXPECT_LE(bar.geometry().bottom(), WidgetOf(*second).geometry().top() + 1) << "the page covers its tab";
}

TEST_F(ControlsOnScreen, NeverInterpretTextAsMarkup) {
  auto label = NewForm("F").AddLabel("lbl");
  label->SetCaption("<b>R&D</b> & more");
  label->SetToolTip("<b>x</b>");
  Column("F", {"lbl"});
  auto& widget = WidgetOf<QLabel>(*label);
  EXPECT_EQ(widget.textFormat(), Qt::PlainText);
  EXPECT_EQ(widget.toolTip(), "<qt>&lt;b&gt;x&lt;/b&gt;</qt>");
}

TEST_F(ControlsOnScreen, UseALabelAsNameOfTheNextControl) {
  auto& form = NewForm("F");
  form.AddLabel("lblSerial")->SetCaption("&Serial number:");
  auto box = form.AddTextBox("txtSerial");
  auto button = form.AddButton("cmd");
  button->SetCaption("&Save && close");
  auto shown = Column("F", {"lblSerial", "txtSerial", "cmd"});
  EXPECT_EQ(WidgetOf<QLabel>(*shown->Find("lblSerial")).buddy(), &WidgetOf(*box));
  EXPECT_EQ(WidgetOf(*button).accessibleName(), "Save & close");
}

TEST_F(ControlsOnScreen, ShowProgress) {
  auto bar = NewForm("F").AddProgressBar("prg");
  bar->SetRange(0, 8);
  bar->SetValue(3);
  Column("F", {"prg"});
  auto& widget = WidgetOf<QProgressBar>(*bar);
  EXPECT_EQ(widget.maximum(), 8);
  EXPECT_EQ(widget.value(), 3);
  bar->SetValue(5);
  Pump();
  EXPECT_EQ(widget.value(), 5);
  bar->SetRange(0, 0);
  Pump();
  EXPECT_GT(widget.maximum(), widget.minimum()) << "a range without length would move for ever";
}

TEST_F(ControlsOnScreen, ShowColours) {
  auto label = NewForm("F").AddLabel("lbl");
  label->SetBackColor(platform::kRed);
  Column("F", {"lbl"});
  auto& widget = WidgetOf<QLabel>(*label);
  EXPECT_EQ(widget.palette().color(QPalette::Window), QColor(Qt::red));
  EXPECT_EQ(widget.grab().toImage().pixelColor(widget.width() - 2, 1), QColor(Qt::red));
  label->SetBackColor(platform::kButtonFace);
  Pump();
  EXPECT_NE(widget.palette().color(QPalette::Window), QColor(Qt::red));
}

TEST_F(ControlsOnScreen, AreNotClipped) {
  auto& form = NewForm("F");
  const std::string longest = "Messleitungskalibrierung durchführen und übernehmen";
  form.AddLabel("lbl")->SetCaption(longest);
  form.AddButton("cmd")->SetCaption(longest);
  auto combo = form.AddComboBox("cbo");
  combo->AddItem(longest);
  form.AddTextBox("txt");
  form.AddFrame("fra")->SetCaption(longest);
  auto shown = Column("F", {"lbl", "cmd", "cbo", "txt", "fra"});
  for (const char* name : {"lbl", "cmd", "cbo", "txt", "fra"}) {
    const QWidget& widget = WidgetOf(*shown->Find(name));
    EXPECT_GE(widget.width(), widget.minimumSizeHint().width()) << name;
    EXPECT_GE(widget.height(), widget.minimumSizeHint().height()) << name;
  }
  EXPECT_GE(WidgetOf(*shown->Find("cbo")).width(), WidgetOf(*shown->Find("cbo")).sizeHint().width());
  EXPECT_GE(WidgetOf(*shown->Find("cmd")).width(), WidgetOf(*shown->Find("cmd")).sizeHint().width());
}

}  // namespace
}  // namespace toolkit::headless

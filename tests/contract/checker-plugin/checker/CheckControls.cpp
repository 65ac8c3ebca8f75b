#include <set>

#include "platform/Controls.h"
#include "platform/IApplication.h"
#include "platform/IForm.h"
#include "platform/IListView.h"
#include "platform/ITimer.h"
#include "platform/ITreeView.h"
#include "tests/contract/checker-plugin/checker/Checks.h"
#include "tests/contract/checker-plugin/template/TheHost.h"

namespace check {
namespace {

using orvik::platform::IForm;

void Common(Findings& findings, IForm& form) {
  form.AddLabel("lbl");
  form.AddFrame("fra");
  const auto button = form.AddButton("cmd");
  form.AddTimer("tmr");
  findings.Equal(4, static_cast<std::int64_t>(form.Controls().size()), "controls of the form");
  findings.Equal("fra", form.Controls()[1]->Name(), "second control in the order of adding");
  findings.Expect(form.Find("cmd") == button && !form.Find("CMD") && !form.Find(""),
                  "names are case-sensitive");
  findings.Refused("a second control of a name", [&] { form.AddLabel("cmd"); });
  findings.Equal(4, static_cast<std::int64_t>(form.Controls().size()), "controls after a refused one");
  const std::set<orvik::platform::WindowHandle> handles{form.Handle(), button->Handle(),
                                                        form.Find("lbl")->Handle()};
  findings.Expect(handles.size() == 3 && !handles.contains(0), "every control is a window of its own");

  int clicks = 0;
  const auto onClick = button->Clicked().Subscribe([&] { ++clicks; });
  button->Click();
  button->SetEnabled(false);
  button->Click();
  button->SetEnabled(true);
  button->SetVisible(false);
  button->Click();
  findings.Equal(1, clicks, "clicks heard of a button that was disabled and hidden meanwhile");
  button->SetVisible(true);
  button->SetCaption("&OK");
  button->SetToolTip("tip");
  button->SetBackColor(orvik::platform::kRed);
  findings.Equal("&OK", button->Caption(), "caption");
  findings.Equal("tip", button->ToolTip(), "tool tip");
  findings.Expect(button->BackColor() == orvik::platform::kRed, "a background colour is kept");
  button->SetBounds({100, 200, 1500, 400});
  findings.Expect(button->Bounds() == orvik::platform::Rect{100, 200, 1500, 400},
                  "a control without a layout keeps its place");
  button->SetFocus();
  findings.Expect(button->HasFocus(), "a button takes the focus");
  const int before = button->RefreshCount();
  button->Refresh();
  findings.Equal(before + 1, button->RefreshCount(), "repaints");
}

void TextBoxes(Findings& findings, IForm& form) {
  const auto box = form.AddTextBox("txt");
  int changes = 0;
  const auto onChange = box->Changed().Subscribe([&] { ++changes; });
  box->SetText("a");
  box->SetText("a");
  findings.Equal(1, changes, "changes by the same text twice");
  box->Type("b");
  findings.Equal("ab", box->Text(), "text after typing");
  box->TypeOver("c");
  findings.Equal("c", box->Text(), "text after typing over");
  box->SetLocked(true);
  box->Type("d");
  box->TypeOver("e");
  findings.Equal("c", box->Text(), "text of a locked box after typing");
  box->SetText("f");
  findings.Equal("f", box->Text(), "text of a locked box set by the program");
  box->SetMultiLine(true);
  findings.Expect(box->MultiLine() && box->Locked(), "a box keeps its kind");
}

void ComboBoxes(Findings& findings, IForm& form) {
  const auto box = form.AddComboBox("cbo");
  int selected = 0;
  const auto onSelected = box->Selected().Subscribe([&] { ++selected; });
  box->AddItem("one");
  box->AddItem("two");
  findings.Equal(-1, box->SelectedIndex(), "selection of a new box");
  box->SetSelectedIndex(1);
  box->SetSelectedIndex(1);
  box->SetSelectedIndex(2);
  box->SetSelectedIndex(-2);
  findings.Equal(1, box->SelectedIndex(), "selection after indexes outside");
  findings.Equal("two", box->Text(), "text of the selection");
  findings.Equal(1, selected, "changes of the selection");
  box->Choose(0);
  box->Choose(7);
  findings.Equal("one", box->Text(), "text after the operator's choice");
  findings.Expect(box->Editable(), "a new box takes any text");
  box->TypeOver("three");
  findings.Equal("three", box->Text(), "text after typing over");
  findings.Equal(-1, box->SelectedIndex(), "selection by a text that is not an entry");
  box->SetText("two");
  findings.Equal(1, box->SelectedIndex(), "selection by the text of an entry");
  box->SetEditable(false);
  box->TypeOver("three");
  findings.Expect(!box->Editable() && box->Text() == "two", "a box that is not editable takes entries only");
  int lost = 0;
  const auto onLost = box->LostFocus().Subscribe([&] { ++lost; });
  box->SetFocus();
  form.AddButton("cmd")->SetFocus();
  findings.Equal(1, lost, "times the box lost the focus");
  box->ClearItems();
  findings.Expect(box->Items().empty() && box->SelectedIndex() == -1, "an emptied box has no selection");
}

void Lists(Findings& findings, IForm& form) {
  const auto list = form.AddListView("lvw");
  list->AddColumn({"NAM", "Name", 4500});
  list->AddColumn({"VAL", "Value", 1500, orvik::platform::Alignment::kRight});
  list->AddRow("12::");
  findings.Equal("", list->Cell("12::", "VAL").text, "cell that was never set");
  list->SetCell("12::", "VAL", {"5.3", "tip", true, orvik::platform::kRed, std::string("tag")});
  const auto cell = list->Cell("12::", "VAL");
  findings.Expect(cell.text == "5.3" && cell.bold && cell.color == orvik::platform::kRed &&
                      cell.toolTip == "tip" && std::any_cast<std::string>(&cell.tag),
                  "a cell keeps text, tool tip, weight, colour and tag");
  list->SetRowTag("12::", 7);
  findings.Expect(std::any_cast<int>(list->RowTag("12::")) == 7, "a row keeps its tag");
  findings.Refused("a row of the same key", [&] { list->AddRow("12::"); });
  findings.Refused("a cell of an unknown row", [&] { list->Cell("13::", "VAL"); });
  findings.Refused("a cell of an unknown column", [&] { list->SetCell("12::", "X", {}); });
  findings.Expect(list->RowCount() == 1 && list->HasRow("12::") && !list->HasRow(""),
                  "rows are found by their keys");
  list->AddRow("4::");
  findings.Expect(list->RowKeys() == std::vector<std::string>{"12::", "4::"}, "rows keep their order");
  list->EnsureVisible("12::");
  list->SelectRow("12::");
  findings.Equal("12::", list->SelectedRow(), "selected row");
  int button = 0;
  const auto onMouse = list->MouseUp().Subscribe([&](const auto& event) { button = event.button; });
  list->ClickAt({2, 0, 10, 10});
  findings.Equal(2, button, "mouse button over the list");
  list->ClearRows();
  findings.Expect(list->RowCount() == 0 && list->Columns().size() == 2,
                  "clearing the rows leaves the columns");
}

void Trees(Findings& findings, IForm& form) {
  const auto tree = form.AddTreeView("tvw");
  tree->AddNode("a", "A");
  tree->AddNode("b", "B");
  std::string clicked;
  const auto onClick = tree->NodeClicked().Subscribe(
      [&](const std::string& key) { clicked += key + (tree->Checked(key) ? "+" : "-"); });
  tree->SetChecked("a", true);
  tree->SetChecked("c", true);
  findings.Equal("", clicked, "clicks heard of checks by the program");
  tree->ClickNode("a");
  tree->ClickNode("b");
  tree->ClickNode("c");
  findings.Equal("a-b+", clicked, "clicks of the operator, with the new state");
  findings.Expect(tree->NodeKeys() == std::vector<std::string>{"a", "b"}, "nodes keep their order");
  tree->SetNodeCaption("b", "B2");
  findings.Equal("B2", tree->NodeCaption("b"), "caption of a node");
  tree->ClearNodes();
  findings.Expect(!tree->HasNode("a") && tree->NodeKeys().empty(), "a cleared tree has no nodes");
}

void Toolbars(Findings& findings, IForm& form) {
  const auto bar = form.AddToolbar("tbr");
  bar->AddButton(501, "Tools");
  bar->AddEntry(501, 900, "Calibrate...");
  bar->AddEntry(4711, 901, "nowhere");
  std::string chosen;
  const auto onCommand =
      bar->CommandChosen().Subscribe([&](int command) { chosen += std::to_string(command) + " "; });
  bar->Click(900);
  bar->EnableCommand(900, false);
  bar->Click(900);
  bar->EnableCommand(900, true);
  bar->ShowCommand(900, false);
  bar->Click(900);
  findings.Expect(!bar->CommandVisible(900) && bar->CommandVisible(501), "a command can be hidden");
  findings.Expect(bar->Commands() == std::vector<int>{501, 900}, "commands keep their order");
  bar->SetCommandToolTip(501, "tip");
  bar->SetCommandToolTip(4711, "tip");
  bar->Click(901);
  findings.Equal("900 ", chosen, "commands chosen while enabled, disabled, hidden and unknown");
  findings.Equal("Calibrate...", bar->CommandCaption(900), "caption of an entry");
  findings.Expect(!bar->CommandEnabled(4711), "an unknown command is not enabled");
}

void Others(Findings& findings, IForm& form) {
  const auto bar = form.AddProgressBar("prg");
  bar->SetRange(0, 10);
  findings.Expect(bar->Minimum() == 0 && bar->Maximum() == 10, "a range is kept");
  bar->SetValue(11);
  findings.Equal(10, bar->Value(), "progress beyond the end");
  bar->SetValue(-1);
  findings.Equal(0, bar->Value(), "progress before the beginning");

  const auto picture = form.AddPictureBox("pic");
  const std::vector<std::byte> bytes{std::byte{'B'}, std::byte{'M'}};
  picture->SetBitmap(bytes);
  findings.Expect(picture->Bitmap() == bytes, "a picture is kept");

  const auto tabs = form.AddTabs("tab");
  const auto page = tabs->AddPage("one", "One");
  page->AddLabel("lbl");
  tabs->AddPage("two", "Two");
  findings.Expect(tabs->Keys() == std::vector<std::string>{"one", "two"}, "pages keep their order");
  tabs->SetPageBitmap("one", bytes);
  tabs->Choose("two");
  tabs->Choose("three");
  findings.Equal("two", tabs->SelectedKey(), "page chosen");
  findings.Expect(tabs->Page("one") == page && !tabs->Page("three"), "pages are found by their keys");
  findings.Equal("One", tabs->PageCaption("one"), "caption of a page");
  findings.Expect(page->Find("lbl") != nullptr, "pages are panels");
}

}  // namespace

void CheckControls(Findings& findings, const HostParts&) {
  RunStepsOnForms(findings, {{"what controls have in common", Common},
                             {"text boxes", TextBoxes},
                             {"combo boxes", ComboBoxes},
                             {"lists", Lists},
                             {"trees", Trees},
                             {"toolbars", Toolbars},
                             {"other controls", Others}});
}

}  // namespace check

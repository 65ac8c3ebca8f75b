#include "toolkit/controls/LimitViewControls.h"

#include "toolkit/controls/ControlTexts.h"

namespace toolkit::controls {
namespace {

namespace platform = orvik::platform;
using Translate = LimitViewControls::Translate;

void AddCaption(platform::IPanel& panel, const char* name, const std::string& text) {
  panel.AddLabel(name)->SetCaption(text);
}

std::shared_ptr<platform::IListView> AddList(platform::IPanel& panel, const Translate& text) {
  auto list = panel.AddListView("lvwLimits");
  list->AddColumn({LimitColumns::kStandard, text(ControlTexts::kStandard), 2000, platform::Alignment::kLeft});
  list->AddColumn(
      {LimitColumns::kDescription, text(ControlTexts::kDescription), 2000, platform::Alignment::kLeft});
  list->AddColumn({LimitColumns::kLow, text(ControlTexts::kLowLimit), 1200, platform::Alignment::kRight});
  list->AddColumn({LimitColumns::kHigh, text(ControlTexts::kHighLimit), 1200, platform::Alignment::kRight});
  return list;
}

std::shared_ptr<platform::IComboBox> AddUnits(platform::IPanel& panel, const char* name) {
  auto box = panel.AddComboBox(name);
  box->SetEditable(false);
  return box;
}

std::shared_ptr<platform::IButton> AddButton(platform::IPanel& panel, const char* name,
                                             const std::string& caption, const std::string& toolTip) {
  auto button = panel.AddButton(name);
  button->SetCaption(caption);
  button->SetToolTip(toolTip);
  return button;
}

void Arrange(platform::IPanel& panel) {
  platform::Grid grid;
  grid.rows = {{}, {0, 1}, {}, {}, {}, {}, {}, {}};
  grid.columns = {{}, {0, 1}, {}, {}};
  grid.cells = {
      {"lblCaption", 0, 0, 1, 4}, {"lvwLimits", 1, 0, 1, 4}, {"lblLow", 2, 0},   {"txtLow", 2, 1},
      {"cboLowUnit", 2, 2},       {"lblHigh", 3, 0},         {"txtHigh", 3, 1},  {"cboHighUnit", 3, 2},
      {"lblNominal", 4, 0},       {"txtNominal", 4, 1},      {"cmdApply", 4, 3}, {"lblMessage", 5, 0, 1, 4},
      {"lblName", 6, 0},          {"txtName", 6, 1},         {"cmdAdd", 6, 3},   {"lblDescription", 7, 0},
      {"txtDescription", 7, 1},   {"cmdRemove", 7, 3},
  };
  panel.SetGrid(grid);
}

}  // namespace

LimitViewControls LimitViewControls::Build(platform::IPanel& panel, const Translate& text) {
  LimitViewControls controls;
  // In tab order.
  controls.lblCaption = panel.AddLabel("lblCaption");
  controls.lvwLimits = AddList(panel, text);
  AddCaption(panel, "lblLow", text(ControlTexts::kLowLimit));
  controls.txtLow = panel.AddTextBox("txtLow");
  controls.cboLowUnit = AddUnits(panel, "cboLowUnit");
  AddCaption(panel, "lblHigh", text(ControlTexts::kHighLimit));
  controls.txtHigh = panel.AddTextBox("txtHigh");
  controls.cboHighUnit = AddUnits(panel, "cboHighUnit");
  AddCaption(panel, "lblNominal", text(ControlTexts::kNominal));
  controls.txtNominal = panel.AddTextBox("txtNominal");
  controls.cmdApply =
      AddButton(panel, "cmdApply", text(ControlTexts::kApply), text(ControlTexts::kApplyToolTip));
  controls.lblMessage = panel.AddLabel("lblMessage");
  AddCaption(panel, "lblName", text(ControlTexts::kStandard));
  controls.txtName = panel.AddTextBox("txtName");
  controls.cmdAdd = AddButton(panel, "cmdAdd", text(ControlTexts::kAdd), text(ControlTexts::kAddToolTip));
  AddCaption(panel, "lblDescription", text(ControlTexts::kDescription));
  controls.txtDescription = panel.AddTextBox("txtDescription");
  controls.cmdRemove =
      AddButton(panel, "cmdRemove", text(ControlTexts::kRemove), text(ControlTexts::kRemoveToolTip));
  Arrange(panel);
  return controls;
}

void LimitViewControls::SetLocked(bool locked) const {
  for (const auto& box : {txtLow, txtHigh, txtNominal, txtName, txtDescription}) box->SetLocked(locked);
  for (const auto& box : {cboLowUnit, cboHighUnit}) box->SetEnabled(!locked);
  for (const auto& button : {cmdApply, cmdAdd, cmdRemove}) button->SetEnabled(!locked);
}

}  // namespace toolkit::controls

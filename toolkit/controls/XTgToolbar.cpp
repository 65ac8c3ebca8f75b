#include "toolkit/controls/XTgToolbar.h"

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/HostClasses.h"
#include "OrvikTypeLib/ITgToolbarEvents.h"
#include "platform/IPanel.h"
#include "toolkit/controls/ControlTexts.h"

namespace toolkit::controls {
namespace {

using orvik::Required;

struct ButtonTexts {
  int command;
  const char* caption;
  const char* toolTip;
};

constexpr ButtonTexts kButtons[] = {
    {101, ControlTexts::kAbort, ControlTexts::kAbortToolTip},
    {102, ControlTexts::kPrevious, ControlTexts::kPreviousToolTip},
    {103, ControlTexts::kNext, ControlTexts::kNextToolTip},
    {201, ControlTexts::kStop, ControlTexts::kStopToolTip},
    {202, ControlTexts::kPlay, ControlTexts::kPlayToolTip},
    {301, ControlTexts::kNotApplicable, ControlTexts::kNotApplicableToolTip},
    {302, ControlTexts::kSkip, ControlTexts::kSkipToolTip},
    {501, ControlTexts::kTools, ControlTexts::kToolsToolTip},
};

}  // namespace

std::string XTgToolbar::IObject_ClassID() const { return orvik::HostClasses::kToolbar; }

void XTgToolbar::Build(orvik::platform::IPanel& panel) {
  toolbar_ = panel.AddToolbar("tbrCommands");
  for (const ButtonTexts& button : kButtons) {
    toolbar_->AddButton(button.command, Text(button.caption));
    toolbar_->SetCommandToolTip(button.command, Text(button.toolTip));
  }
  status_ = panel.AddLabel("lblStatus");
  panel.AddLabel("lblJudgement")->SetVisible(false);
  chosen_ = toolbar_->CommandChosen().Subscribe([this](int command) { Notify(command); });

  orvik::platform::Grid grid;
  grid.rows = {{}, {}};
  grid.columns = {{}, {0, 1}};
  grid.cells = {{"tbrCommands", 0, 0}, {"lblStatus", 0, 1}, {"lblJudgement", 1, 0, 1, 2}};
  grid.margin = 0;
  panel.SetGrid(grid);
}

void XTgToolbar::Notify(int command) {
  if (const auto listener = listener_.lock()) listener->OnCommand(command);
}

void XTgToolbar::ITgToolbar_SetStatusText(const std::string& sText) { Required(status_).SetCaption(sText); }

std::string XTgToolbar::ITgToolbar_StatusText() const { return Required(status_).Caption(); }

void XTgToolbar::ITgToolbar_EnableCommand(std::int32_t lCommand, bool fEnabled) {
  Required(toolbar_).EnableCommand(lCommand, fEnabled);
}

bool XTgToolbar::ITgToolbar_IsEnabled(std::int32_t lCommand) const {
  return Required(toolbar_).CommandEnabled(lCommand);
}

void XTgToolbar::ITgToolbar_ShowCommand(std::int32_t lCommand, bool fVisible) {
  Required(toolbar_).ShowCommand(lCommand, fVisible);
}

void XTgToolbar::ITgToolbar_SetToolTip(std::int32_t lCommand, const std::string& sText) {
  Required(toolbar_).SetCommandToolTip(lCommand, sText);
}

void XTgToolbar::ITgToolbar_AddEntry(std::int32_t lParent, std::int32_t lCommand,
                                     const std::string& sCaption) {
  Required(toolbar_).AddEntry(lParent, lCommand, sCaption);
}

void XTgToolbar::ITgToolbar_Click(std::int32_t lCommand) { Required(toolbar_).Click(lCommand); }

}  // namespace toolkit::controls

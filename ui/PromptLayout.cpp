#include "ui/PromptLayout.h"

namespace keld::ui {

namespace platform = orvik::platform;

platform::Grid PromptLayout(const std::string& sText, const std::vector<std::string>& asButtons) {
  constexpr platform::Twips kTextWidth = 4800;
  constexpr platform::Twips kTextHeight = 900;
  constexpr platform::Twips kButtonWidth = 1215;
  constexpr platform::Twips kButtonHeight = 375;
  const int nButtons = static_cast<int>(asButtons.size());
  platform::Grid grid;
  grid.margin = 240;
  grid.rows = {{kTextHeight, 1}, {kButtonHeight, 0}};
  // A flexible column on each side centres the buttons.
  const platform::Twips lSide = (kTextWidth - nButtons * kButtonWidth) / 2;
  grid.columns.push_back({lSide, 1});
  grid.cells.push_back({sText, 0, 0, 1, nButtons + 2});
  for (int iButton = 0; iButton < nButtons; ++iButton) {
    grid.columns.push_back({kButtonWidth, 0});
    grid.cells.push_back({asButtons[static_cast<std::size_t>(iButton)], 1, iButton + 1});
  }
  grid.columns.push_back({lSide, 1});
  return grid;
}

}  // namespace keld::ui

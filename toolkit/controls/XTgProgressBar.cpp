#include "toolkit/controls/XTgProgressBar.h"

#include <string>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/HostClasses.h"
#include "platform/IPanel.h"

namespace toolkit::controls {

using orvik::Required;

std::string XTgProgressBar::IObject_ClassID() const { return orvik::HostClasses::kProgressBar; }

void XTgProgressBar::Build(orvik::platform::IPanel& panel) {
  bar_ = panel.AddProgressBar("prgBar");
  orvik::platform::Grid grid;
  grid.rows = {{0, 1}};
  grid.columns = {{0, 1}};
  grid.cells = {{"prgBar", 0, 0}};
  grid.margin = 0;
  panel.SetGrid(grid);
}

void XTgProgressBar::ITgProgressBar_SetRange(std::int32_t lMinimum, std::int32_t lMaximum) {
  if (lMaximum <= lMinimum)
    throw orvik::HostError(orvik::HostError::kInvalidArgument, orvik::HostClasses::kProgressBar,
                           "the progress bar's maximum " + std::to_string(lMaximum) +
                               " must be above its minimum " + std::to_string(lMinimum));
  Required(bar_).SetRange(lMinimum, lMaximum);
}

void XTgProgressBar::ITgProgressBar_SetValue(std::int32_t lValue) { Required(bar_).SetValue(lValue); }

std::int32_t XTgProgressBar::ITgProgressBar_Value() const { return Required(bar_).Value(); }

}  // namespace toolkit::controls

#pragma once

#include <string>
#include <vector>

#include "platform/Types.h"

namespace orvik::platform {

/// A row or a column of a grid. It is as large as its largest content, at least `minimum`; space left over is
/// shared by weight.
struct Track {
  Twips minimum = 0;
  int weight = 0;
};

/// The position of one control in the grid.
struct Cell {
  std::string control;
  int row = 0;
  int column = 0;
  int rowSpan = 1;
  int columnSpan = 1;
  /// Fills its cell's width; otherwise it keeps its natural width at the side that `alignment` names.
  bool fill = true;
  Alignment alignment = Alignment::kLeft;
};

/// How a panel places its controls: rows and columns, so that longer translations and other font sizes fit.
struct Grid {
  std::vector<Track> rows;
  std::vector<Track> columns;
  std::vector<Cell> cells;
  Twips margin = 120;
  Twips gap = 120;
};

}  // namespace orvik::platform

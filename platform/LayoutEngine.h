#pragma once

#include <vector>

#include "platform/Layout.h"

namespace orvik::platform {

/// One rectangle for each cell of the grid, in its order, inside a panel of the given inner size.
///
/// A control that spans several tracks widens those among them that have a weight, else the last one that is
/// in use. A track of size 0 without weight (all its controls are hidden) vanishes together with its gap.
/// Controls fill the height of their cells.
///
/// @param natural the natural size of each cell's control, in the order of the cells; a hidden control has
/// size 0 by 0. A panel too small for its content gives every track its natural size: what does not fit is
/// cut off at the right and below.
/// @throws std::invalid_argument when a cell lies outside the rows and columns, a span is below 1, a minimum
/// or weight is negative, or there is not one size for each cell; the text names the control
std::vector<Rect> Arrange(const Grid& grid, const std::vector<Size>& natural, Size inner);

/// The smallest inner size in which everything fits; errors as for `Arrange`.
Size NaturalSize(const Grid& grid, const std::vector<Size>& natural);

}  // namespace orvik::platform

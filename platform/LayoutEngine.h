#pragma once

#include <vector>

#include "platform/Layout.h"

namespace orvik::platform {

/// One rectangle for each cell of the grid, in its order, inside a panel of the given inner size.
///
/// @param natural the natural size of each cell's control, in the order of the cells; a hidden control has
/// size 0 by 0 A panel too small for its content gives every track its natural size: what does not fit is cut
/// off at the right and below.
std::vector<Rect> Arrange(const Grid& grid, const std::vector<Size>& natural, Size inner);

/// The smallest inner size in which everything fits.
Size NaturalSize(const Grid& grid, const std::vector<Size>& natural);

}  // namespace orvik::platform

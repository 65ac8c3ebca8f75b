#pragma once

#include "resources/drawing/Canvas.h"

namespace draw {

/// The tester, 16 by 16: a housing with a reading, and its sockets.
Canvas SmallTester();
/// The tester, 32 by 32.
Canvas LargeTester();
/// The tab of the instrument data pane, 32 by 34: the tester and its name plate.
Canvas TesterTab();

}  // namespace draw

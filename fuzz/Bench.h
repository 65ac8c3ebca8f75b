#pragma once

#include "tests/support/VirtualBench.h"

namespace fuzz {

/// The test bench that the targets share: the real host and the real plug-in on the virtual clock. It lasts
/// as long as the program.
support::VirtualBench& TheBench();

}  // namespace fuzz

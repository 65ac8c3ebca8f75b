#pragma once

#include <cstdint>

namespace orvik {

/// A window of the platform as a number; 0 means none.
using WindowHandle = std::uintptr_t;

}  // namespace orvik

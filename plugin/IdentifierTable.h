#pragma once

#include <cstdint>
#include <string_view>

namespace keld {

/// The resource key of a test's icon; empty when it has none.
/// @param iTestID test identifier; 0 is the plug-in itself, a multiple of 100 a group, any other a single
/// test
/// @param iStyle 0 small (16 by 16 pixels), 1 wide (32 by 16); a group takes any other style for 0, a test
/// has none
std::string_view IconKey(std::int16_t iTestID, std::int16_t iStyle);

}  // namespace keld

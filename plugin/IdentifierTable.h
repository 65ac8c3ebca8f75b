#pragma once

#include <cstdint>
#include <string_view>

namespace keld::plugin {

/// The resource key of a test's icon; empty if it has none.
/// @param iTestID test identifier: 0 is the plug-in itself, a multiple of 100 a group, any other a test
/// @param iStyle 0 small (16 by 16 pixels), 1 wide (32 by 16); any other is 0 for a group, and no icon for
/// a test
std::string_view IconKey(std::int16_t iTestID, std::int16_t iStyle);

}  // namespace keld::plugin

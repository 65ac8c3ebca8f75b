#pragma once

#include <optional>
#include <string>

namespace bench {

/// Readings and bounds beyond this are not drawn.
inline constexpr double kLargestDrawn = 1e15;

/// The number told in the unit of a drawing; none when it cannot be told in it, or is too large to be drawn.
std::optional<double> NumberIn(const std::string& unit, double number, const std::string& from);

}  // namespace bench

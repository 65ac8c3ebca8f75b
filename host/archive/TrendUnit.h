#pragma once

#include <optional>
#include <string>

namespace host::archive {

/// Readings and bounds beyond this are not drawn.
inline constexpr double kLargestDrawn = 1e15;

/// The number in the unit of a drawing; empty if it cannot be converted, or is too large to be drawn.
std::optional<double> NumberIn(const std::string& unit, double number, const std::string& from);

}  // namespace host::archive

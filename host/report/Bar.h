#pragma once

#include <optional>

namespace host::report {

/// A value and its bounds as places on a line from 0 to 1.
struct Bar {
  enum class Place { kBelow, kAtLow, kWithin, kAtHigh, kAbove };

  std::optional<double> low;   ///< empty without a lower bound
  std::optional<double> high;  ///< empty without an upper bound
  double value = 0;            ///< never on the wrong side of a bound
  bool beyond = false;         ///< the value lies beyond the end of the line, at 0 or at 1
  Place place = Place::kWithin;
};

/// Chooses a line that shows the bounds well, and places the value on it. Empty without bounds, and for
/// numbers that are not finite. Values and bounds are compared as limits compare them: inclusive, in single
/// precision.
std::optional<Bar> MakeBar(std::optional<double> low, std::optional<double> high, double value);

}  // namespace host::report

#pragma once

#include <optional>

namespace bench::report {

/// A value between its bounds on a line from 0 to 1, ready to be drawn.
struct Bar {
  enum class Place { kBelow, kAtLow, kWithin, kAtHigh, kAbove };

  std::optional<double> low;   ///< where the lower bound stands; none when there is none
  std::optional<double> high;  ///< where the upper bound stands
  double value = 0;            ///< where the value stands; never on the wrong side of a bound
  bool beyond = false;         ///< the value lies beyond the end of the line, at 0 or at 1
  Place place = Place::kWithin;
};

/// Places the value on a line that shows the bounds well. None without bounds, and for what is no finite
/// number. Values and bounds are compared as limits compare them: inclusive, in single precision.
std::optional<Bar> MakeBar(std::optional<double> low, std::optional<double> high, double value);

}  // namespace bench::report

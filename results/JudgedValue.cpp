#include "results/JudgedValue.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "instrument/Number.h"

namespace keld::results {

std::optional<float> JudgedValue(const orvik::Variant& vValue) {
  // Not the leading number, which is 0 for other texts: a reading of 0 is within every upper bound.
  const auto rNumber = instrument::NumberIn(vValue);
  if (!rNumber || !std::isfinite(*rNumber)) return {};
  constexpr double kLargest = std::numeric_limits<float>::max();
  return static_cast<float>(std::clamp(*rNumber, -kLargest, kLargest));
}

}  // namespace keld::results

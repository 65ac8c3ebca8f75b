#include "toolkit/headless/ProgressBar.h"

#include <algorithm>

#include "OrvikTypeLib/HostError.h"

namespace toolkit::headless {

void ProgressBar::SetRange(int minimum, int maximum) {
  if (maximum < minimum)
    Fail(orvik::HostError::kInvalidArgument, "progress bar \"" + Name() + "\" cannot run from " +
                                                 std::to_string(minimum) + " to " + std::to_string(maximum));
  minimum_ = minimum;
  maximum_ = maximum;
  SetValue(value_);
}

void ProgressBar::SetValue(int value) {
  value_ = std::clamp(value, minimum_, maximum_);
  NotifyChanged();
}

}  // namespace toolkit::headless

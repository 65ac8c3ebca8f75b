#pragma once

#include <cstdint>

namespace orvik {

/// Status of a result, and of a measurement where it applies.
struct ResultStatus {
  enum : std::int32_t { kNotTested = 0, kPassed = 1, kFailed = 2, kNotApplicable = 3, kAborted = 4 };
};

}  // namespace orvik

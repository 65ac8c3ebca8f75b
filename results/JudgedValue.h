#pragma once

#include <optional>

#include "OrvikTypeLib/Variant.h"

namespace keld::results {

/// The single-precision number by which a measured value is judged, held within the range of such numbers;
/// none if the value is not a number: empty, a text that is not entirely a number, infinity,
/// not-a-number.
std::optional<float> JudgedValue(const orvik::Variant& vValue);

}  // namespace keld::results

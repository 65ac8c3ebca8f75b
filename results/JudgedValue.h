#pragma once

#include <optional>

#include "OrvikTypeLib/Variant.h"

namespace keld {

/// The single-precision number by which a measured value is judged, held within the range of such numbers;
/// none for what is no number: an empty value, a text that is not a number as a whole, infinity,
/// not-a-number.
std::optional<float> JudgedValue(const orvik::Variant& vValue);

}  // namespace keld

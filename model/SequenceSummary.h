#pragma once

#include <cstdint>

#include "OrvikTypeLib/ITestContainer.h"
#include "OrvikTypeLib/Variant.h"

namespace keld::model {

/// The summary value of a sequence over the first measurements of its children.
/// @param lMode value-filter code: 3 the highest value, 4 the lowest, any other none
/// @return the value, or the empty text if there is none. The searches start at minus and plus 2 to the power
/// of 30, on purpose: a value at or beyond the start is never found.
orvik::Variant SummaryValue(const orvik::ITestContainer& Children, std::int32_t lMode);

/// The status of a sequence within its own limits, from its children's results: 2 if one failed, else 1 if
/// one passed, else 3 if one was not applicable, else 0. If a child's result cannot be read, it is 2 or 0.
std::int32_t ChildrenStatus(const orvik::ITestContainer& Children);

}  // namespace keld::model

#pragma once

#include <cstdint>

#include "OrvikTypeLib/ITestContainer.h"
#include "OrvikTypeLib/Variant.h"

namespace keld {

/// The summary value of a sequence over the first measurements of its children.
/// @param lMode value-filter code: 3 the highest value, 4 the lowest, any other none
/// @return the value, or the empty text when there is none. The searches start from plus and minus two to the
/// thirtieth, and a value at or beyond its starting point is never taken.
orvik::Variant SummaryValue(const orvik::ITestContainer& Children, std::int32_t lMode);

/// The status that the children's results give a sequence whose own limits held: 2 when one failed, else 1
/// when one passed, else 3 when one was not applicable, else 0. While a child's outcome cannot be read it is
/// 2 or 0, never passed.
std::int32_t ChildrenStatus(const orvik::ITestContainer& Children);

}  // namespace keld

#pragma once

#include <memory>
#include <string>

#include "OrvikTypeLib/ILimit.h"
#include "OrvikTypeLib/ILimitData.h"

namespace bench {

/// What a bound of a standard is given by.
struct EnteredLimit {
  std::string standard, description;
  std::string low, high;  ///< inclusive; empty when there is none
  std::string unit;       ///< empty for the unit that the element is recorded in
};

/// The unit in which the element's readings are recorded.
std::string RecordedUnit(orvik::ILimitData& limits);

/// Gives the element the limit, in the place of an older one of the same standard and description. Bounds in
/// another unit of the same quantity are converted to the unit in which the element is recorded, since a
/// reading is compared with the bare number.
/// @return the limit as it is now
/// @throws HostError 5 for bounds that are no bounds, or in a unit that the element's readings cannot be told
/// in
std::shared_ptr<orvik::ILimit> SetLimit(orvik::ILimitData& limits, const EnteredLimit& entered);

}  // namespace bench

#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "OrvikTypeLib/ILimit.h"
#include "OrvikTypeLib/ILimitData.h"
#include "OrvikTypeLib/IStandard.h"

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
/// @throws HostError 5 for invalid bounds, or a unit that does not fit the element's readings
std::shared_ptr<orvik::ILimit> SetLimit(orvik::ILimitData& limits, const EnteredLimit& entered);

/// A limit as it was set: its bounds are in the unit in which the element is recorded.
using LimitOfElement = EnteredLimit;

/// The limits of the element, of every standard that it names.
std::vector<LimitOfElement> LimitsOf(orvik::ILimitData& limits);

/// Removes the standards for which `fits` is true, with their limits.
/// @return the limits that are gone; one without bounds for a standard that had none
std::vector<LimitOfElement> RemoveStandards(orvik::ILimitData& limits,
                                            const std::function<bool(const orvik::IStandard&)>& fits);

}  // namespace bench

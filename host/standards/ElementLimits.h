#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "OrvikTypeLib/ILimit.h"
#include "OrvikTypeLib/ILimitData.h"
#include "OrvikTypeLib/IStandard.h"

namespace host::standards {

/// A limit as it is entered.
struct EnteredLimit {
  std::string standard, description;
  std::string low, high;  ///< inclusive; empty for none
  std::string unit;       ///< empty for the unit that the element is recorded in
};

/// The unit in which the element's readings are recorded.
std::string RecordedUnit(orvik::ILimitData& limits);

/// Sets the element's limit, replacing an older one of the same standard and description. Bounds in another
/// unit of the same quantity are converted to the unit in which the element is recorded, since the plug-in
/// compares bare numbers.
/// @return the limit as it is now
/// @throws HostError 5 for invalid bounds, or a unit that does not fit the element's readings
std::shared_ptr<orvik::ILimit> SetLimit(orvik::ILimitData& limits, const EnteredLimit& entered);

/// A limit as it was set: its bounds are in the unit in which the element is recorded.
using LimitOfElement = EnteredLimit;

/// The element's limits, of all its standards.
std::vector<LimitOfElement> LimitsOf(orvik::ILimitData& limits);

/// Removes the standards for which `fits` is true, with their limits.
/// @return the removed limits; one without bounds for a standard that had none
std::vector<LimitOfElement> RemoveStandards(orvik::ILimitData& limits,
                                            const std::function<bool(const orvik::IStandard&)>& fits);

}  // namespace host::standards

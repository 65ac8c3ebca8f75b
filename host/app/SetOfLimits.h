#pragma once

#include <memory>
#include <string>
#include <vector>

#include "OrvikTypeLib/ITestElement.h"
#include "host/standards/LimitSet.h"

namespace bench {

class ElementFactory;

/// "at least 2 at most 7 MOhm"
std::string BoundsText(const std::string& low, const std::string& high, const std::string& unit);

/// What came of applying a set, a line for each element.
struct AppliedLimits {
  std::vector<std::string> applied;
  std::vector<std::string> unknown;  ///< tests that the set knows nothing of
};

/// Gives each of the elements, and all that stands below them, its limit of the set; a limit of the same
/// set that is there already is replaced. `InputError` naming the element when its unit does not fit.
AppliedLimits ApplyLimitSet(const LimitSet& set,
                            const std::vector<std::shared_ptr<orvik::ITestElement>>& elements,
                            const ElementFactory& factory);

}  // namespace bench

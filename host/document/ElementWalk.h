#pragma once

#include <functional>
#include <memory>

#include "OrvikTypeLib/ITestElement.h"

namespace bench {

/// Visits the element and all that stands below it, in document order, parents before children. Nesting of
/// any depth takes no stack.
void WalkElements(const std::shared_ptr<orvik::ITestElement>& top,
                  const std::function<void(const std::shared_ptr<orvik::ITestElement>&)>& visit);

}  // namespace bench

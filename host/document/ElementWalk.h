#pragma once

#include <functional>
#include <memory>

#include "OrvikTypeLib/ITestElement.h"

namespace host::document {

/// Visits the element and all below it in document order, parents before children. Not recursive, so that
/// deeply nested documents cannot overflow the stack.
void WalkElements(const std::shared_ptr<orvik::ITestElement>& top,
                  const std::function<void(const std::shared_ptr<orvik::ITestElement>&)>& visit);

}  // namespace host::document

#pragma once

#include <memory>
#include <string>
#include <vector>

#include "OrvikTypeLib/ITestElement.h"

namespace bench {

class ElementFactory;

/// What the host holds against the element's result; saved with the element.
std::vector<std::string> DoubtsOf(const std::shared_ptr<orvik::ITestElement>& element,
                                  const ElementFactory& factory);
void SetDoubts(const std::shared_ptr<orvik::ITestElement>& element, const ElementFactory& factory,
               const std::vector<std::string>& doubts);

/// A doubt about the unit of a reading: it was compared with limits in another unit. Limits are compared by
/// number alone, so nobody else would notice. Empty when there is none.
std::string UnitDoubt(const orvik::ITestElement& element);

}  // namespace bench

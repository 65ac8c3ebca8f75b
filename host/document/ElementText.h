#pragma once

#include <string>

#include "OrvikTypeLib/ITestElement.h"

namespace bench {

class ElementFactory;

/// The name of an element as people read it; "test 410" when it has none.
std::string ElementName(orvik::ITestElement& element, const ElementFactory& factory);

}  // namespace bench

#pragma once

#include <string>

#include "OrvikTypeLib/ITestElement.h"

namespace bench {

class ElementFactory;

/// The display name of an element; "test 410" when it has none.
std::string ElementName(orvik::ITestElement& element, const ElementFactory& factory);

}  // namespace bench

#pragma once

#include <string>

#include "OrvikTypeLib/ITestElement.h"

namespace host::elements {
class ElementFactory;
}

namespace host::document {

/// The display name of an element; "test 410" when it has none.
std::string ElementName(orvik::ITestElement& element, const elements::ElementFactory& factory);

}  // namespace host::document

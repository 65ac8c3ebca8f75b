#pragma once

#include <memory>

#include "OrvikTypeLib/ITestElement.h"
#include "host/elements/AuxiliaryState.h"

namespace host::elements {
class ElementFactory;
}

namespace host::document {

/// The host's own settings of an element; null for an element that has none.
std::shared_ptr<elements::AuxiliaryState> StateOf(const std::shared_ptr<orvik::ITestElement>& element,
                                                  const elements::ElementFactory& factory);

}  // namespace host::document

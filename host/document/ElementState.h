#pragma once

#include <memory>

#include "OrvikTypeLib/ITestElement.h"
#include "host/elements/AuxiliaryState.h"

namespace bench {

class ElementFactory;

/// The host's own settings of an element; null for an element that has none.
std::shared_ptr<AuxiliaryState> StateOf(const std::shared_ptr<orvik::ITestElement>& element,
                                        const ElementFactory& factory);

}  // namespace bench

#include "host/document/ElementState.h"

#include "OrvikTypeLib/As.h"
#include "host/elements/ElementFactory.h"

namespace bench {

std::shared_ptr<AuxiliaryState> StateOf(const std::shared_ptr<orvik::ITestElement>& element,
                                        const ElementFactory& factory) {
  const auto base = factory.BaseOf(element);
  return base ? orvik::As<AuxiliaryState>(base->Auxiliary()) : nullptr;
}

}  // namespace bench

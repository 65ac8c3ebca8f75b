#include "host/document/ElementState.h"

#include "OrvikTypeLib/As.h"
#include "host/elements/ElementFactory.h"

namespace host::document {

std::shared_ptr<elements::AuxiliaryState> StateOf(const std::shared_ptr<orvik::ITestElement>& element,
                                                  const elements::ElementFactory& factory) {
  const auto base = factory.BaseOf(element);
  return base ? orvik::As<elements::AuxiliaryState>(base->Auxiliary()) : nullptr;
}

}  // namespace host::document

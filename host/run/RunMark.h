#pragma once

#include <memory>
#include <optional>

#include "OrvikTypeLib/ITestElement.h"
#include "host/elements/AuxiliaryState.h"

namespace bench {

class ElementFactory;

/// When and by whom the element's result was made; none when it has none, or none was noted.
std::optional<RunMark> RunMarkOf(const std::shared_ptr<orvik::ITestElement>& element,
                                 const ElementFactory& factory);
void SetRunMark(const std::shared_ptr<orvik::ITestElement>& element, const ElementFactory& factory,
                std::optional<RunMark> mark);

}  // namespace bench

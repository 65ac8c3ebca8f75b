#pragma once

#include <memory>

#include "OrvikTypeLib/ITestElement.h"

namespace bench {

class ElementFactory;

/// Whether somebody decided that readings of the element are recorded and not judged.
bool IsRecordOnly(const std::shared_ptr<orvik::ITestElement>& element, const ElementFactory& factory);

/// Sets the mark or takes it away. `InputError` when the element has limits, which a mark would contradict,
/// or cannot keep a mark since its plug-in is not there.
void MarkRecordOnly(const std::shared_ptr<orvik::ITestElement>& element, const ElementFactory& factory,
                    bool recordOnly);

}  // namespace bench

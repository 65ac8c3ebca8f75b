#pragma once

#include <memory>

#include "OrvikTypeLib/ITestElement.h"

namespace bench {

class ElementFactory;

/// Whether the element is marked: its readings are recorded and not judged.
bool IsRecordOnly(const std::shared_ptr<orvik::ITestElement>& element, const ElementFactory& factory);

/// Sets or removes the mark. `InputError` when the element has limits, which contradict a mark, or when its
/// plug-in is missing.
void MarkRecordOnly(const std::shared_ptr<orvik::ITestElement>& element, const ElementFactory& factory,
                    bool recordOnly);

}  // namespace bench

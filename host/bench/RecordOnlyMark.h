#pragma once

#include <memory>

#include "OrvikTypeLib/ITestElement.h"

namespace host::elements {
class ElementFactory;
}

namespace host::bench {

/// Whether the element is marked: its readings are recorded and not judged.
bool IsRecordOnly(const std::shared_ptr<orvik::ITestElement>& element,
                  const elements::ElementFactory& factory);

/// Sets or removes the mark. `InputError` when the element has limits, which contradict a mark, or when its
/// plug-in is missing.
void MarkRecordOnly(const std::shared_ptr<orvik::ITestElement>& element,
                    const elements::ElementFactory& factory, bool recordOnly);

}  // namespace host::bench

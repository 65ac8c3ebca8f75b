#pragma once

#include "OrvikTypeLib/IObject.h"

namespace host::elements {

/// As the context of `ITestElement::PrintReport`, makes a sequence print itself without its children, so that
/// a report knows which element a table belongs to.
class PrintAlone final : public orvik::IObject {};

}  // namespace host::elements

#pragma once

#include "OrvikTypeLib/IObject.h"

namespace bench {

/// Given as the context of `ITestElement::PrintReport`, it has a sequence print itself without its children,
/// so that a report can tell which table belongs to which element.
class PrintAlone final : public orvik::IObject {};

}  // namespace bench

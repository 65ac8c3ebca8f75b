#pragma once

#include <memory>

#include "OrvikTypeLib/IClassLibrary.h"

namespace check {

/// The classes that the host may create by identifier.
std::shared_ptr<orvik::IClassLibrary> NewClassTable();

}  // namespace check

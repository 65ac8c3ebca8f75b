#pragma once

#include <cstdint>
#include <pugixml.hpp>

namespace bench {

/// Looks through the elements saved below the node before any is created. `XmlError` for an identifier that
/// is missing, below 1 or used twice, and for elements nested too deeply.
/// @return the highest identifier; 0 without elements
std::int32_t CheckSavedElements(pugi::xml_node elements);

}  // namespace bench

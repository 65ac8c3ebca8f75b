#pragma once

#include <cstdint>
#include <pugixml.hpp>

namespace bench {

/// The highest identifier of an element that the records of runs name; 0 for none. The element itself may be
/// gone, but another one that got its identifier would be taken for it.
/// @param root of a document
std::int32_t HighestRecordedIdentifier(pugi::xml_node root);

}  // namespace bench

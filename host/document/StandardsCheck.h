#pragma once

#include <optional>
#include <pugixml.hpp>
#include <string>

namespace host::document {

class Findings;

/// Checks saved standards with their limits.
/// @param unit the unit that readings are recorded in and compared with the bounds; none when it is not known
void CheckStandards(pugi::xml_node standards, const std::optional<std::string>& unit, Findings& findings);

}  // namespace host::document

#pragma once

#include <pugixml.hpp>

namespace host::document {

class Findings;

/// Looks through the record of runs: what is malformed, and what was changed since it was recorded.
void CheckRuns(pugi::xml_node section, Findings& findings);

}  // namespace host::document

#pragma once

#include <string>

namespace host {

/// What the system's error number (`errno`) says, in the language that was chosen; in the system's own words
/// for one that is rare.
std::string SystemError(int error);

}  // namespace host

#pragma once

#include <string>
#include <string_view>

#include "tester/Profile.h"

namespace sim {

/// Reads a profile from the text of a profile file; tester/README.md describes the format. `name` stands in
/// error messages and is the profile's name unless the text gives one. Throws InputError naming file and
/// line.
Profile ParseProfile(std::string_view content, const std::string& name);

/// The built-in profile of that name, otherwise the profile in that file.
/// Throws InputError when it is neither or the file is bad.
Profile LoadProfile(const std::string& nameOrPath);

}  // namespace sim

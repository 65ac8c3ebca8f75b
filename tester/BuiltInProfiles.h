#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tester/Profile.h"

namespace sim {

/// A profile that comes with the program.
struct BuiltInProfile {
  std::string_view name;
  std::string_view purpose;  ///< one line for the help text
};

/// The profile used when none is asked for.
inline constexpr std::string_view kDefaultProfile = "sound-class-1";

/// All built-in profiles, in the order of the help text.
const std::vector<BuiltInProfile>& BuiltInProfiles();

/// The built-in profile of this name, empty when there is none.
std::optional<Profile> MakeBuiltInProfile(std::string_view name);

/// Every test number that a complete tester knows, ascending.
const std::vector<int>& AllTests();

}  // namespace sim

#pragma once

#include <cstdint>
#include <string_view>

/// What the host knows of the tests of this one plug-in, to check its results by rules of its own.
namespace bench::keld_facts {

/// The tester's type as its identity reports it.
inline constexpr std::string_view kTesterType = "KELD(IN)";

/// The key of the limits by which the plug-in judges.
inline constexpr std::string_view kLimitKey = "NO LIMIT KEY";

/// Whether readings of the test are corrected by the resistance of the test leads: protective earth.
constexpr bool CorrectedByLeads(std::int32_t testId) { return testId == 410 || testId == 420; }

/// More than test leads of any length have, and more than limits of a protective earth allow (practice; no
/// standard gives a figure).
inline constexpr std::int32_t kMostLeads = 500;  // mOhm

/// Names of the value filters that give a sequence a value.
inline constexpr std::string_view kMaximumFilter = "Maximum value";
inline constexpr std::string_view kMinimumFilter = "Minimum value";

}  // namespace bench::keld_facts

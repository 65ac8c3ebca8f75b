#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "host/base/Tr.h"

/// What the host knows of the tests of this one plug-in, to check its results by rules of its own.
namespace host::plugins::keld {

/// The key of the limits by which the plug-in judges.
inline constexpr std::string_view kLimitKey = "NO LIMIT KEY";

/// How many leads a test can choose from.
inline constexpr std::int32_t kLeads = 10;

/// Whether the test measures all leads at once, if it is set to: patient leakage currents.
constexpr bool MeasuresAllLeads(std::int32_t testId) { return testId >= 910 && testId < 966; }
/// Whether the test measures single leads: patient leakage and patient auxiliary currents.
constexpr bool MeasuresByLead(std::int32_t testId) {
  return MeasuresAllLeads(testId) || (testId >= 1110 && testId < 1166);
}

/// Whether readings of the test are corrected by the resistance of the test leads: protective earth.
constexpr bool CorrectedByLeads(std::int32_t testId) { return testId == 410 || testId == 420; }
/// More than test leads of any length have, and more than limits of a protective earth allow (practice; no
/// standard gives a figure). A higher value is a bad contact.
inline constexpr std::int32_t kMostLeadMilliohms = 500;

/// The value filters of a sequence. The last two give it a value.
inline constexpr std::array kFilters{TrNoop("No values"), TrNoop("All values"), TrNoop("Maximum value"),
                                     TrNoop("Minimum value")};
inline constexpr std::string_view kMaximumFilter = kFilters[2];
inline constexpr std::string_view kMinimumFilter = kFilters[3];

}  // namespace host::plugins::keld

#pragma once

#include <cstdint>

namespace keld::model {

/// The test mode sent with the start command: 1 to 10 for a single lead, 99 all leads, 9999 some leads, 999
/// no leads.
/// @param lOptions configuration option bits; bits 1 and 2 (the guide's buttons) are ignored
/// @param lTestID the test's identifier in the catalogue
std::int16_t ComputeTestMode(std::int32_t lOptions, std::int32_t lTestID);

}  // namespace keld::model

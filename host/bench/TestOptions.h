#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace host::bench {

/// The settings of a test of the KELD (`orvik::OptionBits`) in words.
namespace options {

/// The leads that are measured: "all", "3", "none". One lead at a time is, and the lowest is when several are
/// set; the others are named as set and not measured.
std::string LeadsInWords(std::int32_t options);

/// Whether the settings say anything about leads: the test measures by lead, or bits of leads are set.
bool SaysLeads(std::int32_t options, std::int32_t testId);

/// "not applicable, skip", or "none".
std::string ButtonsInWords(std::int32_t options);

/// "leads: all; buttons: not applicable, skip"; without the leads where there are none to choose.
std::string InWords(std::int32_t options, std::int32_t testId);

/// The settings with other leads: "all", "none", or a number from 1 to 10. `InputError` naming --leads when
/// the test cannot be measured so.
std::int32_t WithLeads(std::int32_t options, std::int32_t testId, const std::string& leads);

}  // namespace options
}  // namespace host::bench

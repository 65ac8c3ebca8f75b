#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "OrvikTypeLib/Codes.h"

/// The tables behind the test configuration: option bits, value filters, and the texts about leads.
namespace keld::configuration::ConfigurationTables {

/// One option bit and the tree node that shows it.
struct Option {
  std::int32_t lBit;
  const char* sKey;      ///< key of the tree node
  const char* sCaption;  ///< language string
};

/// A new configuration offers both buttons and selects no lead.
inline constexpr std::int32_t kDefaultOptions =
    orvik::OptionBits::kOffersNotApplicable | orvik::OptionBits::kOffersSkip;
inline constexpr std::int32_t kDefaultValueFilter = 1;

/// The options of an element with that test identifier, in the order of the tree: two buttons for every
/// element, ten leads from 1110 to 1165 and from 910 to 965, "All Leads" for the latter alone.
std::span<const Option> OptionsFor(std::int16_t iTestID);

/// The bit of a node's key; 0 for an unknown key.
std::int32_t BitOf(std::string_view sKey);
/// Whether the key is that of a lead or of all leads.
bool IsLead(std::string_view sKey);

/// Captions of the value filters in the order of their codes, which count from 1.
std::span<const char* const> ValueFilterCaptions();
/// The name under which a filter code is saved; empty for a code outside 1 to 4.
std::string ValueFilterName(std::int32_t lCode);
/// The code of a saved name; 0 for an unknown name.
std::int32_t ValueFilterCode(std::string_view sName);

/// The language string by which a report names the tested leads. Only the first selected lead is named, on
/// purpose.
const char* LeadText(std::int16_t iTestID, std::int32_t lOptions);

}  // namespace keld::configuration::ConfigurationTables

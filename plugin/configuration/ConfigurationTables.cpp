#include "plugin/configuration/ConfigurationTables.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "OrvikTypeLib/Codes.h"
#include "plugin/base/MKELDLanguageConstants.h"

namespace keld::configuration::ConfigurationTables {
namespace {

namespace Text = MKELDLanguageConstants;
using orvik::OptionBits;

// In the order of the tree: the buttons, the ten leads, all leads.
constexpr Option kOptions[] = {
    {OptionBits::kOffersNotApplicable, "NA key", Text::kEnableNA},
    {OptionBits::kOffersSkip, "Skip key", Text::kEnableSkip},
    {OptionBits::Lead(1), "Lead 1 key", Text::kLead1},
    {OptionBits::Lead(2), "Lead 2 key", Text::kLead2},
    {OptionBits::Lead(3), "Lead 3 key", Text::kLead3},
    {OptionBits::Lead(4), "Lead 4 key", Text::kLead4},
    {OptionBits::Lead(5), "Lead 5 key", Text::kLead5},
    {OptionBits::Lead(6), "Lead 6 key", Text::kLead6},
    {OptionBits::Lead(7), "Lead 7 key", Text::kLead7},
    {OptionBits::Lead(8), "Lead 8 key", Text::kLead8},
    {OptionBits::Lead(9), "Lead 9 key", Text::kLead9},
    {OptionBits::Lead(10), "Lead 10 key", Text::kLead10},
    {OptionBits::kAllLeads, "All leads key", Text::kAllLeads},
};
constexpr std::size_t kButtons = 2;
constexpr std::size_t kButtonsAndLeads = 12;

struct LeadLine {
  std::int32_t lBit;
  const char* sText;
};

constexpr LeadLine kLeadLines[] = {
    {OptionBits::Lead(1), Text::kLead1Tested},      {OptionBits::Lead(2), Text::kLead2Tested},
    {OptionBits::Lead(3), Text::kLead3Tested},      {OptionBits::Lead(4), Text::kLead4Tested},
    {OptionBits::Lead(5), Text::kLead5Tested},      {OptionBits::Lead(6), Text::kLead6Tested},
    {OptionBits::Lead(7), Text::kLead7Tested},      {OptionBits::Lead(8), Text::kLead8Tested},
    {OptionBits::Lead(9), Text::kLead9Tested},      {OptionBits::Lead(10), Text::kLead10Tested},
    {OptionBits::kAllLeads, Text::kAllLeadsTested},
};

constexpr const char* kFilterCaptions[] = {Text::kNoValues, Text::kAllValues, Text::kMaximumValue,
                                           Text::kMinimumValue};
constexpr std::string_view kFilterNames[] = {"No values", "All values", "Maximum value", "Minimum value"};

}  // namespace

std::span<const Option> OptionsFor(std::int16_t iTestID) {
  const std::span<const Option> All(kOptions);
  if (iTestID >= 1110 && iTestID < 1166)
    return All.first(kButtonsAndLeads);  // without "All Leads", on purpose
  if (iTestID >= 910 && iTestID < 966) return All;
  return All.first(kButtons);
}

std::int32_t BitOf(std::string_view sKey) {
  const auto* Found = std::find_if(std::begin(kOptions), std::end(kOptions),
                                   [&](const Option& option) { return option.sKey == sKey; });
  return Found == std::end(kOptions) ? 0 : Found->lBit;
}

bool IsLead(std::string_view sKey) { return (BitOf(sKey) & OptionBits::kAnyLead) != 0; }

std::span<const char* const> ValueFilterCaptions() { return kFilterCaptions; }

std::string ValueFilterName(std::int32_t lCode) {
  if (lCode < 1 || lCode > static_cast<std::int32_t>(std::size(kFilterNames))) return {};
  return std::string(kFilterNames[lCode - 1]);
}

std::int32_t ValueFilterCode(std::string_view sName) {
  const auto* Found = std::find(std::begin(kFilterNames), std::end(kFilterNames), sName);
  return Found == std::end(kFilterNames) ? 0
                                         : static_cast<std::int32_t>(Found - std::begin(kFilterNames)) + 1;
}

const char* LeadText(std::int16_t iTestID, std::int32_t lOptions) {
  if (iTestID == 1210 || iTestID == 1230 || iTestID == 1240) return Text::kAllLeadsTested;
  if (iTestID == 1220) return Text::kSomeLeadsTested;
  for (const LeadLine& line : kLeadLines) {
    if ((lOptions & line.lBit) != 0) return line.sText;
  }
  return Text::kNoLeadsTested;
}

}  // namespace keld::configuration::ConfigurationTables

#include "plugin/ConfigurationTables.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "plugin/MKELDLanguageConstants.h"

namespace keld::ConfigurationTables {
namespace {

namespace Text = MKELDLanguageConstants;

// In the order of the tree: the buttons, the ten leads, all leads.
constexpr Option kOptions[] = {
    {kNAButton, "NA key", Text::kEnableNA},   {kSkipButton, "Skip key", Text::kEnableSkip},
    {4, "Lead 1 key", Text::kLead1},          {8, "Lead 2 key", Text::kLead2},
    {16, "Lead 3 key", Text::kLead3},         {32, "Lead 4 key", Text::kLead4},
    {64, "Lead 5 key", Text::kLead5},         {128, "Lead 6 key", Text::kLead6},
    {256, "Lead 7 key", Text::kLead7},        {512, "Lead 8 key", Text::kLead8},
    {1024, "Lead 9 key", Text::kLead9},       {2048, "Lead 10 key", Text::kLead10},
    {4096, "All leads key", Text::kAllLeads},
};
constexpr std::size_t kButtons = 2;
constexpr std::size_t kButtonsAndLeads = 12;

struct LeadLine {
  std::int32_t lBit;
  const char* sText;
};

constexpr LeadLine kLeadLines[] = {
    {4, Text::kLead1Tested},     {8, Text::kLead2Tested},       {16, Text::kLead3Tested},
    {32, Text::kLead4Tested},    {64, Text::kLead5Tested},      {128, Text::kLead6Tested},
    {256, Text::kLead7Tested},   {512, Text::kLead8Tested},     {1024, Text::kLead9Tested},
    {2048, Text::kLead10Tested}, {4096, Text::kAllLeadsTested},
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

bool IsLead(std::string_view sKey) { return BitOf(sKey) > kSkipButton; }

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

}  // namespace keld::ConfigurationTables

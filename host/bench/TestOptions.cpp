#include "host/bench/TestOptions.h"

#include <vector>

#include "OrvikTypeLib/Codes.h"
#include "host/base/Text.h"
#include "host/base/TextColumns.h"
#include "host/base/Tr.h"
#include "host/bench/InputError.h"
#include "host/plugins/keld/KeldTests.h"

namespace host::bench::options {

using orvik::OptionBits;
using plugins::keld::kLeads;
using plugins::keld::MeasuresAllLeads;
using plugins::keld::MeasuresByLead;

std::string LeadsInWords(std::int32_t options) {
  std::vector<std::string> set;
  for (std::int32_t lead = 1; lead <= plugins::keld::kLeads; ++lead)
    if (options & OptionBits::Lead(lead)) set.push_back(std::to_string(lead));
  if (options & OptionBits::kAllLeads) set.push_back(Tr("all"));
  if (set.empty()) return Tr("none");
  if (set.size() == 1) return set.front();
  const std::vector<std::string> others(set.begin() + 1, set.end());
  return Tr("%%1 (set too, but not measured: %%2)", {set.front(), Joined(others, ", ")});
}

bool SaysLeads(std::int32_t options, std::int32_t testId) {
  return plugins::keld::MeasuresByLead(testId) || (options & OptionBits::kAnyLead) != 0;
}

std::string ButtonsInWords(std::int32_t options) {
  std::vector<std::string> buttons;
  if (options & OptionBits::kOffersNotApplicable) buttons.push_back(Tr("not applicable"));
  if (options & OptionBits::kOffersSkip) buttons.push_back(Tr("skip"));
  return buttons.empty() ? Tr("none") : Joined(buttons, ", ");
}

std::string InWords(std::int32_t options, std::int32_t testId) {
  const auto buttons = Tr("buttons: %%1", {ButtonsInWords(options)});
  return SaysLeads(options, testId) ? Tr("leads: %%1", {LeadsInWords(options)}) + "; " + buttons : buttons;
}

std::int32_t WithLeads(std::int32_t options, std::int32_t testId, const std::string& leads) {
  const auto word = LowerAscii(leads);
  const auto others = options & ~OptionBits::kAnyLead;
  if (word == "none") return others;
  const auto test = std::to_string(testId);
  if (!plugins::keld::MeasuresByLead(testId))
    throw InputError(Tr("--leads %%1: test %%2 has no leads to choose", {leads, test}));
  if (word == "all") {
    if (plugins::keld::MeasuresAllLeads(testId)) return others | OptionBits::kAllLeads;
    throw InputError(
        Tr("--leads %%1: test %%2 measures one lead at a time; give a number from 1 to 10", {leads, test}));
  }
  const auto lead = WholeNumber(word);
  if (!lead || *lead < 1 || *lead > plugins::keld::kLeads)
    throw InputError(
        Tr("--leads %%1: give all, none or one lead from 1 to 10; to measure several leads one "
           "by one, add the test once for each",
           {leads}));
  return others | OptionBits::Lead(*lead);
}

}  // namespace host::bench::options

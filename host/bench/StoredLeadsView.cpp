#include "host/bench/StoredLeadsView.h"

#include "host/base/Tr.h"
#include "host/base/VisibleText.h"
#include "host/plugins/keld/KeldTests.h"

namespace host::bench {

std::string LeadsRemark(const run::LeadCalibration& leads) {
  if (leads.Plausible()) return {};
  if (!leads.milliohms)
    return Tr("the stored value is not a number and counts as 0; measure the leads of this tester again");
  if (*leads.milliohms < 0)
    return Tr("below 0: protective-earth readings become too high; measure the leads of this tester again");
  return Tr(
      "above %%1 mOhm: more than test leads have, so protective-earth readings become too low; measure the "
      "leads of this tester again",
      {std::to_string(plugins::keld::kMostLeadMilliohms)});
}

std::string TextOf(const run::LeadCalibration& stored) {
  return Tr("The test leads of tester %%1 have %%2 mOhm, %%3.",
            {host::VisibleText(stored.serial), std::to_string(stored.milliohms.value_or(0)),
             run::MeasuredText(stored.measured)});
}

}  // namespace host::bench

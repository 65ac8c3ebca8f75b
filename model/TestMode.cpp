#include "model/TestMode.h"

#include "OrvikTypeLib/Codes.h"

namespace keld::model {

std::int16_t ComputeTestMode(std::int32_t lOptions, std::int32_t lTestID) {
  // The first lead wins, even when several are set.
  for (std::int16_t iLead = 1; iLead <= 10; ++iLead) {
    if (lOptions & orvik::OptionBits::Lead(iLead)) return iLead;
  }
  if (lOptions & orvik::OptionBits::kAllLeads) return 99;
  if (lTestID == 1220) return 9999;
  if (lTestID == 1210 || lTestID == 1230 || lTestID == 1240) return 99;
  return 999;
}

}  // namespace keld::model

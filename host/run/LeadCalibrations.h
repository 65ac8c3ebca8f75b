#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "host/base/RegistryStore.h"
#include "host/plugins/keld/KeldTests.h"

/// The resistances of test leads that the registry holds, one for each tester, and when each was measured.
///
/// The plug-in stores the value alone. The host notes value and date beside it, so that a value that somebody
/// else has written since has no date. Errors of the registry file are `HostError` 75.
namespace host::run {

/// One stored value.
struct LeadCalibration {
  std::string serial;  ///< of the tester
  /// None when the registry holds something else than a number; readings are then corrected by 0.
  std::optional<std::int32_t> milliohms;
  /// When it was measured, such as "2026-11-21T14:03:22+01:00"; none when that is not known.
  std::optional<std::string> measured;

  /// Whether test leads can have it: a number from 0 to `keld_facts::kMostLeadMilliohms`.
  bool Plausible() const {
    return milliohms && *milliohms >= 0 && *milliohms <= plugins::keld::kMostLeadMilliohms;
  }
};

/// All stored values, by serial number.
std::vector<LeadCalibration> StoredLeads(const RegistryStore& registry);

/// The value stored for the tester; none when there is none.
std::optional<LeadCalibration> StoredLeadsOf(const RegistryStore& registry, const std::string& serial);

/// When the tester's leads were measured with this result, as in `LeadCalibration::measured`; none when that
/// is not known, as for a value that another program stored.
/// @param milliohms the value in question, which need not be the stored one any more
std::optional<std::string> LeadsMeasured(const RegistryStore& registry, const std::string& serial,
                                         std::int32_t milliohms);

/// The date for people: "measured 2026-11-21 14:03", or "date not known".
std::string MeasuredText(const std::optional<std::string>& measured);

/// Stores a value, and then its date.
/// @param when as `WallClock` returns it
void StoreLeads(RegistryStore& registry, const std::string& serial, std::int32_t milliohms,
                const std::string& when);

}  // namespace host::run

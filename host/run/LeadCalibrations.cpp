#include "host/run/LeadCalibrations.h"

#include <limits>

#include "OrvikTypeLib/Conversions.h"
#include "OrvikTypeLib/HostError.h"
#include "host/base/Text.h"
#include "host/base/Tr.h"
#include "host/base/WallClock.h"
#include "host/plugins/keld/KeldNames.h"

namespace host::run {

namespace {

/// The host's own key: "35 2026-11-21T14:03:22+01:00" under the serial number.
constexpr char kDatesKey[] = "Software\\Telvane\\orvik\\orvik-bench\\Leads";

/// As the plug-in reads it: a text counts when the whole of it is a number.
std::optional<std::int32_t> Milliohms(const orvik::Variant& value) {
  if (const auto* number = std::get_if<std::int32_t>(&value)) return *number;
  const auto* text = std::get_if<std::string>(&value);
  const auto number = text ? FiniteNumber(*text) : std::nullopt;
  using Limits = std::numeric_limits<std::int32_t>;
  if (!number || *number < Limits::min() || *number > Limits::max()) return {};
  return orvik::RoundToInteger(*number);
}

/// The value; empty when it is missing or of another kind than this host stores.
orvik::Variant ReadOrEmpty(const RegistryStore& registry, const char* key, const std::string& name) {
  try {
    return registry.Read(plugins::keld::kRegistryHive, key, name);
  } catch (const orvik::HostError& error) {
    if (error.Number() != orvik::HostError::kTypeMismatch) throw;
    return {};
  }
}

LeadCalibration Read(const RegistryStore& registry, const std::string& serial) {
  LeadCalibration stored{serial, Milliohms(ReadOrEmpty(registry, plugins::keld::kLeadsKey, serial)), {}};
  if (stored.milliohms) stored.measured = LeadsMeasured(registry, serial, *stored.milliohms);
  return stored;
}

}  // namespace

std::vector<LeadCalibration> StoredLeads(const RegistryStore& registry) {
  std::vector<LeadCalibration> all;
  for (const auto& serial : registry.Names(plugins::keld::kRegistryHive, plugins::keld::kLeadsKey))
    all.push_back(Read(registry, serial));
  return all;
}

std::optional<LeadCalibration> StoredLeadsOf(const RegistryStore& registry, const std::string& serial) {
  for (const auto& known : registry.Names(plugins::keld::kRegistryHive, plugins::keld::kLeadsKey))
    if (known == serial) return Read(registry, serial);
  return {};
}

std::optional<std::string> LeadsMeasured(const RegistryStore& registry, const std::string& serial,
                                         std::int32_t milliohms) {
  const auto value = ReadOrEmpty(registry, kDatesKey, serial);
  const auto* note = std::get_if<std::string>(&value);
  const auto blank = note ? note->find(' ') : std::string::npos;
  if (blank == std::string::npos || WholeNumber(note->substr(0, blank)) != milliohms) return {};
  auto date = note->substr(blank + 1);
  if (!MomentOf(date)) return {};
  return date;
}

std::string MeasuredText(const std::optional<std::string>& measured) {
  const auto moment = measured ? MomentOf(*measured) : std::nullopt;
  return moment ? Tr("measured %%1", {moment->day + " " + moment->minute}) : Tr("date not known");
}

void StoreLeads(RegistryStore& registry, const std::string& serial, std::int32_t milliohms,
                const std::string& when) {
  registry.Write(plugins::keld::kRegistryHive, plugins::keld::kLeadsKey, serial, milliohms);
  registry.Write(plugins::keld::kRegistryHive, kDatesKey, serial, std::to_string(milliohms) + " " + when);
}

}  // namespace host::run

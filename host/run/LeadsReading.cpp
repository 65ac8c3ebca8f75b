#include "host/run/LeadsReading.h"

#include "OrvikTypeLib/Conversions.h"
#include "host/base/Text.h"
#include "host/base/Tr.h"
#include "host/plugins/keld/KeldProtocol.h"
#include "host/plugins/keld/KeldTests.h"
#include "host/run/LeadCalibrations.h"
#include "host/serial/Latin1.h"
#include "host/serial/Message.h"

namespace host::run {

namespace {

constexpr double kMilliohmsOfOhm = 1000;

/// The dialog stores what it shows, with at most 15 digits: 123.49999999999999 is shown as 123.5.
double AsShown(double milliohms) { return FiniteNumber(orvik::NumberText(milliohms)).value_or(milliohms); }

LeadsReading Unusable(std::string fault) { return {0, std::move(fault)}; }

}  // namespace

LeadsReading ReadLeads(const serial::Message& reply) {
  const auto& fields = reply.Parameters();
  const auto said = serial::VisibleLatin1(reply.Line());
  if (fields.size() != plugins::keld::kReadingFields)
    return Unusable(Tr("the reading \"%%1\" is incomplete", {said}));
  const auto& unit = fields[plugins::keld::kUnitField];
  if (unit != "Ohm" && unit != "mOhm")
    return Unusable(
        Tr("the reading \"%%1\" is not in Ohm or mOhm; check that the tester measures the test "
           "leads",
           {said}));
  const auto number = FiniteNumber(fields[plugins::keld::kValueField]);
  if (!number) return Unusable(Tr("the reading \"%%1\" is not a number", {said}));
  if (orvik::Trim(fields[plugins::keld::kOverloadField]) != "0")
    return Unusable(
        Tr("overload (OL) in \"%%1\"; put the clip firmly at the ground of the tester's power "
           "socket",
           {said}));
  const double milliohms = unit == "Ohm" ? AsShown(*number * kMilliohmsOfOhm) : *number;
  if (milliohms < 0) return Unusable(Tr("the reading \"%%1\" is negative; measure again", {said}));
  if (milliohms > plugins::keld::kMostLeadMilliohms)
    return Unusable(
        Tr("%%1 mOhm is more than test leads have (at most %%2 mOhm); put the clip firmly at the "
           "ground of the tester's power socket",
           {orvik::NumberText(milliohms), std::to_string(plugins::keld::kMostLeadMilliohms)}));
  return {milliohms, {}};
}

}  // namespace host::run

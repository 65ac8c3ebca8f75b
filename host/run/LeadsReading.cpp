#include "host/run/LeadsReading.h"

#include "OrvikTypeLib/Conversions.h"
#include "host/serial/Latin1.h"
#include "host/serial/Message.h"
#include "host/services/LeadCalibrations.h"
#include "host/services/Text.h"
#include "host/services/Tr.h"

namespace bench {

namespace {

constexpr std::size_t kLeadsFields = 5;  // test, setting, value, overload, unit
constexpr double kMilliohmsOfOhm = 1000;

/// The dialog stores what it shows, with at most 15 digits: 123.49999999999999 is shown as 123.5.
double AsShown(double milliohms) { return FiniteNumber(orvik::NumberText(milliohms)).value_or(milliohms); }

LeadsReading Unusable(std::string fault) { return {0, std::move(fault)}; }

}  // namespace

LeadsReading ReadLeads(const Message& reply) {
  const auto& fields = reply.Parameters();
  const auto said = VisibleLatin1(reply.Line());
  if (fields.size() != kLeadsFields) return Unusable(Tr("the reading \"%%1\" is incomplete", {said}));
  const auto& unit = fields[4];
  if (unit != "Ohm" && unit != "mOhm")
    return Unusable(
        Tr("the reading \"%%1\" is not in Ohm or mOhm; check that the tester measures the test "
           "leads",
           {said}));
  const auto number = FiniteNumber(fields[2]);
  if (!number) return Unusable(Tr("the reading \"%%1\" is not a number", {said}));
  if (orvik::Trim(fields[3]) != "0")
    return Unusable(
        Tr("overload (OL) in \"%%1\"; put the clip firmly at the ground of the tester's power "
           "socket",
           {said}));
  const double milliohms = unit == "Ohm" ? AsShown(*number * kMilliohmsOfOhm) : *number;
  if (milliohms < 0) return Unusable(Tr("the reading \"%%1\" is negative; measure again", {said}));
  if (milliohms > kMostLeadMilliohms)
    return Unusable(
        Tr("%%1 mOhm is more than test leads have (at most %%2 mOhm); put the clip firmly at the "
           "ground of the tester's power socket",
           {orvik::NumberText(milliohms), std::to_string(kMostLeadMilliohms)}));
  return {milliohms, {}};
}

}  // namespace bench

#include "host/judge/Reading.h"

#include <algorithm>
#include <cmath>
#include <memory>

#include "host/base/Text.h"
#include "host/plugins/keld/KeldProtocol.h"
#include "host/plugins/keld/KeldTests.h"
#include "host/serial/Latin1.h"
#include "host/serial/Message.h"
#include "host/standards/Units.h"

namespace host::judge {
namespace {

constexpr char kOhm[] = "Ohm", kMilliohm[] = "mOhm";
/// Two readings of the same leads, in mOhm, may differ by this much, due to clips and sockets (practice).
constexpr double kSpreadOfLeads = 20;

/// The reply with the result; null without one, or with several different ones.
std::shared_ptr<serial::Message> ResultIn(const document::RecordedTest& test,
                                          std::vector<document::Reason>& doubts) {
  std::shared_ptr<serial::Message> result;
  for (const auto& line : test.said) {
    auto message = serial::ParseMessage(serial::Latin1FromUtf8(line).value_or(std::string()));
    if (!message || message->MnemonicText() != plugins::keld::kReading) continue;
    if (result && result->Line() != message->Line()) {
      doubts.push_back({"several-readings", {result->Line(), message->Line()}});
      return nullptr;
    }
    result = std::move(message);
  }
  if (!result) doubts.push_back({"no-reading", {}});
  return result;
}

/// Subtracts the resistance of the test leads; the result is never negative.
void CorrectByLeads(Reading& reading, const document::RecordedTester* tester) {
  const auto milliohms = standards::InUnit(*reading.value, reading.unit, kMilliohm);
  if (!tester || !milliohms) return;
  const auto leads = tester->leads;
  if (leads > plugins::keld::kMostLeadMilliohms || leads < 0)
    reading.doubts.push_back({"leads-implausible", {std::to_string(leads)}});
  if (leads - *milliohms > kSpreadOfLeads && *milliohms >= 0)
    reading.doubts.push_back(
        {"below-leads", {std::to_string(std::lround(*milliohms)), std::to_string(leads)}});
  reading.value = standards::InUnit(std::max(*milliohms - leads, 0.0), kMilliohm, reading.unit);
}

}  // namespace

Reading ReadingOf(const CaseElement& element, const document::RecordedTest& test,
                  const document::RecordedTester* tester) {
  Reading reading;
  const auto said = ResultIn(test, reading.doubts);
  if (!said) return reading;
  const auto& fields = said->Parameters();
  reading.value = fields.size() >= plugins::keld::kReadingFields
                      ? FiniteNumber(fields[plugins::keld::kValueField])
                      : std::nullopt;
  if (!reading.value) {
    reading.doubts.push_back({"no-reading", {}});
    return reading;
  }
  if (*reading.value < 0)
    reading.doubts.push_back({"negative-reading", {fields[plugins::keld::kValueField]}});
  reading.unit = fields[plugins::keld::kUnitField];
  if (!element.expectedUnit.empty() && !standards::SameQuantity(reading.unit, element.expectedUnit)) {
    reading.doubts.push_back({"unit-of-test", {reading.unit, element.expectedUnit}});
    return reading;
  }
  // Ohms are recorded in the unit of the test, other units as the tester sent them.
  if (reading.unit == kOhm && !element.expectedUnit.empty()) {
    reading.value = standards::InUnit(*reading.value, kOhm, element.expectedUnit);
    reading.unit = element.expectedUnit;
  }
  if (plugins::keld::CorrectedByLeads(element.testId)) CorrectByLeads(reading, tester);
  return reading;
}

bool SameNumber(double one, double other) {
  constexpr double kLost = 1e-12;
  return std::abs(one - other) <= kLost * std::max(std::abs(one), std::abs(other));
}

std::string NumberText(double number, const std::string& unit) {
  const auto text = orvik::NumberText(number);
  return unit.empty() ? text : text + " " + unit;
}

}  // namespace host::judge

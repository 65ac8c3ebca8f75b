#pragma once

#include <optional>
#include <string>
#include <utility>

#include "host/archive/ArchivedDocument.h"

namespace archive_tests {

/// "IEC 62353, class I": at most 300 mOhm, which the value may exceed.
inline host::judge::JudgedLimit AtMost300(double value) {
  host::judge::JudgedLimit limit;
  limit.standard = "IEC 62353";
  limit.description = "class I";
  limit.unit = "mOhm";
  limit.high = 300.0;
  limit.verdict = value <= 300 ? host::judge::LimitVerdict::kWithin : host::judge::LimitVerdict::kExceeded;
  limit.value = value;
  return limit;
}

/// A document with one element of test 410 that run 1 measured, judged by "IEC 62353" (at most 300 mOhm).
/// @param runDate empty for a record without a date
inline host::archive::ArchivedDocument Measured(const std::string& path, const std::string& asset,
                                                double value,
                                                const std::string& runDate = "2026-03-01T09:30:00Z") {
  using host::judge::Verdict;
  const bool passed = value <= 300;
  host::archive::ArchivedElement element;
  auto& result = element.result;
  result.id = 1;
  result.testId = 410;
  result.name = "Protective earth";
  result.verdict = passed ? Verdict::kPassed : Verdict::kFailed;
  if (!passed) result.reasons = {{"above-limit", {"IEC 62353, class I", "over", "300 mOhm"}}};
  result.judged = true;
  result.value = value;
  result.unit = "mOhm";
  result.limits = {AtMost300(value)};
  result.run = 1;
  result.at = runDate;
  result.by = "A. Berg";
  result.status = passed ? 1 : 2;
  result.instrument = 1;
  result.serviceCode = passed ? "P" : "F";
  result.measurement = host::judge::Measurement{value, "mOhm", "", result.status};
  element.runDate = runDate;

  host::archive::ArchivedDocument document;
  auto& entry = document.entry;
  entry.bench = "bench-3";
  entry.path = path;
  entry.asset = asset;
  entry.serial = "S-1";
  entry.maker = "Maker";
  entry.model = "Model";
  entry.run = 1;
  entry.runDate = runDate;
  entry.operatorName = "A. Berg";
  entry.added = "2026-11-21T12:00:00Z";
  entry.outcome = host::judge::OutcomeOf({result});
  document.instrument =
      host::document::RecordedTester{"KELD(IN)", "12345", "2.1", 35, "2026-02-01T10:00:00Z"};
  document.elements = {std::move(element)};
  document.contents =
      "<OrvikDocument " + path + " " + asset + " " + std::to_string(value) + " " + runDate + "/>";
  return document;
}

/// The same, run on a simulated tester.
inline host::archive::ArchivedDocument Simulated(host::archive::ArchivedDocument document) {
  document.entry.simulated = true;
  document.contents += " simulated";
  return document;
}

}  // namespace archive_tests

#pragma once

#include <optional>
#include <string>

#include "host/archive/ArchivedDocument.h"

namespace archive_tests {

/// A document with one element of test 410 that measured the value, judged by "IEC 62353" (at most 300 mOhm).
inline bench::ArchivedDocument Measured(const std::string& path, const std::string& asset, double value,
                                        const std::string& runDate = "2026-03-01T09:30:00Z") {
  bench::ArchivedDocument document;
  auto& entry = document.entry;
  entry.bench = "bench-3";
  entry.path = path;
  entry.asset = asset;
  entry.serial = "S-1";
  entry.maker = "Maker";
  entry.model = "Model";
  entry.outcome = value <= 300 ? "passed" : "failed";
  entry.runDate = runDate;
  entry.operatorName = "A. Berg";
  entry.added = "2026-11-21T12:00:00Z";
  document.instrument = bench::ArchivedInstrument{"KELD(IN)", "12345", "2.1", 35};
  bench::ArchivedElement element;
  element.summary.id = 1;
  element.summary.testId = 410;
  element.summary.name = "Protective earth";
  element.summary.status = value <= 300 ? 1 : 2;
  element.summary.mtiId = 1;
  element.summary.serviceCode = value <= 300 ? "P" : "F";
  element.summary.measurement = bench::MeasurementSummary{value, "mOhm", "", element.summary.status};
  if (value > 300) element.summary.failedStandards = {"IEC 62353"};
  element.runDate = runDate;
  element.operatorName = "A. Berg";
  element.limits = {{"IEC 62353", "class I", "mOhm", {}, 300.0}};
  document.elements = {element};
  document.contents =
      "<OrvikDocument " + path + " " + asset + " " + std::to_string(value) + " " + runDate + "/>";
  return document;
}

}  // namespace archive_tests

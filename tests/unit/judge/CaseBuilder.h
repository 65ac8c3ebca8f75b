#pragma once

#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "host/judge/Judge.h"

namespace judge_tests {

namespace judge = host::judge;

/// A document with runs, put together as plain data: one earth test (element 1, 410, mOhm) unless told
/// otherwise. What is changed afterwards is what a person or another program would change.
struct CaseBuilder {
  host::judge::Case document;
  std::vector<host::document::RunRecord> runs;

  CaseBuilder() { document.equipment = {"PUMP-7", "2209", "Maker", "Model"}; }

  host::judge::CaseElement& Add(std::int32_t id, std::int32_t testId, const std::string& unit,
                                std::int32_t parent = 0) {
    host::judge::CaseElement element;
    element.id = id;
    element.testId = testId;
    element.name = "test " + std::to_string(testId);
    element.expectedUnit = unit;
    element.parent = parent;
    element.group = testId % 100 == 0;
    document.elements.push_back(element);
    return document.elements.back();
  }

  host::judge::CaseElement& Element(std::int32_t id) {
    for (auto& element : document.elements)
      if (element.id == id) return element;
    throw std::out_of_range("no such element");
  }

  static host::judge::CaseStandard Limit(const std::string& unit, std::optional<double> low,
                                         std::optional<double> high, const std::string& name = "IEC 62353") {
    host::judge::CaseLimit limit{"NO LIMIT KEY", unit, low, high, {}, {}};
    if (low) limit.lowText = std::to_string(*low);
    if (high) limit.highText = std::to_string(*high);
    return {name, "class I", {limit}};
  }

  /// A run begins that takes up these elements.
  host::document::RunRecord& Begin(std::vector<std::int32_t> elements) {
    host::document::RunRecord run;
    run.number = static_cast<std::int32_t>(runs.size()) + 1;
    run.by = "M. Holm";
    run.equipment = document.equipment;
    run.testers.push_back({"KELD(IN)", "4711", "3.10", 0, {}});
    run.steps.emplace_back(host::document::RecordedTakes{std::move(elements)});
    run.end = host::document::RunRecord::End::kFinished;
    runs.push_back(std::move(run));
    return runs.back();
  }

  /// The present run finishes a test with this reply ("1.85,0,Ohm") and this measurement; saved in the
  /// element.
  host::document::RecordedTest& Measure(std::int32_t id, const std::string& reply, double value,
                                        const std::string& unit, std::int32_t status) {
    auto& element = Element(id);
    host::document::RecordedTest test;
    test.element = id;
    test.testId = element.testId;
    test.settings = element.settings;
    test.at = "2026-11-21T14:03:22+01:00";
    test.status = status;
    test.tester = 1;
    test.said = {"gres," + std::to_string(element.testId) + ",0," + reply};
    test.recorded = host::document::RecordedReading{TextOf(value), unit, {}};
    element.result = host::judge::SavedResult{};
    element.result->status = status;
    element.result->serviceCode = status == 2 ? "F" : "P";
    element.result->measured = true;
    element.result->value = value;
    element.result->unit = unit;
    element.result->measurementStatus = status;
    runs.back().steps.emplace_back(test);
    return std::get<host::document::RecordedTest>(runs.back().steps.back());
  }

  /// The present run finishes an element without a measurement.
  host::document::RecordedTest& Finish(std::int32_t id, std::int32_t status,
                                       host::document::RecordedTest::By by) {
    auto& element = Element(id);
    host::document::RecordedTest test;
    test.element = id;
    test.testId = element.testId;
    test.settings = element.settings;
    test.status = status;
    test.by = by;
    element.result = host::judge::SavedResult{};
    element.result->status = status;
    element.result->serviceCode = status == 1 ? "P" : status == 2 ? "F" : status == 3 ? "NA" : "";
    runs.back().steps.emplace_back(test);
    return std::get<host::document::RecordedTest>(runs.back().steps.back());
  }

  /// The present run finishes a group with this summary.
  host::document::RecordedTest& Sum(std::int32_t id, std::optional<double> value, std::int32_t status) {
    auto& test = Finish(id, status, host::document::RecordedTest::By::kTester);
    test.recorded = host::document::RecordedReading{value ? TextOf(*value) : "", "", ""};
    auto& saved = *Element(id).result;
    saved.measured = true;
    saved.value = value;
    saved.measurementStatus = status;
    return test;
  }

  host::judge::JudgedDocument Judged() {
    document.runs = &runs;
    return host::judge::Judge(document);
  }
  host::judge::JudgedElement Judged(std::int32_t id) { return *Judged().Find(id); }
  host::judge::Verdict Verdict(std::int32_t id = 1) { return Judged(id).verdict; }
  /// Codes of the element's reasons.
  std::vector<std::string> Codes(std::int32_t id = 1) {
    std::vector<std::string> codes;
    for (const auto& reason : Judged(id).reasons) codes.push_back(reason.code);
    return codes;
  }

 private:
  static std::string TextOf(double value) {
    std::string text = std::to_string(value);
    return text;
  }
};

/// One earth test, measured at 123 mOhm against at most 300 mOhm: passed.
inline CaseBuilder PassedEarth() {
  CaseBuilder builder;
  builder.Add(1, 410, "mOhm").standards = {CaseBuilder::Limit("mOhm", {}, 300)};
  builder.Begin({1});
  builder.Measure(1, "0.123,0,Ohm", 123, "mOhm", 1);
  return builder;
}

}  // namespace judge_tests

#include "host/run/RunRecorder.h"

#include <algorithm>
#include <utility>

#include "OrvikTypeLib/Codes.h"
#include "OrvikTypeLib/IInstrumentRecord.h"
#include "OrvikTypeLib/ILimit.h"
#include "OrvikTypeLib/ILimitData.h"
#include "OrvikTypeLib/IResultData.h"
#include "OrvikTypeLib/IStandard.h"
#include "host/base/Text.h"
#include "host/document/ElementWalk.h"
#include "host/document/SavedSettings.h"

namespace host::run {

namespace {

std::int32_t StatusOf(const orvik::ITestElement& element) {
  const auto result = element.Result();
  return result ? result->Status() : orvik::ResultStatus::kNotTested;
}

void AddOnce(std::vector<document::Reason>& doubts, const document::Reason& doubt) {
  if (std::find(doubts.begin(), doubts.end(), doubt) == doubts.end()) doubts.push_back(doubt);
}

document::RecordedReading ReadingOf(const orvik::IMeasurement& measurement) {
  document::RecordedReading reading{{}, measurement.Unit(), measurement.Flags()};
  const auto value = measurement.value();
  if (const auto* number = std::get_if<double>(&value)) reading.value = ExactNumberText(*number);
  if (const auto* whole = std::get_if<std::int32_t>(&value)) reading.value = std::to_string(*whole);
  return reading;
}

/// The element and all below it, children before the group that they are in.
std::vector<RunRecorder::Element> ChildrenFirst(const RunRecorder::Element& top) {
  std::vector<RunRecorder::Element> elements;
  document::WalkElements(top, [&](const RunRecorder::Element& element) { elements.push_back(element); });
  std::reverse(elements.begin(), elements.end());
  return elements;
}

document::RecordedTakes TakesOf(const std::vector<RunRecorder::Element>& elements) {
  document::RecordedTakes takes;
  for (const auto& top : elements)
    document::WalkElements(
        top, [&](const RunRecorder::Element& element) { takes.elements.push_back(element->ID()); });
  return takes;
}

}  // namespace

void RunRecorder::Begin(const Heading& heading, const std::vector<Element>& elements) {
  document::RunRecord run;
  run.begun = parts_.clock();
  run.by = heading.by;
  run.simulated = heading.simulated;
  run.timeScale = heading.timeScale;
  run.port = heading.port;
  run.program = heading.program;
  run.equipment = heading.equipment;
  run.steps.emplace_back(TakesOf(elements));
  parts_.runs.Open(std::move(run));
}

bool RunRecorder::Starts(const Element& element) {
  auto* run = parts_.runs.Current();
  if (!run) return false;
  const auto taken = TakesOf({element});
  const auto known = run->Elements();
  const bool again = std::any_of(taken.elements.begin(), taken.elements.end(), [&](std::int32_t id) {
    return LastTest(id) || std::find(known.begin(), known.end(), id) == known.end();
  });
  if (again) run->steps.emplace_back(taken);
  return again;
}

void RunRecorder::Finished(const Element& element, document::RecordedTest::By by) {
  if (!parts_.runs.Current()) return;
  if (by == document::RecordedTest::By::kTester) return Append(*element, by);
  for (const auto& below : ChildrenFirst(element)) Append(*below, by);
}

void RunRecorder::Settle(const Element& element, bool aborted) {
  if (!parts_.runs.Current()) return;
  for (const auto& below : ChildrenFirst(element)) SettleOne(*below, aborted);
}

void RunRecorder::SettleOne(const orvik::ITestElement& element, bool aborted) {
  auto* test = LastTest(element.ID());
  const auto status = StatusOf(element);
  // The plug-in sends no finished notice after an abort.
  if (aborted && status == orvik::ResultStatus::kAborted && (!test || test->status != status))
    return Append(element, document::RecordedTest::By::kOperator);
  if (!test) return;
  for (const auto& doubt : parts_.doubts.Of(element.ID())) AddOnce(test->doubts, doubt);
  if (test->status != status)
    AddOnce(test->doubts, {"changed-after-finish", {std::to_string(test->status), std::to_string(status)}});
}

void RunRecorder::End(document::RunRecord::End end) {
  auto* run = parts_.runs.Current();
  if (!run) return;
  run->end = end;
  run->ended = parts_.clock();
  parts_.runs.Close();
}

document::RecordedTest* RunRecorder::LastTest(std::int32_t element) {
  auto* run = parts_.runs.Current();
  for (auto step = run->steps.rbegin(); step != run->steps.rend(); ++step) {
    if (auto* test = std::get_if<document::RecordedTest>(&*step)) {
      if (test->element == element) return test;
    } else {
      const auto& taken = std::get<document::RecordedTakes>(*step).elements;
      if (std::find(taken.begin(), taken.end(), element) != taken.end()) return nullptr;
    }
  }
  return nullptr;
}

void RunRecorder::Append(const orvik::ITestElement& element, document::RecordedTest::By by) {
  // Before the steps are accessed: it may add a tester to the run.
  auto test = TestOf(element, by);
  parts_.runs.Current()->steps.emplace_back(std::move(test));
}

document::RecordedTest RunRecorder::TestOf(const orvik::ITestElement& element,
                                           document::RecordedTest::By by) {
  document::RecordedTest test;
  test.element = element.ID();
  test.testId = element.TestID();
  test.settings = document::MeasuringSettings(element);
  test.at = parts_.clock();
  test.status = StatusOf(element);
  test.by = by;
  const auto result = element.Result();
  if (by == document::RecordedTest::By::kTester) {
    test.said = parts_.doubts.Said(test.element);
    test.doubts = parts_.doubts.Of(test.element);
    if (result) test.tester = TesterOf(result->MTIID());
  }
  const auto measurement = result && result->MeasurementCount() > 0 ? result->Measurement(1) : nullptr;
  if (!measurement) return test;
  test.recorded = ReadingOf(*measurement);
  test.judged = JudgedBy(element, *measurement);
  return test;
}

std::int32_t RunRecorder::TesterOf(std::int32_t instrument) {
  const auto& all = parts_.instruments;
  if (!all || instrument < 1 || instrument > all->Count()) return 0;
  const auto record = all->item(instrument);
  document::RecordedTester tester{record->MTIType(),
                                  record->SerialNumber(),
                                  record->FirmwareVersion(),
                                  WholeNumber(record->Property("calib")).value_or(0),
                                  {}};
  if (parts_.leadsMeasured) tester.leadsMeasured = parts_.leadsMeasured(tester.serial, tester.leads);
  auto& testers = parts_.runs.Current()->testers;
  const auto known = std::find(testers.begin(), testers.end(), tester);
  if (known != testers.end()) return static_cast<std::int32_t>(known - testers.begin()) + 1;
  testers.push_back(std::move(tester));
  return static_cast<std::int32_t>(testers.size());
}

std::vector<document::RecordedLimit> RunRecorder::JudgedBy(const orvik::ITestElement& element,
                                                           const orvik::IMeasurement& measurement) const {
  std::vector<document::RecordedLimit> judged;
  const auto value = measurement.value();
  const auto* number = std::get_if<double>(&value);
  const auto limits = element.Limits();
  const auto own = limits ? limits->Standards() : nullptr;
  for (std::int32_t i = 1; number && parts_.standards && own && i <= own->Count(); ++i) {
    const auto standard = own->item(i);
    if (!parts_.standards->Find(standard->Name(), standard->Description())) continue;
    const auto status = standard->Evaluate(static_cast<float>(*number), measurement.LimitKey(), {});
    for (std::int32_t k = 1; k <= standard->LimitCount(); ++k) {
      const auto limit = standard->Limit(k);
      if (limit->LowText().empty() && limit->HighText().empty()) continue;
      judged.push_back({standard->Name(), standard->Description(), limit->Unit(), limit->LowText(),
                        limit->HighText(), status});
    }
  }
  return judged;
}

}  // namespace host::run

#include "host/run/ElementSummary.h"

#include <algorithm>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/ILimitData.h"
#include "OrvikTypeLib/IMeasurement.h"
#include "OrvikTypeLib/IResultData.h"
#include "OrvikTypeLib/IServiceRecord.h"
#include "OrvikTypeLib/IStandard.h"
#include "OrvikTypeLib/ITestContainer.h"
#include "host/run/ElementDoubts.h"
#include "host/run/ElementText.h"
#include "host/run/ElementWalk.h"

namespace bench {

namespace {

enum Status : std::int32_t { kNotTested = 0, kPassed = 1, kFailed = 2, kNotApplicable = 3, kAborted = 4 };

MeasurementSummary SummaryOf(const orvik::IMeasurement& measurement) {
  MeasurementSummary summary{{}, measurement.Unit(), measurement.Flags(), measurement.Status()};
  const auto value = measurement.value();
  if (const auto* number = std::get_if<double>(&value)) summary.value = *number;
  if (const auto* whole = std::get_if<std::int32_t>(&value)) summary.value = *whole;
  return summary;
}

std::vector<std::string> FailedStandards(const orvik::ITestElement& element,
                                         const std::shared_ptr<orvik::IMeasurement>& measurement,
                                         const std::shared_ptr<orvik::IStandardColl>& standards) {
  std::vector<std::string> names;
  const auto limits = element.Limits();
  if (!limits || !measurement || measurement->Status() != kFailed) return names;
  const auto failed = limits->FindFailedStandards(measurement, standards);
  for (std::int32_t i = 1; failed && i <= failed->Count(); ++i) names.push_back(failed->item(i)->Name());
  return names;
}

ElementSummary SummaryOf(const std::shared_ptr<orvik::ITestElement>& element, const ElementFactory& factory,
                         const std::shared_ptr<orvik::IStandardColl>& standards) {
  ElementSummary summary;
  summary.id = element->ID();
  if (const auto parent = element->Parent()) summary.parent = parent->ID();
  summary.testId = element->TestID();
  summary.sequence = orvik::As<orvik::ITestContainer>(element) != nullptr;
  summary.name = ElementName(*element, factory);
  summary.doubts = DoubtsOf(element, factory);
  const auto result = element->Result();
  if (!result) return summary;
  summary.status = result->Status();
  summary.mtiId = result->MTIID();
  if (const auto record = result->ServiceRecord()) {
    summary.serviceCode = record->Code();
    summary.serviceValue = record->Value();
  }
  if (result->MeasurementCount() == 0) return summary;
  if (const auto measurement = result->Measurement(1)) {
    summary.measurement = SummaryOf(*measurement);
    summary.failedStandards = FailedStandards(*element, measurement, standards);
  }
  return summary;
}

}  // namespace

std::string OutcomeText(Outcome outcome) {
  switch (outcome) {
    case Outcome::kPassed:
      return "passed";
    case Outcome::kFailed:
      return "failed";
    case Outcome::kIncomplete:
      break;
  }
  return "incomplete";
}

std::string StatusText(std::int32_t status) {
  switch (status) {
    case kNotTested:
      return "not tested";
    case kPassed:
      return "passed";
    case kFailed:
      return "failed";
    case kNotApplicable:
      return "not applicable";
    case kAborted:
      return "aborted";
    default:
      return "unknown status " + std::to_string(status);
  }
}

std::string ElementSummary::Verdict() const {
  const bool counts = status == kPassed || status == kNotApplicable;
  return counts && !doubts.empty() ? "doubtful" : StatusText(status);
}

std::vector<ElementSummary> Summarise(const std::vector<std::shared_ptr<orvik::ITestElement>>& elements,
                                      const ElementFactory& factory,
                                      const std::shared_ptr<orvik::IStandardColl>& standards) {
  std::vector<ElementSummary> summaries;
  for (const auto& top : elements) {
    WalkElements(top, [&](const std::shared_ptr<orvik::ITestElement>& element) {
      summaries.push_back(SummaryOf(element, factory, standards));
    });
  }
  return summaries;
}

Outcome OutcomeOf(const std::vector<ElementSummary>& elements) {
  const auto failed = [](const ElementSummary& element) { return element.status == kFailed; };
  const auto done = [](const ElementSummary& element) {
    return (element.status == kPassed || element.status == kNotApplicable) && element.doubts.empty();
  };
  if (std::any_of(elements.begin(), elements.end(), failed)) return Outcome::kFailed;
  if (elements.empty() || !std::all_of(elements.begin(), elements.end(), done)) return Outcome::kIncomplete;
  return Outcome::kPassed;
}

}  // namespace bench

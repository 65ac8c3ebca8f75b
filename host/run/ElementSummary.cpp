#include "host/run/ElementSummary.h"

#include <algorithm>
#include <functional>
#include <utility>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/ILimit.h"
#include "OrvikTypeLib/ILimitData.h"
#include "OrvikTypeLib/IMeasurement.h"
#include "OrvikTypeLib/IResultData.h"
#include "OrvikTypeLib/IServiceRecord.h"
#include "OrvikTypeLib/IStandard.h"
#include "OrvikTypeLib/ITestContainer.h"
#include "host/elements/TestKinds.h"
#include "host/run/ElementDoubts.h"
#include "host/run/ElementText.h"
#include "host/run/ElementWalk.h"
#include "host/services/Tr.h"
#include "host/standards/ElementLimits.h"

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

/// Whether the test measures: one that a person decides has no unit.
bool RecordsReadings(const orvik::ITestElement& element) {
  const auto limits = element.Limits();
  return limits && !RecordedUnit(*limits).empty();
}

/// What speaks against a reading that a single test counts as passed.
std::string ReadingDoubt(const orvik::ITestElement& element,
                         const std::shared_ptr<orvik::IMeasurement>& measurement,
                         const std::shared_ptr<orvik::IStandardColl>& standards) {
  if (measurement->Status() == kFailed) return Tr("the result is \"passed\", its reading \"failed\"");
  auto unit = UnitDoubt(element);
  if (!unit.empty()) return unit;
  const auto limits = element.Limits();
  const auto failed = limits ? limits->FindFailedStandards(measurement, standards) : nullptr;
  if (!failed || failed->Count() == 0) return {};
  return Tr(
      "the reading breaks the limits of %%1, which were not in force when it was judged; run the test again",
      {failed->item(1)->Name()});
}

/// What speaks against a result by its own data, where nobody has noted a doubt: an overload, limits that
/// were set after the test and that the reading breaks, or a document that was written by something else than
/// a run. None of them may count as passed.
void DoubtOwnData(const orvik::ITestElement& element, const std::shared_ptr<orvik::IMeasurement>& measurement,
                  const std::shared_ptr<orvik::IStandardColl>& standards, ElementSummary& summary) {
  if (!summary.doubts.empty() || summary.status != kPassed) return;
  std::string doubt;
  if (measurement && summary.measurement->value && summary.measurement->flags.find('O') != std::string::npos)
    doubt = Tr("overload (OL): the reading is beyond the tester's range");
  // The value of a sequence is computed, and its limits are not its children's.
  else if (!summary.sequence && (!measurement || !summary.measurement->value))
    doubt = RecordsReadings(element) ? Tr("the result is \"passed\", and there is no reading") : "";
  else if (!summary.sequence)
    doubt = ReadingDoubt(element, measurement, standards);
  if (!doubt.empty()) summary.doubts.push_back(std::move(doubt));
}

/// What speaks against a result that would count: it belongs to no test of the catalogue, so that nobody
/// knows what it says.
void DoubtTest(const orvik::ITestElement& element, TestKinds& kinds, ElementSummary& summary) {
  if (!summary.CountsAsDone()) return;
  const auto& fault = kinds.Of(element.PlugInID(), element.TestID(), element.ClassID()).fault;
  if (!fault.empty()) summary.doubts.push_back(fault);
}

bool HasBounds(const orvik::IStandard& standard) {
  for (std::int32_t i = 1; i <= standard.LimitCount(); ++i) {
    const auto limit = standard.Limit(i);
    if (!limit->LowText().empty() || !limit->HighText().empty()) return true;
  }
  return false;
}

/// Whether one of the standards judges the element.
bool HasLimits(const orvik::ITestElement& element, const orvik::IStandardColl& standards) {
  const auto limits = element.Limits();
  const auto own = limits ? limits->Standards() : nullptr;
  for (std::int32_t i = 1; own && i <= own->Count(); ++i) {
    const auto standard = own->item(i);
    if (HasBounds(*standard) && standards.Find(standard->Name(), standard->Description())) return true;
  }
  return false;
}

ElementSummary SummaryOf(const std::shared_ptr<orvik::ITestElement>& element, const ElementFactory& factory,
                         const std::shared_ptr<orvik::IStandardColl>& standards, TestKinds& kinds) {
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
  const auto measurement = result->MeasurementCount() > 0 ? result->Measurement(1) : nullptr;
  if (measurement) {
    summary.measurement = SummaryOf(*measurement);
    summary.failedStandards = FailedStandards(*element, measurement, standards);
    summary.recordedOnly = !summary.sequence && summary.status == kPassed && summary.measurement->value &&
                           standards && !HasLimits(*element, *standards);
  }
  DoubtOwnData(*element, measurement, standards, summary);
  DoubtTest(*element, kinds, summary);
  return summary;
}

}  // namespace

std::string OutcomeText(Outcome outcome) {
  switch (outcome) {
    case Outcome::kPassed:
      return Marked("passed");
    case Outcome::kFailed:
      return Marked("failed");
    case Outcome::kIncomplete:
      break;
  }
  return Marked("incomplete");
}

std::string StatusText(std::int32_t status) {
  switch (status) {
    case kNotTested:
      return Marked("not tested");
    case kPassed:
      return Marked("passed");
    case kFailed:
      return Marked("failed");
    case kNotApplicable:
      return Marked("not applicable");
    case kAborted:
      return Marked("aborted");
    default:
      return "unknown status " + std::to_string(status);
  }
}

bool ElementSummary::CountsAsDone() const {
  return (status == kPassed || status == kNotApplicable) && doubts.empty();
}

bool ElementSummary::Failed() const { return status == kFailed; }

std::string ElementSummary::Verdict() const {
  const bool counts = status == kPassed || status == kNotApplicable;
  return counts && !doubts.empty() ? Marked("doubtful") : StatusText(status);
}

std::vector<ElementSummary> Summarise(const std::vector<std::shared_ptr<orvik::ITestElement>>& elements,
                                      const ElementFactory& factory,
                                      const std::shared_ptr<orvik::IStandardColl>& standards) {
  std::vector<ElementSummary> summaries;
  TestKinds kinds(factory);
  for (const auto& top : elements) {
    WalkElements(top, [&](const std::shared_ptr<orvik::ITestElement>& element) {
      summaries.push_back(SummaryOf(element, factory, standards, kinds));
    });
  }
  return summaries;
}

Outcome OutcomeOf(const std::vector<ElementSummary>& elements) {
  if (std::any_of(elements.begin(), elements.end(), std::mem_fn(&ElementSummary::Failed)))
    return Outcome::kFailed;
  const bool done = std::all_of(elements.begin(), elements.end(), std::mem_fn(&ElementSummary::CountsAsDone));
  return done && !elements.empty() ? Outcome::kPassed : Outcome::kIncomplete;
}

}  // namespace bench

#include "host/judge/CaseOf.h"

#include <utility>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/IConfigData.h"
#include "OrvikTypeLib/ILimit.h"
#include "OrvikTypeLib/ILimitData.h"
#include "OrvikTypeLib/IMeasurement.h"
#include "OrvikTypeLib/IResultData.h"
#include "OrvikTypeLib/IServiceRecord.h"
#include "OrvikTypeLib/IStandard.h"
#include "OrvikTypeLib/IStandardColl.h"
#include "OrvikTypeLib/ITestContainer.h"
#include "OrvikTypeLib/ITestEnumerator.h"
#include "host/document/Document.h"
#include "host/document/ElementState.h"
#include "host/document/ElementText.h"
#include "host/document/ElementWalk.h"
#include "host/document/SavedSettings.h"
#include "host/elements/ElementFactory.h"
#include "host/elements/TestKinds.h"
#include "host/judge/Judge.h"
#include "host/plugins/keld/KeldTests.h"

namespace host::judge {
namespace {

CaseLimit LimitOf(const orvik::ILimit& limit) {
  return {limit.Key(), limit.Unit(), limit.LowBound(), limit.HighBound(), limit.LowText(), limit.HighText()};
}

std::vector<CaseStandard> StandardsOf(const orvik::ITestElement& element) {
  std::vector<CaseStandard> standards;
  const auto limits = element.Limits();
  const auto coll = limits ? limits->Standards() : nullptr;
  for (std::int32_t i = 1; coll && i <= coll->Count(); ++i) {
    const auto standard = coll->item(i);
    CaseStandard known{standard->Name(), standard->Description(), {}};
    for (std::int32_t k = 1; k <= standard->LimitCount(); ++k)
      known.limits.push_back(LimitOf(*standard->Limit(k)));
    standards.push_back(std::move(known));
  }
  return standards;
}

std::optional<double> NumberOf(const orvik::Variant& value) {
  if (const auto* number = std::get_if<double>(&value)) return *number;
  if (const auto* whole = std::get_if<std::int32_t>(&value)) return *whole;
  return {};
}

std::optional<SavedResult> ResultOf(const orvik::ITestElement& element) {
  const auto result = element.Result();
  if (!result) return {};
  SavedResult saved;
  saved.status = result->Status();
  saved.instrument = result->MTIID();
  saved.comment = result->Comment();
  if (const auto service = result->ServiceRecord()) {
    saved.serviceCode = service->Code();
    saved.serviceValue = service->Value();
  }
  const auto measurement = result->MeasurementCount() > 0 ? result->Measurement(1) : nullptr;
  if (!measurement) return saved;
  saved.measured = true;
  saved.value = NumberOf(measurement->value());
  saved.unit = measurement->Unit();
  saved.flags = measurement->Flags();
  saved.measurementStatus = measurement->Status();
  return saved;
}

Filter FilterOf(const std::string& name) {
  if (name == plugins::keld::kMaximumFilter) return Filter::kMaximum;
  return name == plugins::keld::kMinimumFilter ? Filter::kMinimum : Filter::kNoValue;
}

CaseElement ElementOf(const std::shared_ptr<orvik::ITestElement>& element,
                      const elements::ElementFactory& factory, elements::TestKinds& kinds) {
  CaseElement known;
  known.id = element->ID();
  if (const auto parent = element->Parent()) known.parent = parent->ID();
  known.testId = element->TestID();
  known.name = document::ElementName(*element, factory);
  known.group = orvik::As<orvik::ITestContainer>(element) != nullptr;
  const auto& kind = kinds.Of(element->PlugInID(), known.testId, element->ClassID());
  known.fault = kind.fault;
  known.expectedUnit = kind.unit.value_or("");
  known.settings = document::MeasuringSettings(*element);
  if (known.group) known.filter = FilterOf(document::ValueFilter(*element));
  if (const auto state = document::StateOf(element, factory)) known.recordOnly = state->RecordOnly();
  known.standards = StandardsOf(*element);
  known.result = ResultOf(*element);
  return known;
}

}  // namespace

Case CaseOf(const document::Document& document, const elements::ElementFactory& factory,
            std::vector<std::string> selected) {
  Case known;
  known.equipment = document.equipment;
  known.runs = &document.Runs().All();
  known.selected = std::move(selected);
  elements::TestKinds kinds(factory);
  const auto walk = document.Elements()->NewEnum();
  while (const auto top = walk->Next()) {
    document::WalkElements(top, [&](const std::shared_ptr<orvik::ITestElement>& element) {
      known.elements.push_back(ElementOf(element, factory, kinds));
    });
  }
  return known;
}

JudgedDocument Judge(const document::Document& document, const elements::ElementFactory& factory,
                     std::vector<std::string> selected) {
  return Judge(CaseOf(document, factory, std::move(selected)));
}

}  // namespace host::judge

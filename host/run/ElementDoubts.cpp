#include "host/run/ElementDoubts.h"

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/ILimit.h"
#include "OrvikTypeLib/ILimitData.h"
#include "OrvikTypeLib/IMeasurement.h"
#include "OrvikTypeLib/IResultData.h"
#include "OrvikTypeLib/IStandard.h"
#include "OrvikTypeLib/IStandardColl.h"
#include "host/run/ElementState.h"
#include "host/services/Tr.h"

namespace bench {

namespace {

std::string UnitDoubtOf(const std::string& unit, const orvik::IStandard& standard) {
  for (std::int32_t i = 1; i <= standard.LimitCount(); ++i) {
    const auto limit = standard.Limit(i);
    const bool bounded = !limit->LowText().empty() || !limit->HighText().empty();
    if (bounded && !limit->Unit().empty() && limit->Unit() != unit)
      return Tr("the reading is in \"%%1\", its limits of %%2 are in \"%%3\"",
                {unit, standard.Name(), limit->Unit()});
  }
  return {};
}

}  // namespace

std::vector<std::string> DoubtsOf(const std::shared_ptr<orvik::ITestElement>& element,
                                  const ElementFactory& factory) {
  const auto state = StateOf(element, factory);
  return state ? state->Doubts() : std::vector<std::string>();
}

void SetDoubts(const std::shared_ptr<orvik::ITestElement>& element, const ElementFactory& factory,
               const std::vector<std::string>& doubts) {
  if (const auto state = StateOf(element, factory)) state->SetDoubts(doubts);
}

std::string UnitDoubt(const orvik::ITestElement& element) {
  const auto result = element.Result();
  const auto measurement = result && result->MeasurementCount() > 0 ? result->Measurement(1) : nullptr;
  const auto limits = element.Limits();
  const auto standards = limits ? limits->Standards() : nullptr;
  if (!measurement || !standards) return {};
  for (std::int32_t i = 1; i <= standards->Count(); ++i) {
    auto doubt = UnitDoubtOf(measurement->Unit(), *standards->item(i));
    if (!doubt.empty()) return doubt;
  }
  return {};
}

}  // namespace bench

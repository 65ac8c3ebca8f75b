#include "host/run/ElementDoubts.h"

#include <charconv>
#include <cmath>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/IInstrumentRecord.h"
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

/// Two readings of the same leads, in mOhm, may be so far apart: what clips and sockets do to them.
constexpr double kSpreadOfLeads = 20;

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

std::string LeadsDoubt(const orvik::ITestElement& element,
                       const std::shared_ptr<orvik::IInstrumentColl>& instruments,
                       std::optional<double> ohms) {
  const auto result = element.Result();
  const auto number = result ? result->MTIID() : 0;
  // A negative reading is doubtful by itself.
  if (!ohms || *ohms < 0 || !instruments || number < 1 || number > instruments->Count()) return {};
  const auto saved = instruments->item(number)->Property("calib");
  std::int32_t leads = 0;
  std::from_chars(saved.data(), saved.data() + saved.size(), leads);
  const double reading = *ohms * 1000;
  if (leads - reading <= kSpreadOfLeads) return {};
  return Tr("the reading of %%1 mOhm is less than the %%2 mOhm of the test leads; measure the leads again",
            {std::to_string(std::lround(reading)), std::to_string(leads)});
}

}  // namespace bench

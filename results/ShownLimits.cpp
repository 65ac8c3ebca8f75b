#include "results/ShownLimits.h"

#include <algorithm>
#include <memory>
#include <optional>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/Conversions.h"
#include "OrvikTypeLib/ILimit.h"
#include "OrvikTypeLib/ILimitData.h"
#include "OrvikTypeLib/IMeasurement.h"
#include "OrvikTypeLib/IStandard.h"
#include "OrvikTypeLib/IStandardColl.h"
#include "OrvikTypeLib/ITestElement.h"

namespace keld::results {
namespace {

std::shared_ptr<orvik::IStandard> StandardOf(const orvik::ITestElement& iteElement, const std::string& sName,
                                             const std::string& sText) {
  if (sName.empty()) return {};
  const auto Limits = iteElement.Limits();
  const auto Standards = Limits ? Limits->Standards() : nullptr;
  return Standards ? Standards->Find(sName, sText) : nullptr;
}

std::string BoundText(const std::optional<double>& Bound, const std::string& sUnit) {
  return Bound ? orvik::WholeNumberText(*Bound) + " " + sUnit : " ";
}

}  // namespace

ShownLimits LimitsOf(const orvik::ITestElement* iteElement, const orvik::IMeasurement* Measurement,
                     const std::string& sStandardName, const std::string& sStandardText) {
  if (!iteElement || !Measurement) return {};
  const auto Standard = StandardOf(*iteElement, sStandardName, sStandardText);
  if (!Standard) return {};
  const std::string sKey = Measurement->LimitKey();
  const std::string sUnit = Measurement->Unit();
  if (sKey.empty()) return {};
  std::optional<double> High;
  std::optional<double> Low;
  for (std::int32_t lIndex = 1; lIndex <= Standard->LimitCount(); ++lIndex) {
    const auto Limit = Standard->Limit(lIndex);
    if (orvik::Required(Limit).Key() != sKey) continue;
    if (const auto Upper = Limit->HighBound()) High = std::min(High.value_or(*Upper), *Upper);
    if (const auto Lower = Limit->LowBound()) Low = std::max(Low.value_or(*Lower), *Lower);
  }
  return {BoundText(High, sUnit), BoundText(Low, sUnit)};
}

}  // namespace keld::results

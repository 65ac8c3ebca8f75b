#include "model/SequenceSummary.h"

#include <functional>
#include <string>

#include "OrvikTypeLib/Conversions.h"
#include "OrvikTypeLib/IMeasurement.h"
#include "OrvikTypeLib/IResultData.h"
#include "model/Children.h"
#include "plugin/MKELDConstants.h"

namespace keld {

namespace {

constexpr double kBound = 1073741824;

bool HasNoValue(const orvik::Variant& vValue) {
  const auto* psText = std::get_if<std::string>(&vValue);
  return orvik::IsEmpty(vValue) || (psText && psText->empty());
}

orvik::Variant FirstValue(const orvik::ITestElement& iteChild) {
  const auto Result = iteChild.Result();
  const auto Measurement = Result ? Result->Measurement(1) : nullptr;
  return Measurement ? Measurement->value() : orvik::Variant();
}

orvik::Variant Extreme(const orvik::ITestContainer& Children, double rStart,
                       const std::function<bool(double, double)>& Beats) {
  double rCurrent = rStart;
  ForEachChild(Children, [&](const auto& iteChild) {
    const orvik::Variant vValue = FirstValue(*iteChild);
    if (HasNoValue(vValue)) return;
    const double rValue = orvik::NumericValue(vValue);
    if (Beats(rValue, rCurrent)) rCurrent = rValue;
  });
  if (Beats(rCurrent, rStart)) return rCurrent;
  return std::string();
}

}  // namespace

orvik::Variant SummaryValue(const orvik::ITestContainer& Children, std::int32_t lMode) {
  if (lMode == 3) return Extreme(Children, -kBound, std::greater<>());
  if (lMode == 4) return Extreme(Children, kBound, std::less<>());
  return std::string();
}

std::int32_t ChildrenStatus(const orvik::ITestContainer& Children) {
  bool fFailed = false;
  bool fPassed = false;
  bool fNotApplicable = false;
  const bool fAllRead = ForEachChild(Children, [&](const auto& iteChild) {
    const auto Result = iteChild->Result();
    if (!Result) return;
    const std::int32_t lStatus = Result->Status();
    fFailed = fFailed || lStatus == MKELDConstants::kFailed;
    fPassed = fPassed || lStatus == MKELDConstants::kPassed;
    fNotApplicable = fNotApplicable || lStatus == MKELDConstants::kNotApplicable;
  });
  if (fFailed) return MKELDConstants::kFailed;
  // The child that could not be read may be the one that failed.
  if (!fAllRead) return MKELDConstants::kNotTested;
  if (fPassed) return MKELDConstants::kPassed;
  if (fNotApplicable) return MKELDConstants::kNotApplicable;
  return MKELDConstants::kNotTested;
}

}  // namespace keld

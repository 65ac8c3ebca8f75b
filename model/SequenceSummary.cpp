#include "model/SequenceSummary.h"

#include <functional>
#include <string>

#include "OrvikTypeLib/Codes.h"
#include "OrvikTypeLib/Conversions.h"
#include "OrvikTypeLib/IMeasurement.h"
#include "OrvikTypeLib/IResultData.h"
#include "model/Children.h"

namespace keld::model {

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
    fFailed = fFailed || lStatus == orvik::ResultStatus::kFailed;
    fPassed = fPassed || lStatus == orvik::ResultStatus::kPassed;
    fNotApplicable = fNotApplicable || lStatus == orvik::ResultStatus::kNotApplicable;
  });
  if (fFailed) return orvik::ResultStatus::kFailed;
  // The child that could not be read may be the one that failed.
  if (!fAllRead) return orvik::ResultStatus::kNotTested;
  if (fPassed) return orvik::ResultStatus::kPassed;
  if (fNotApplicable) return orvik::ResultStatus::kNotApplicable;
  return orvik::ResultStatus::kNotTested;
}

}  // namespace keld::model

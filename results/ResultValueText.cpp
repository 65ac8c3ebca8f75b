#include "results/ResultValueText.h"

#include <functional>
#include <memory>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/Codes.h"
#include "OrvikTypeLib/Conversions.h"
#include "OrvikTypeLib/IMeasurement.h"
#include "OrvikTypeLib/IResultData.h"
#include "OrvikTypeLib/ITestContainer.h"
#include "OrvikTypeLib/ITestElement.h"
#include "OrvikTypeLib/ITestEnumerator.h"
#include "plugin/configuration/CKELDTestConfiguration.h"

namespace keld::results::ResultValueText {
namespace {

/// The searches start from minus and plus two to the thirtieth, so that any real reading replaces the start
/// value.
constexpr double kStart = 1073741824;

std::string TrimmedValue(const orvik::ITestElement& iteChild) {
  const auto Result = iteChild.Result();
  const auto Measurement = Result ? Result->Measurement(1) : nullptr;
  return Measurement ? orvik::Trim(orvik::TextOf(Measurement->value())) : std::string();
}

/// A number keeps the blank in its sign position.
std::string SignedValue(const orvik::Variant& vValue) {
  if (const auto* plValue = std::get_if<std::int32_t>(&vValue)) return orvik::SignedNumberText(*plValue);
  if (const auto* prValue = std::get_if<double>(&vValue)) return orvik::SignedNumberText(*prValue);
  return orvik::TextOf(vValue);
}

std::string Extreme(const std::string& sList, double rStart,
                    const std::function<bool(double, double)>& Replaces) {
  if (sList.empty() || sList == "/") return {};
  double rExtreme = rStart;
  std::size_t lFirst = sList.front() == '/' ? 1 : 0;
  while (lFirst != std::string::npos) {
    const std::size_t lEnd = sList.find('/', lFirst);
    const double rPiece = orvik::LeadingNumber(sList.substr(lFirst, lEnd - lFirst));
    if (Replaces(rPiece, rExtreme)) rExtreme = rPiece;
    lFirst = lEnd == std::string::npos ? lEnd : lEnd + 1;
  }
  return "/" + orvik::NumberText(rExtreme);
}

}  // namespace

std::string ValueText(const orvik::ITestElement& iteElement, const orvik::Variant& vOwnValue) {
  const std::int32_t lMode =
      orvik::Required(orvik::As<configuration::CKELDTestConfiguration>(iteElement.Configuration()))
          .ValueFilter();
  if (orvik::Required(iteElement.Result()).Status() == orvik::ResultStatus::kNotApplicable) return {};
  switch (lMode) {
    case 0:
    case 3:
      return Largest(CollectedList(iteElement, vOwnValue));
    case 2:
      return CollectedList(iteElement, vOwnValue);
    case 4:
      return Smallest(CollectedList(iteElement, vOwnValue));
    default:
      return {};
  }
}

std::string CollectedList(const orvik::ITestElement& iteElement, const orvik::Variant& vOwnValue) {
  const auto Children = orvik::As<const orvik::ITestContainer>(iteElement.shared_from_this());
  if (!Children) return "/" + SignedValue(vOwnValue);
  std::string sList;
  const auto Walk = Children->NewEnum();
  while (const auto iteChild = orvik::Required(Walk).Next()) sList += "/" + TrimmedValue(*iteChild);
  return sList;
}

// A tie keeps the later piece.
std::string Largest(const std::string& sList) { return Extreme(sList, -kStart, std::greater_equal<>()); }
std::string Smallest(const std::string& sList) { return Extreme(sList, kStart, std::less_equal<>()); }

}  // namespace keld::results::ResultValueText

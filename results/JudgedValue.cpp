#include "results/JudgedValue.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>

#include "OrvikTypeLib/Conversions.h"

namespace keld {
namespace {

/// Unlike `LeadingNumber`, which reads 0 where there is no number: a reading of 0 keeps every upper bound.
std::optional<double> NumberIn(const std::string& sValue) {
  const std::string sText = orvik::Trim(sValue);
  const std::size_t lFirst = !sText.empty() && sText.front() == '+' ? 1 : 0;
  double rValue = 0;
  const auto Read = std::from_chars(sText.data() + lFirst, sText.data() + sText.size(), rValue);
  if (Read.ec != std::errc{}) return {};
  return rValue;
}

std::optional<double> NumberOf(const orvik::Variant& vValue) {
  if (const auto* psValue = std::get_if<std::string>(&vValue)) return NumberIn(*psValue);
  if (std::holds_alternative<std::int32_t>(vValue) || std::holds_alternative<double>(vValue))
    return orvik::NumericValue(vValue);
  return {};
}

}  // namespace

std::optional<float> JudgedValue(const orvik::Variant& vValue) {
  const auto Number = NumberOf(vValue);
  if (!Number || !std::isfinite(*Number)) return {};
  constexpr double kLargest = std::numeric_limits<float>::max();
  return static_cast<float>(std::clamp(*Number, -kLargest, kLargest));
}

}  // namespace keld

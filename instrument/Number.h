#pragma once

#include <charconv>
#include <cmath>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "OrvikTypeLib/Conversions.h"
#include "OrvikTypeLib/HostError.h"
#include "OrvikTypeLib/Variant.h"

/// Strict conversions: unlike a leading-number parse they accept a text only if all of it is a
/// number, apart from blanks around it.
namespace keld::instrument {

/// The number that the value is; none when it is not a number.
inline std::optional<double> NumberIn(const orvik::Variant& vValue) {
  if (const auto* plValue = std::get_if<std::int32_t>(&vValue)) return *plValue;
  if (const auto* prValue = std::get_if<double>(&vValue)) return *prValue;
  const auto* psValue = std::get_if<std::string>(&vValue);
  if (!psValue) return std::nullopt;

  const std::string sTrimmed = orvik::Trim(*psValue);
  std::string_view sNumber = sTrimmed;
  const bool fSigned = sNumber.starts_with('+') || sNumber.starts_with('-');
  // from_chars alone would also accept "inf" and "nan", which no tester sends as a number.
  const std::string_view sDigits = fSigned ? sNumber.substr(1) : sNumber;
  if (sDigits.empty() || sDigits.find_first_of("0123456789.") != 0) return std::nullopt;
  if (sNumber.starts_with('+')) sNumber = sDigits;
  double rValue = 0;
  const char* pcEnd = sNumber.data() + sNumber.size();
  const auto Result = std::from_chars(sNumber.data(), pcEnd, rValue);
  if (Result.ec != std::errc{} || Result.ptr != pcEnd) return std::nullopt;
  return rValue;
}

/// The value as an integer, rounded, halves to the even neighbour. `HostError` when it is not a number or
/// lies outside the bounds.
inline std::int32_t IntegerIn(const orvik::Variant& vValue, std::int32_t lLowest, std::int32_t lHighest) {
  const auto rNumber = NumberIn(vValue);
  if (!rNumber || !(*rNumber >= lLowest - 0.5 && *rNumber <= lHighest + 0.5) ||
      orvik::RoundToInteger(*rNumber) < lLowest || orvik::RoundToInteger(*rNumber) > lHighest)
    throw orvik::HostError(orvik::HostError::kTypeMismatch, "KELD(IN)",
                           "\"" + orvik::TextOf(vValue) + "\" is not a whole number from " +
                               std::to_string(lLowest) + " to " + std::to_string(lHighest));
  return orvik::RoundToInteger(*rNumber);
}

}  // namespace keld::instrument

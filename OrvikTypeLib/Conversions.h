#pragma once

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <variant>

#include "OrvikTypeLib/Variant.h"

/// Conversions between numbers and texts that saved documents rely on. None of them depends on the C locale.
namespace orvik {

/// The text without leading and trailing blanks.
inline std::string Trim(std::string_view sText) {
  const auto first = sText.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return std::string(sText.substr(first, sText.find_last_not_of(' ') - first + 1));
}

/// Whether a decimal number outside the range of a double is too large, rather than too small.
/// @param sNumber digits with at most one ".", and an exponent, as `std::from_chars` accepts them; no sign
inline bool IsTooLarge(std::string_view sNumber) {
  const auto exponentAt = sNumber.find_first_of("eE");
  const std::string_view sMantissa = sNumber.substr(0, exponentAt);
  const auto first = sMantissa.find_first_of("123456789");
  if (first == std::string_view::npos) return false;
  const auto point = std::min(sMantissa.find('.'), sMantissa.size());
  // The power of ten of the first significant digit: "0.05" has -2, "120" has 2.
  double rPower = static_cast<double>(point) - static_cast<double>(first);
  if (first < point) rPower -= 1;
  if (exponentAt == std::string_view::npos) return rPower > 0;
  // An exponent may have any number of digits; as a double it is at worst infinite.
  std::string_view sExponent = sNumber.substr(exponentAt + 1);
  const bool fNegative = sExponent.starts_with('-');
  if (fNegative || sExponent.starts_with('+')) sExponent.remove_prefix(1);
  double rExponent = 0;
  for (const char c : sExponent) rExponent = rExponent * 10 + (c - '0');
  return rPower + (fNegative ? -rExponent : rExponent) > 0;
}

/// The number at the start of a text: blanks, sign, digits, ".", exponent. Text that does not start with a
/// number is 0. A number too large for a double is the largest double: read as 0 it could pass a limit. One
/// too small for a double is 0.
inline double LeadingNumber(std::string_view sText) {
  const auto first = sText.find_first_not_of(" \t\r\n");
  if (first == std::string_view::npos) return 0;
  sText.remove_prefix(first);
  if (sText.front() == '+') sText.remove_prefix(1);
  // from_chars alone would also read "inf" and "nan", which no instrument sends as a number.
  const auto digit = sText.find_first_not_of('-');
  const bool fNumber =
      digit <= 1 && std::string_view("0123456789.").find(sText[digit]) != std::string_view::npos;
  if (!fNumber) return 0;
  double rValue = 0;
  const auto result = std::from_chars(sText.data(), sText.data() + sText.size(), rValue);
  if (result.ec == std::errc{}) return rValue;
  if (result.ec != std::errc::result_out_of_range) return 0;
  const bool fNegative = sText.front() == '-';
  const std::string_view sNumber(sText.data(), static_cast<std::size_t>(result.ptr - sText.data()));
  if (!IsTooLarge(sNumber.substr(fNegative ? 1 : 0))) return 0;
  return fNegative ? std::numeric_limits<double>::lowest() : std::numeric_limits<double>::max();
}

/// The finite number that the whole text represents ("." as decimal sign, optional sign and exponent, blanks
/// around it); empty for anything else.
inline std::optional<double> FiniteNumber(std::string_view sText) {
  const auto first = sText.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  sText = sText.substr(first, sText.find_last_not_of(' ') - first + 1);
  if (sText.size() > 1 && sText[0] == '+' && sText[1] != '-') sText.remove_prefix(1);
  double rValue = 0;
  const auto result = std::from_chars(sText.data(), sText.data() + sText.size(), rValue);
  const bool fWhole = result.ec == std::errc{} && result.ptr == sText.data() + sText.size();
  if (!fWhole || !std::isfinite(rValue)) return {};
  return rValue;
}

/// Rounded to the nearest 32-bit integer, halves to the even neighbour, held within the 32-bit range;
/// not-a-number is 0.
inline std::int32_t RoundToInteger(double rValue) {
  if (std::isnan(rValue)) return 0;
  constexpr double rLow = std::numeric_limits<std::int32_t>::min();
  constexpr double rHigh = std::numeric_limits<std::int32_t>::max();
  const double rFloor = std::floor(rValue);
  const double rRest = rValue - rFloor;
  const bool fUp = rRest > 0.5 || (rRest == 0.5 && std::fmod(rFloor, 2) != 0);
  const double rRounded = fUp ? rFloor + 1 : rFloor;
  return static_cast<std::int32_t>(rRounded < rLow ? rLow : rRounded > rHigh ? rHigh : rRounded);
}

/// A number as text with at most 15 significant digits, so that 0.1 + 0.2 reads 0.3; no sign blank.
inline std::string NumberText(double rValue) {
  if (rValue == 0) return "0";
  // Most readings are whole numbers; an integer gives the same text faster.
  if (std::fabs(rValue) < 1e9 && rValue == std::trunc(rValue))
    return std::to_string(static_cast<std::int32_t>(rValue));
  char acBuffer[40];
  const auto result =
      std::to_chars(acBuffer, acBuffer + sizeof acBuffer, rValue, std::chars_format::general, 15);
  return {acBuffer, result.ptr};
}

/// A number as text with a blank in the sign position of a non-negative number.
inline std::string SignedNumberText(double rValue) {
  const std::string sText = NumberText(rValue);
  return sText.front() == '-' ? sText : " " + sText;
}

/// A number in the format "0": rounded to a whole number, halves away from zero, never "-0".
inline std::string WholeNumberText(double rValue) {
  const double rRounded = std::round(rValue);
  if (rRounded == 0) return "0";
  char acBuffer[330];
  const auto result =
      std::to_chars(acBuffer, acBuffer + sizeof acBuffer, rRounded, std::chars_format::fixed, 0);
  return {acBuffer, result.ptr};
}

/// The numeric value of a variant: numbers as they are, texts by their leading number, anything else 0.
inline double NumericValue(const Variant& vValue) {
  if (const auto* plValue = std::get_if<std::int32_t>(&vValue)) return *plValue;
  if (const auto* prValue = std::get_if<double>(&vValue)) return *prValue;
  if (const auto* psValue = std::get_if<std::string>(&vValue)) return LeadingNumber(*psValue);
  return 0;
}

/// A variant as text: numbers without sign blank, texts as they are, empty and lists as the empty text.
inline std::string TextOf(const Variant& vValue) {
  if (const auto* plValue = std::get_if<std::int32_t>(&vValue)) return std::to_string(*plValue);
  if (const auto* prValue = std::get_if<double>(&vValue)) return NumberText(*prValue);
  if (const auto* psValue = std::get_if<std::string>(&vValue)) return *psValue;
  return {};
}

/// As above, but moves the text out of the value: it can be a whole catalogue.
inline std::string TextOf(Variant&& vValue) {
  if (auto* psValue = std::get_if<std::string>(&vValue)) return std::move(*psValue);
  return TextOf(std::as_const(vValue));
}

/// A value in a format string. "0" is the only format in use; with any other the value is shown as it is.
inline std::string FormatValue(const Variant& vValue, std::string_view sFormat) {
  if (IsEmpty(vValue)) return {};
  if (const auto* psValue = std::get_if<std::string>(&vValue); psValue && psValue->empty()) return {};
  return sFormat == "0" ? WholeNumberText(NumericValue(vValue)) : TextOf(vValue);
}

/// A number narrowed to 16 bits, as identifiers are handed to the instrument; the high bits are dropped.
inline std::int16_t Narrow16(std::int32_t lValue) {
  return static_cast<std::int16_t>(static_cast<std::uint16_t>(static_cast<std::uint32_t>(lValue)));
}

}  // namespace orvik

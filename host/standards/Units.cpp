#include "host/standards/Units.h"

#include <array>
#include <cmath>
#include <string_view>
#include <utility>

#include "OrvikTypeLib/Conversions.h"
#include "host/base/Text.h"

namespace host::standards {
namespace {

/// A unit as power of ten and quantity.
struct Unit {
  int exponent = 0;
  std::string_view quantity;
  bool operator==(const Unit&) const = default;
};

constexpr std::array<std::pair<std::string_view, std::string_view>, 5> kQuantities{
    {{"A", "A"}, {"V", "V"}, {"Ohm", "Ohm"}, {"\xCE\xA9", "Ohm"}, {"\xE2\x84\xA6", "Ohm"}}};

constexpr std::array<std::pair<std::string_view, int>, 9> kPrefixes{{{"", 0},
                                                                     {"n", -9},
                                                                     {"\xC2\xB5", -6},  // micro sign
                                                                     {"\xCE\xBC", -6},  // Greek mu
                                                                     {"u", -6},
                                                                     {"m", -3},
                                                                     {"k", 3},
                                                                     {"M", 6},
                                                                     {"G", 9}}};

std::optional<Unit> UnitOf(std::string_view text) {
  for (const auto& [ending, quantity] : kQuantities) {
    if (!text.ends_with(ending)) continue;
    const auto start = text.substr(0, text.size() - ending.size());
    for (const auto& [prefix, exponent] : kPrefixes) {
      if (start == prefix) return Unit{exponent, quantity};
    }
  }
  return {};
}

}  // namespace

bool SameUnit(const std::string& one, const std::string& other) {
  if (one == other) return true;
  const auto first = UnitOf(one);
  return first && first == UnitOf(other);
}

bool SameQuantity(const std::string& one, const std::string& other) {
  if (one == other) return true;
  const auto first = UnitOf(one), second = UnitOf(other);
  return first && second && first->quantity == second->quantity;
}

std::optional<double> InUnit(double number, const std::string& from, const std::string& to) {
  if (SameUnit(from, to)) return number;
  if (!SameQuantity(from, to)) return {};
  const int steps = UnitOf(from)->exponent - UnitOf(to)->exponent;
  // 10 and 1000 are exact as factors and divisors; 0.1 and 0.001 are not.
  const double factor = std::pow(10.0, std::abs(steps));
  const double converted = steps < 0 ? number / factor : number * factor;
  if (!std::isfinite(converted)) return {};
  return converted;
}

std::optional<std::string> InUnit(const std::string& number, const std::string& from, const std::string& to) {
  const auto value = FiniteNumber(number);
  if (!value) return {};
  if (SameUnit(from, to)) return orvik::Trim(number);
  const auto converted = InUnit(*value, from, to);
  if (!converted) return {};
  // 15 digits: enough for every bound, and without the rounding error of the conversion.
  return orvik::NumberText(*converted);
}

}  // namespace host::standards

#include "tests/system/history/Decimal.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

namespace history {
namespace {

__extension__ using Wide = __int128;

Wide Scaled(std::int64_t digits, int powers) {
  Wide scaled = digits;
  for (; powers > 0; --powers) scaled *= 10;
  return scaled;
}

}  // namespace

std::optional<Decimal> Decimal::Parsed(std::string_view text) {
  const auto point = text.find('.');
  std::string digits(text.substr(0, point));
  int exponent = 0;
  if (point != std::string_view::npos) {
    const auto fraction = text.substr(point + 1);
    digits += fraction;
    exponent = -static_cast<int>(fraction.size());
  }
  std::int64_t number = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
  if (error != std::errc() || end != digits.data() + digits.size()) return {};
  return Decimal(number, exponent);
}

std::string Decimal::Text() const {
  auto digits = digits_;
  auto exponent = exponent_;
  for (; exponent > 0; --exponent) digits *= 10;
  for (; exponent < 0 && digits % 10 == 0; ++exponent) digits /= 10;
  auto text = std::to_string(digits < 0 ? -digits : digits);
  if (exponent < 0) {
    const auto places = static_cast<std::size_t>(-exponent);
    if (text.size() <= places) text.insert(0, places + 1 - text.size(), '0');
    text.insert(text.size() - places, ".");
  }
  return digits < 0 ? "-" + text : text;
}

Decimal operator-(Decimal one, Decimal other) {
  const int exponent = std::min(one.exponent_, other.exponent_);
  return {static_cast<std::int64_t>(Scaled(one.digits_, one.exponent_ - exponent) -
                                    Scaled(other.digits_, other.exponent_ - exponent)),
          exponent};
}

std::strong_ordering operator<=>(Decimal one, Decimal other) {
  const int exponent = std::min(one.exponent_, other.exponent_);
  const auto left = Scaled(one.digits_, one.exponent_ - exponent);
  const auto right = Scaled(other.digits_, other.exponent_ - exponent);
  if (left == right) return std::strong_ordering::equal;
  return left < right ? std::strong_ordering::less : std::strong_ordering::greater;
}

std::optional<Unit> UnitNamed(std::string_view text) {
  static constexpr std::array<std::pair<std::string_view, Unit>, 11> kUnits{{{"Ohm", {'R', 0}},
                                                                             {"mOhm", {'R', -3}},
                                                                             {"kOhm", {'R', 3}},
                                                                             {"MOhm", {'R', 6}},
                                                                             {"A", {'I', 0}},
                                                                             {"mA", {'I', -3}},
                                                                             {"\xC2\xB5"
                                                                              "A",
                                                                              {'I', -6}},
                                                                             {"uA", {'I', -6}},
                                                                             {"V", {'U', 0}},
                                                                             {"mV", {'U', -3}},
                                                                             {"kV", {'U', 3}}}};
  for (const auto& [name, unit] : kUnits)
    if (name == text) return unit;
  return {};
}

std::optional<Decimal> Amount::In(const std::string& other) const {
  if (unit == other) return number;
  const auto own = UnitNamed(unit), wanted = UnitNamed(other);
  if (!own || !wanted || own->quantity != wanted->quantity) return {};
  return number.TimesPowerOfTen(own->exponent - wanted->exponent);
}

}  // namespace history

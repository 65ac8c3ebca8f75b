#pragma once

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace history {

/// An exact decimal number, so that the oracle does not round. For at most 15 digits between 1e-12 and 1e12.
class Decimal {
 public:
  /// @param digits,exponent digits times ten to that power
  constexpr Decimal(std::int64_t digits = 0, int exponent = 0) : digits_(digits), exponent_(exponent) {}
  /// None for a text that is not a plain number, such as "1e3", "" or "12x".
  static std::optional<Decimal> Parsed(std::string_view text);

  Decimal TimesPowerOfTen(int power) const { return {digits_, exponent_ + power}; }
  /// "0.123", without an exponent and without needless zeros.
  std::string Text() const;

  friend Decimal operator-(Decimal one, Decimal other);
  friend std::strong_ordering operator<=>(Decimal one, Decimal other);
  friend bool operator==(Decimal one, Decimal other) {
    return (one <=> other) == std::strong_ordering::equal;
  }

 private:
  std::int64_t digits_;
  int exponent_;
};

/// The quantity and power of ten of a unit: "mOhm" is {'R', -3}.
struct Unit {
  char quantity = 0;
  int exponent = 0;
};
/// None for a text that is not a unit of resistance, current or voltage.
std::optional<Unit> UnitNamed(std::string_view text);

/// A number with its unit.
struct Amount {
  Decimal number;
  std::string unit;

  /// None when the units are not of the same quantity.
  std::optional<Decimal> In(const std::string& other) const;
};

}  // namespace history

#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace toolkit::controls {

/// A bound as entered: a number and its unit or "%".
struct LimitBound {
  std::string number;
  std::string unit;
};

/// Splits the text of a limit's bound; without "%" its unit is `unit`.
LimitBound SplitBound(std::string_view text, const std::string& unit);
/// The text of the bound; empty without a number.
std::string JoinBound(const LimitBound& bound);

/// The text of a limit's bound with its unit, for display; empty without a bound.
std::string BoundWithUnit(std::string_view text, const std::string& unit);

/// The allowed units (separated by ";") that a bound can have: the limit's unit and "%".
std::vector<std::string> UsableUnits(std::string_view allowed, const std::string& unit);

}  // namespace toolkit::controls

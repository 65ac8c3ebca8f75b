#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace bench {

/// A bound as it is entered: a number, and the unit or "%" that it is in.
struct LimitBound {
  std::string number;
  std::string unit;
};

/// Splits a limit's bound text, whose numbers without "%" are in `unit`.
LimitBound SplitBound(std::string_view text, const std::string& unit);
/// The bound text of an entry; empty when no number was entered.
std::string JoinBound(const LimitBound& bound);

/// A limit's bound text as people read it, with its unit; empty when there is no bound.
std::string BoundWithUnit(std::string_view text, const std::string& unit);

/// Those of the allowed units (separated by ";") that a bound can be kept in: the limit's unit and "%".
std::vector<std::string> UsableUnits(std::string_view allowed, const std::string& unit);

}  // namespace bench

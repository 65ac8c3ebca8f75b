#include "host/archive/TrendUnit.h"

#include <cmath>

#include "host/base/Text.h"
#include "host/standards/Units.h"

namespace host::archive {

std::optional<double> NumberIn(const std::string& unit, double number, const std::string& from) {
  auto told = std::optional(number);
  if (!standards::SameUnit(from, unit)) {
    const auto text = standards::InUnit(ExactNumberText(number), from, unit);
    told = text ? FiniteNumber(*text) : std::nullopt;
  }
  return told && std::abs(*told) <= kLargestDrawn ? told : std::nullopt;
}

}  // namespace host::archive

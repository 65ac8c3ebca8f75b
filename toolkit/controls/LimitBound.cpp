#include "toolkit/controls/LimitBound.h"

#include <algorithm>

#include "OrvikTypeLib/Conversions.h"

namespace toolkit::controls {

LimitBound SplitBound(std::string_view text, const std::string& unit) {
  const std::string trimmed = orvik::Trim(text);
  if (trimmed.empty() || trimmed.back() != '%') return {trimmed, unit};
  return {orvik::Trim(std::string_view(trimmed).substr(0, trimmed.size() - 1)), "%"};
}

std::string JoinBound(const LimitBound& bound) {
  std::string text = orvik::Trim(bound.number);
  if (!text.empty() && bound.unit == "%" && text.back() != '%') text += "%";
  return text;
}

std::string BoundWithUnit(std::string_view text, const std::string& unit) {
  const LimitBound bound = SplitBound(text, unit);
  if (bound.number.empty() || bound.unit.empty()) return bound.number;
  return bound.number + " " + bound.unit;
}

std::vector<std::string> UsableUnits(std::string_view allowed, const std::string& unit) {
  std::vector<std::string> usable{unit};
  while (true) {
    const auto end = allowed.find(';');
    if (allowed.substr(0, end) == "%" && std::find(usable.begin(), usable.end(), "%") == usable.end())
      usable.emplace_back("%");
    if (end == std::string_view::npos) return usable;
    allowed.remove_prefix(end + 1);
  }
}

}  // namespace toolkit::controls

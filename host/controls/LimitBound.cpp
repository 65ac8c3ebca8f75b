#include "host/controls/LimitBound.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "OrvikTypeLib/Conversions.h"

namespace bench {

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

std::optional<double> WholeNumber(std::string_view text) {
  const std::string trimmed = orvik::Trim(text);
  double value = 0;
  const char* const end = trimmed.data() + trimmed.size();
  const auto result = std::from_chars(trimmed.data(), end, value);
  // "inf" and "nan" would be read too.
  if (result.ec != std::errc{} || result.ptr != end || !std::isfinite(value)) return std::nullopt;
  return value;
}

}  // namespace bench

#include "host/report/Bar.h"

#include <algorithm>
#include <cmath>

namespace host::report {
namespace {

/// Space beside a bound, and how far the line may stretch to reach the value, as shares of the allowed range.
constexpr double kSpace = 0.35;
constexpr double kStretch = 3;
/// Numbers smaller than this share of the largest one count as 0.
constexpr double kNegligible = 1e-9;
/// A value that exceeds a bound is drawn at least this far beside it.
constexpr double kApart = 0.025;

struct Line {
  double from;
  double to;
  double At(double number) const { return (number - from) / (to - from); }
};

/// The length of the allowed range when there is one bound only.
double Natural(double bound) { return bound == 0 ? 1 : std::abs(bound); }

Line LineFor(std::optional<double> low, std::optional<double> high, double value) {
  const double span = low && high ? *high - *low : Natural(low ? *low : *high);
  const double length = span > 0 ? span : Natural(*low);
  const double first = low ? *low : *high - length;
  const double last = high ? *high : *low + length;
  Line line{low ? first - kSpace * length : first, last + kSpace * length};
  // Most readings are positive: a line from 0 shows how much of the bound is used.
  if (first >= 0 && value >= 0) line.from = std::max(line.from, 0.0);
  if (value > line.to) line.to = std::min(value + kSpace * length, last + kStretch * length);
  if (value < line.from) line.from = std::max(value - kSpace * length, first - kStretch * length);
  return line;
}

Bar::Place PlaceOf(std::optional<double> low, std::optional<double> high, double value) {
  const auto measured = static_cast<float>(value);
  if (low && measured < static_cast<float>(*low)) return Bar::Place::kBelow;
  if (high && measured > static_cast<float>(*high)) return Bar::Place::kAbove;
  if (low && measured == static_cast<float>(*low)) return Bar::Place::kAtLow;
  if (high && measured == static_cast<float>(*high)) return Bar::Place::kAtHigh;
  return Bar::Place::kWithin;
}

}  // namespace

std::optional<Bar> MakeBar(std::optional<double> low, std::optional<double> high, double value) {
  if (!low && !high) return {};
  if (!std::isfinite(value)) return {};
  double scale = 0;
  for (const auto& bound : {low, high}) {
    if (bound && !std::isfinite(*bound)) return {};
    if (bound) scale = std::max(scale, std::abs(*bound));
  }
  if (scale == 0) scale = value == 0 ? 1 : std::abs(value);

  Bar bar;
  bar.place = PlaceOf(low, high, value);
  // Scaled to about 1, so that no number overflows or underflows.
  const auto scaled = [scale](const std::optional<double>& bound) {
    if (!bound) return std::optional<double>();
    return std::optional<double>(std::abs(*bound / scale) < kNegligible ? 0 : *bound / scale);
  };
  const double measured = std::clamp(value / scale, -1 / kNegligible, 1 / kNegligible);
  const auto line = LineFor(scaled(low), scaled(high), measured);
  // Leaves space beside a bound for a value that exceeds it.
  const auto place = [&line](double bound) { return std::clamp(line.At(bound), kApart, 1 - kApart); };
  if (low) bar.low = place(*scaled(low));
  if (high) bar.high = place(*scaled(high));
  const double at = line.At(measured);
  bar.beyond = at < 0 || at > 1;
  bar.value = std::clamp(at, 0.0, 1.0);
  switch (bar.place) {
    case Bar::Place::kBelow:
      bar.value = std::min(bar.value, *bar.low - kApart);
      break;
    case Bar::Place::kAtLow:
      bar.value = *bar.low;
      break;
    case Bar::Place::kWithin:
      bar.value = std::clamp(bar.value, bar.low.value_or(0), bar.high.value_or(1));
      break;
    case Bar::Place::kAtHigh:
      bar.value = *bar.high;
      break;
    case Bar::Place::kAbove:
      bar.value = std::max(bar.value, *bar.high + kApart);
      break;
  }
  return bar;
}

}  // namespace host::report

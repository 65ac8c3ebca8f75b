#include "host/report/Bar.h"

#include <algorithm>
#include <cmath>

namespace bench::report {
namespace {

/// Room beside a bound, and how far the line may be stretched to reach the value, in lengths of what is
/// allowed.
constexpr double kRoom = 0.35;
constexpr double kStretch = 3;
/// Beside the largest of the numbers anything smaller is nothing.
constexpr double kNothing = 1e-9;
/// What breaks a bound stands visibly beside it, by however little it breaks it.
constexpr double kApart = 0.025;

struct Line {
  double from;
  double to;
  double At(double number) const { return (number - from) / (to - from); }
};

/// The length that one bound alone makes the natural measure; 0 as a bound has none.
double Natural(double bound) { return bound == 0 ? 1 : std::abs(bound); }

Line LineFor(std::optional<double> low, std::optional<double> high, double value) {
  const double span = low && high ? *high - *low : Natural(low ? *low : *high);
  const double length = span > 0 ? span : Natural(*low);
  const double first = low ? *low : *high - length;
  const double last = high ? *high : *low + length;
  Line line{low ? first - kRoom * length : first, last + kRoom * length};
  // Nearly everything that is measured is positive: a line that begins at 0 says how much of the bound is
  // used.
  if (first >= 0 && value >= 0) line.from = std::max(line.from, 0.0);
  if (value > line.to) line.to = std::min(value + kRoom * length, last + kStretch * length);
  if (value < line.from) line.from = std::max(value - kRoom * length, first - kStretch * length);
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
  // Brought near 1, no number is too large or too small to be reckoned with.
  const auto scaled = [scale](const std::optional<double>& bound) {
    if (!bound) return std::optional<double>();
    return std::optional<double>(std::abs(*bound / scale) < kNothing ? 0 : *bound / scale);
  };
  const double measured = std::clamp(value / scale, -1 / kNothing, 1 / kNothing);
  const auto line = LineFor(scaled(low), scaled(high), measured);
  // A bound leaves room beside it for what breaks it.
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

}  // namespace bench::report

#include "host/archive/Ticks.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>

namespace host::archive {

namespace {

using namespace std::chrono;

constexpr std::size_t kMost = 7;

/// The smallest of 1, 2, 5 times a power of ten that is not below `least`.
double RoundStep(double least) {
  const double power = std::pow(10, std::floor(std::log10(least)));
  for (const int factor : {1, 2, 5})
    if (factor * power >= least * (1 - 1e-9)) return factor * power;
  return 10 * power;
}

/// A step between marks on the axis of time that is always as long, and the letters of an ISO text to show.
struct EvenStep {
  seconds length;
  std::size_t from, count;
};

constexpr std::size_t kDayFrom = 0, kDayCount = 10, kHourFrom = 5, kHourCount = 11;

constexpr EvenStep kEven[] = {
    {seconds(1), 11, 8},
    {seconds(5), 11, 8},
    {seconds(15), 11, 8},
    {minutes(1), kHourFrom, kHourCount},
    {minutes(5), kHourFrom, kHourCount},
    {minutes(15), kHourFrom, kHourCount},
    {hours(1), kHourFrom, kHourCount},
    {hours(3), kHourFrom, kHourCount},
    {hours(12), kHourFrom, kHourCount},
    {days(1), kDayFrom, kDayCount},
    {days(2), kDayFrom, kDayCount},
    {days(7), kDayFrom, kDayCount},
};

constexpr int kMonths[] = {1, 3, 6, 12, 24, 60, 120, 240, 600, 1200, 2400, 6000, 12000, 24000};

std::string LabelOf(Seconds moment, std::size_t from, std::size_t count) {
  auto label = IsoText(moment).substr(from, count);
  std::replace(label.begin(), label.end(), 'T', ' ');
  return label;
}

std::vector<Tick<Seconds>> EvenTicks(const EvenStep& step, Seconds from, Seconds to) {
  // Weeks begin on Monday; the count of days begins on a Thursday.
  const auto origin = step.length >= days(7) ? Seconds(days(4)) : Seconds();
  auto at = origin + (from - origin) / step.length * step.length;
  while (at < from) at += step.length;
  std::vector<Tick<Seconds>> ticks;
  for (; at <= to && ticks.size() <= kMost; at += step.length)
    ticks.push_back({at, LabelOf(at, step.from, step.count)});
  return ticks;
}

std::vector<Tick<Seconds>> MonthTicks(int step, Seconds from, Seconds to) {
  const year_month_day first(floor<days>(from));
  const int begin = int(first.year()) * 12;
  std::vector<Tick<Seconds>> ticks;
  for (int month = begin - begin % step; ticks.size() <= kMost; month += step) {
    const Seconds at = sys_days(year(month / 12) / std::chrono::month(unsigned(month % 12 + 1)) / 1);
    if (at > to) break;
    if (at >= from) ticks.push_back({at, LabelOf(at, 0, step % 12 == 0 ? 4 : 7)});
  }
  return ticks;
}

}  // namespace

std::vector<Tick<double>> NumberTicks(double low, double high) {
  if (low == high) high = low + (low == 0 ? 1 : std::abs(low));
  const double step = RoundStep((high - low) / static_cast<double>(kMost - 2));
  const auto first = static_cast<std::int64_t>(std::floor(low / step + 1e-9));
  const auto last = static_cast<std::int64_t>(std::ceil(high / step - 1e-9));
  std::vector<Tick<double>> ticks;
  for (auto i = first; i <= last; ++i) {
    const double at = static_cast<double>(i) * step;
    ticks.push_back({at, NumberText(at)});
  }
  return ticks;
}

std::vector<Tick<Seconds>> DateTicks(Seconds from, Seconds to) {
  for (const auto& step : kEven) {
    auto ticks = EvenTicks(step, from, to);
    if (ticks.size() <= kMost) return ticks;
  }
  for (const int step : kMonths) {
    auto ticks = MonthTicks(step, from, to);
    if (ticks.size() <= kMost) return ticks;
  }
  return {};
}

std::string NumberText(double number) {
  char text[64];
  const auto end =
      std::to_chars(std::begin(text), std::end(text), number, std::chars_format::general, 10).ptr;
  return {std::begin(text), end};
}

}  // namespace host::archive

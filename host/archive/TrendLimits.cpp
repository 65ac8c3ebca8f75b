#include "host/archive/TrendLimits.h"

#include <algorithm>
#include <map>

#include "host/archive/Ticks.h"
#include "host/archive/TrendUnit.h"
#include "host/base/Tr.h"

namespace host::archive {

namespace {

/// @param from unit of the bound; limits without one are in the unit of what they judge
std::optional<double> Drawable(const std::optional<double>& bound, const std::string& from,
                               const std::string& unit) {
  return bound ? NumberIn(unit, *bound, from.empty() ? unit : from) : std::nullopt;
}

std::size_t IndexOf(std::vector<std::string>& texts, const std::string& text) {
  const auto found = std::find(texts.begin(), texts.end(), text);
  if (found != texts.end()) return static_cast<std::size_t>(found - texts.begin());
  texts.push_back(text);
  return texts.size() - 1;
}

/// The limits of one reading in the unit of the drawing, from its date on.
std::vector<LimitStretch> StretchesAt(const TrendPoint& point, const std::string& unit,
                                      std::vector<std::string>& standards) {
  std::vector<LimitStretch> stretches;
  for (const auto& limit : point.element.result.limits) {
    if (!limit.selected) continue;
    const auto low = Drawable(limit.low, limit.unit, unit), high = Drawable(limit.high, limit.unit, unit);
    if (low || high)
      stretches.push_back({IndexOf(standards, StandardText(limit)), point.date, {}, low, high});
  }
  return stretches;
}

bool SameBounds(const LimitStretch& a, const LimitStretch& b) {
  return a.standard == b.standard && a.low == b.low && a.high == b.high;
}

/// The stretches of the readings of one element.
class Series {
 public:
  void Take(const TrendPoint& point, const std::vector<LimitStretch>& now) {
    std::vector<LimitStretch> going;
    for (auto stretch : now) {
      const auto before = std::find_if(going_.begin(), going_.end(),
                                       [&](const auto& other) { return SameBounds(other, stretch); });
      if (first_) stretch.from.reset();
      going.push_back(before == going_.end() ? stretch : *before);
      if (before != going_.end()) going_.erase(before);
    }
    for (auto& ended : going_) {
      ended.to = point.date;
      done_.push_back(ended);
    }
    going_ = std::move(going);
    first_ = false;
  }

  std::vector<LimitStretch> All() const {
    auto all = done_;
    all.insert(all.end(), going_.begin(), going_.end());
    return all;
  }

 private:
  bool first_ = true;
  std::vector<LimitStretch> going_, done_;
};

}  // namespace

TrendLimits LimitsOf(const std::vector<TrendPoint>& points, const std::string& unit) {
  TrendLimits limits;
  std::map<std::int32_t, Series> series;
  for (const auto& point : points)
    series[point.element.result.id].Take(point, StretchesAt(point, unit, limits.standards));
  // Elements with the same limits share their lines.
  for (const auto& [id, one] : series)
    for (const auto& stretch : one.All())
      if (std::find(limits.stretches.begin(), limits.stretches.end(), stretch) == limits.stretches.end())
        limits.stretches.push_back(stretch);
  return limits;
}

std::string StandardText(const judge::JudgedLimit& limit) {
  return limit.description.empty() ? limit.standard : limit.standard + ", " + limit.description;
}

std::string LimitText(const judge::JudgedLimit& limit) {
  const auto name = StandardText(limit);
  const auto low = limit.low ? NumberText(*limit.low) : "", high = limit.high ? NumberText(*limit.high) : "";
  if (limit.low && limit.high) return Tr("%%1: %%2 to %%3 %%4", {name, low, high, limit.unit});
  if (limit.low) return Tr("%%1: at least %%2 %%3", {name, low, limit.unit});
  return Tr("%%1: at most %%2 %%3", {name, high, limit.unit});
}

}  // namespace host::archive

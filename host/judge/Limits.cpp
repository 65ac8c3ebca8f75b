#include "host/judge/Limits.h"

#include <algorithm>

#include "host/judge/Reading.h"
#include "host/plugins/keld/KeldTests.h"
#include "host/standards/Units.h"

namespace host::judge {
namespace {

std::string NameOf(const JudgedLimit& limit) {
  return limit.description.empty() ? limit.standard : limit.standard + ", " + limit.description;
}

LimitVerdict Compared(double value, const JudgedLimit& limit) {
  // Bounds in single precision too, or 0.3 would exceed the bound 0.3.
  const auto reading = static_cast<float>(value);
  if (limit.low && !(reading >= static_cast<float>(*limit.low))) return LimitVerdict::kBelow;
  if (limit.high && !(reading <= static_cast<float>(*limit.high))) return LimitVerdict::kExceeded;
  return LimitVerdict::kWithin;
}

document::Reason BrokenBound(const JudgedLimit& limit) {
  const bool below = limit.verdict == LimitVerdict::kBelow;
  return {below ? "below-limit" : "above-limit",
          {NameOf(limit), NumberText(*limit.value, limit.unit),
           NumberText(below ? *limit.low : *limit.high, limit.unit)}};
}

void PutTo(JudgedLimit& limit, const CaseLimit& now, const Judged& reading, LimitFindings& findings) {
  if (reading.overload) {
    limit.verdict = LimitVerdict::kNotComparable;
    return;
  }
  if (reading.value) limit.value = standards::InUnit(*reading.value, reading.unit, limit.unit);
  if (!limit.value) {
    limit.verdict = LimitVerdict::kNotComparable;
    findings.doubts.push_back({"limit-unit", {NameOf(limit), limit.unit, reading.unit}});
    return;
  }
  limit.verdict = Compared(*limit.value, limit);
  findings.judged = true;
  const bool byPlugIn = now.key == plugins::keld::kLimitKey;
  const auto broken = [](LimitVerdict verdict) {
    return verdict == LimitVerdict::kBelow || verdict == LimitVerdict::kExceeded;
  };
  if (limit.Broken()) findings.broke.push_back(BrokenBound(limit));
  const bool same =
      !byPlugIn || !reading.recorded || broken(Compared(*reading.recorded, limit)) == limit.Broken();
  if (!same)
    findings.doubts.push_back(
        {"judged-differently",
         {NameOf(limit), NumberText(*limit.value, limit.unit), NumberText(*reading.recorded), limit.unit}});
  if (same && limit.Broken()) findings.broken = true;
  if (!byPlugIn && !limit.Broken()) findings.doubts.push_back({"limit-key", {NameOf(limit), now.key}});
}

}  // namespace

std::vector<JudgedLimit> LimitsOf(const CaseElement& element, const std::vector<std::string>& selected) {
  std::vector<JudgedLimit> limits;
  for (const auto& standard : element.standards) {
    const bool asked =
        selected.empty() || std::find(selected.begin(), selected.end(), standard.name) != selected.end();
    for (const auto& limit : standard.limits) {
      if (!limit.HasBound()) continue;
      limits.push_back({standard.name, standard.description, limit.unit, limit.low, limit.high, limit.lowText,
                        limit.highText, asked, LimitVerdict::kNotApplied, std::nullopt});
    }
  }
  return limits;
}

LimitFindings PutToLimits(const CaseElement& element, const Judged& reading,
                          std::vector<JudgedLimit>& limits) {
  LimitFindings findings;
  std::size_t place = 0;
  for (const auto& standard : element.standards) {
    for (const auto& limit : standard.limits) {
      if (!limit.HasBound()) continue;
      auto& judged = limits[place++];
      if (judged.selected) PutTo(judged, limit, reading, findings);
    }
  }
  return findings;
}

}  // namespace host::judge

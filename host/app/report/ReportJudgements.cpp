#include "host/app/TextColumns.h"
#include "host/app/report/ReportParts.h"
#include "host/report/VisibleText.h"
#include "host/services/Tr.h"

namespace bench::parts {
namespace {

using report::Bar;
using report::Judgement;
using report::Standing;
using report::VisibleText;

std::string WithUnit(const std::string& number, const std::string& unit) {
  return unit.empty() ? number : number + " " + unit;
}

/// "253", or "253 (110%)" for a bound that was entered in percent.
std::string BoundText(double bound, const std::string& entered) {
  return entered.ends_with('%') ? ShortNumber(bound) + " (" + VisibleText(entered) + ")" : ShortNumber(bound);
}

std::string BoundsText(const judge::JudgedLimit& limit, const std::string& unit) {
  const auto lowText = limit.low ? BoundText(*limit.low, limit.lowText) : "";
  const auto highText = limit.high ? BoundText(*limit.high, limit.highText) : "";
  if (limit.low && limit.high) return Tr("%%1 to %%2", {lowText, WithUnit(highText, unit)});
  if (limit.low) return Tr("at least %%1", {WithUnit(lowText, unit)});
  return Tr("at most %%1", {WithUnit(highText, unit)});
}

std::string PlaceText(Bar::Place place) {
  switch (place) {
    case Bar::Place::kBelow:
      return Tr("below the lower bound");
    case Bar::Place::kAtLow:
      return Tr("on the lower bound, which is allowed");
    case Bar::Place::kAtHigh:
      return Tr("on the upper bound, which is allowed");
    case Bar::Place::kAbove:
      return Tr("above the upper bound");
    case Bar::Place::kWithin:
      break;
  }
  return Tr("within the bounds");
}

/// Why the reading was not judged by the limit; empty when it was.
std::string Hindrance(const judge::JudgedLimit& limit, const judge::JudgedElement& element) {
  switch (limit.verdict) {
    case judge::LimitVerdict::kNotApplied:
      return Tr("not judged");
    case judge::LimitVerdict::kNotComparable:
      return Overloaded(element) ? Tr("not judged: overload (OL)")
                                 : Tr("not judged: the reading is in another unit");
    default:
      return {};
  }
}

Judgement JudgementOf(const judge::JudgedLimit& limit, const judge::JudgedElement& element) {
  const auto unit = VisibleText(limit.unit);
  Judgement judgement;
  judgement.standard = VisibleText(limit.standard);
  if (!limit.description.empty()) judgement.standard += " (" + VisibleText(limit.description) + ")";
  judgement.bounds = BoundsText(limit, unit);
  judgement.word = Hindrance(limit, element);
  if (!judgement.word.empty()) {
    judgement.standing =
        StandingOf(element) == Standing::kNotApplicable ? Standing::kNotApplicable : Standing::kOpen;
    return judgement;
  }
  judgement.bar = report::MakeBar(limit.low, limit.high, *limit.value);
  judgement.standing = limit.Broken() ? Standing::kFailed : Standing::kPassed;
  judgement.word = limit.verdict == judge::LimitVerdict::kWithin  ? Tr("within limit")
                   : limit.verdict == judge::LimitVerdict::kBelow ? Tr("below limit")
                                                                  : Tr("exceeded");
  if (!judgement.bar) return judgement;
  if (limit.low) judgement.lowLabel = ShortNumber(*limit.low);
  if (limit.high) judgement.highLabel = ShortNumber(*limit.high);
  judgement.valueLabel = ShortNumber(*limit.value);
  judgement.inWords = Tr("%%1 is %%2: %%3", {WithUnit(judgement.valueLabel, unit),
                                             PlaceText(judgement.bar->place), judgement.bounds});
  return judgement;
}

}  // namespace

std::vector<Judgement> JudgementsOf(const judge::JudgedElement& element) {
  std::vector<Judgement> judgements;
  for (const auto& limit : element.limits)
    if (limit.selected) judgements.push_back(JudgementOf(limit, element));
  return judgements;
}

}  // namespace bench::parts

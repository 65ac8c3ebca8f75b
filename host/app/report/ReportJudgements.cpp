#include <cmath>

#include "OrvikTypeLib/ILimit.h"
#include "OrvikTypeLib/ILimitData.h"
#include "OrvikTypeLib/IStandard.h"
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

std::string BoundsText(const orvik::ILimit& limit, const std::string& unit) {
  const auto low = limit.LowBound(), high = limit.HighBound();
  const auto lowText = low ? BoundText(*low, limit.LowText()) : "";
  const auto highText = high ? BoundText(*high, limit.HighText()) : "";
  if (low && high) return Tr("%%1 to %%2", {lowText, WithUnit(highText, unit)});
  if (low) return Tr("at least %%1", {WithUnit(lowText, unit)});
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

/// Why the reading cannot be put to the limit; empty when it can.
std::string Hindrance(const orvik::ILimit& limit, const ElementSummary& summary) {
  if (!summary.measurement || !summary.measurement->value) return Tr("not judged");
  if (Overloaded(summary)) return Tr("not judged: overload (OL)");
  // The value of a sequence is computed, and carries no unit.
  if (!summary.sequence && !limit.Unit().empty() && limit.Unit() != summary.measurement->unit)
    return Tr("not judged: the reading is in another unit");
  return {};
}

Judgement JudgementOf(const std::string& standard, const orvik::ILimit& limit,
                      const ElementSummary& summary) {
  const auto unit = VisibleText(limit.Unit());
  Judgement judgement;
  judgement.standard = standard;
  judgement.bounds = BoundsText(limit, unit);
  judgement.word = Hindrance(limit, summary);
  if (!judgement.word.empty()) {
    judgement.standing =
        StandingOf(summary) == Standing::kNotApplicable ? Standing::kNotApplicable : Standing::kOpen;
    return judgement;
  }
  const double value = *summary.measurement->value;
  judgement.bar = report::MakeBar(limit.LowBound(), limit.HighBound(), value);
  const bool kept = judgement.bar && judgement.bar->place != Bar::Place::kBelow &&
                    judgement.bar->place != Bar::Place::kAbove;
  judgement.standing = kept ? Standing::kPassed : Standing::kFailed;
  judgement.word = kept ? Tr("kept") : Tr("broken");
  if (!judgement.bar) return judgement;
  if (limit.LowBound()) judgement.lowLabel = ShortNumber(*limit.LowBound());
  if (limit.HighBound()) judgement.highLabel = ShortNumber(*limit.HighBound());
  judgement.valueLabel = ShortNumber(value);
  judgement.inWords = Tr("%%1 is %%2: %%3", {WithUnit(judgement.valueLabel, unit),
                                             PlaceText(judgement.bar->place), judgement.bounds});
  return judgement;
}

}  // namespace

std::vector<Judgement> JudgementsOf(const orvik::ITestElement& element, const ElementSummary& summary,
                                    const orvik::IStandardColl& selected) {
  std::vector<Judgement> judgements;
  const auto limits = element.Limits();
  const auto standards = limits ? limits->Standards() : nullptr;
  for (std::int32_t i = 1; standards && i <= standards->Count(); ++i) {
    const auto standard = standards->item(i);
    if (!selected.Find(standard->Name(), standard->Description())) continue;
    auto name = VisibleText(standard->Name());
    if (!standard->Description().empty()) name += " (" + VisibleText(standard->Description()) + ")";
    for (std::int32_t k = 1; k <= standard->LimitCount(); ++k) {
      const auto limit = standard->Limit(k);
      if (limit->LowBound() || limit->HighBound()) judgements.push_back(JudgementOf(name, *limit, summary));
    }
  }
  return judgements;
}

}  // namespace bench::parts

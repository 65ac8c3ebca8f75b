#include "host/base/Text.h"
#include "host/base/TextColumns.h"
#include "host/base/Tr.h"
#include "host/base/VisibleText.h"
#include "host/report/ReportParts.h"

namespace host::report::parts {
namespace {

using host::VisibleText;
using report::Bar;
using report::Judgement;
using report::Standing;

std::string WithUnit(const std::string& number, const std::string& unit) {
  return unit.empty() ? number : number + " " + unit;
}

/// "253", or "253 (110%)" for a bound that was entered in percent.
std::string BoundText(double bound, const std::string& entered) {
  return entered.ends_with('%') ? ShortNumber(bound) + " (" + VisibleText(entered) + ")" : ShortNumber(bound);
}

std::string BoundsText(const std::string& low, const std::string& high, const std::string& unit) {
  if (!low.empty() && !high.empty()) return Tr("%%1 to %%2", {low, WithUnit(high, unit)});
  if (!low.empty()) return Tr("at least %%1", {WithUnit(low, unit)});
  return Tr("at most %%1", {WithUnit(high, unit)});
}

std::string BoundsText(const judge::JudgedLimit& limit, const std::string& unit) {
  return BoundsText(limit.low ? BoundText(*limit.low, limit.lowText) : "",
                    limit.high ? BoundText(*limit.high, limit.highText) : "", unit);
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
std::string ReasonNotJudged(const judge::JudgedLimit& limit, const judge::JudgedElement& element) {
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

std::string StandardText(const std::string& name, const std::string& description) {
  return description.empty() ? VisibleText(name) : VisibleText(name) + " (" + VisibleText(description) + ")";
}

/// Draws the value between its bounds, and says it in words.
void AddBar(Judgement& judgement, std::optional<double> low, std::optional<double> high, double value,
            const std::string& unit) {
  judgement.bar = report::MakeBar(low, high, value);
  if (!judgement.bar) return;
  if (low) judgement.lowLabel = ShortNumber(*low);
  if (high) judgement.highLabel = ShortNumber(*high);
  judgement.valueLabel = ShortNumber(value);
  judgement.inWords = Tr("%%1 is %%2: %%3", {WithUnit(judgement.valueLabel, unit),
                                             PlaceText(judgement.bar->place), judgement.bounds});
}

/// A limit that holds is shown as passed only if the reading is reliable.
Standing Judged(bool broken, const judge::Verdict verdict) {
  if (broken) return Standing::kFailed;
  const bool relied = verdict == judge::Verdict::kPassed || verdict == judge::Verdict::kFailed;
  return relied ? Standing::kPassed : StandingOf(verdict);
}

Judgement JudgementOf(const judge::JudgedLimit& limit, const judge::JudgedElement& element) {
  const auto unit = VisibleText(limit.unit);
  Judgement judgement;
  judgement.standard = StandardText(limit.standard, limit.description);
  judgement.bounds = BoundsText(limit, unit);
  judgement.word = ReasonNotJudged(limit, element);
  if (!judgement.word.empty()) {
    judgement.standing =
        StandingOf(element) == Standing::kNotApplicable ? Standing::kNotApplicable : Standing::kOpen;
    return judgement;
  }
  judgement.standing = Judged(limit.Broken(), element.verdict);
  judgement.word = LimitWord(limit.verdict);
  AddBar(judgement, limit.low, limit.high, *limit.value, unit);
  return judgement;
}

Judgement JudgementOf(const document::RecordedLimit& limit, const document::RecordedTest& test) {
  const auto unit = VisibleText(limit.unit);
  const auto verdict = VerdictThen(limit, test);
  Judgement judgement;
  judgement.standard = StandardText(limit.standard, limit.description);
  judgement.bounds = BoundsText(VisibleText(limit.low), VisibleText(limit.high), unit);
  judgement.word = LimitWord(verdict);
  judgement.standing = verdict == judge::LimitVerdict::kNotApplied ? Standing::kOpen
                       : verdict != judge::LimitVerdict::kWithin   ? Standing::kFailed
                       : test.doubts.empty()                       ? Standing::kPassed
                                                                   : Standing::kDoubtful;
  // A percentage was of a nominal value that is not recorded.
  const auto low = FiniteNumber(limit.low), high = FiniteNumber(limit.high);
  const auto value = test.recorded ? FiniteNumber(test.recorded->value) : std::nullopt;
  const bool numbers = (low || limit.low.empty()) && (high || limit.high.empty());
  const bool overload = test.recorded && test.recorded->flags.find('O') != std::string::npos;
  if (value && numbers && !overload && test.recorded->unit == limit.unit)
    AddBar(judgement, low, high, *value, unit);
  return judgement;
}

}  // namespace

std::vector<Judgement> JudgementsOf(const judge::JudgedElement& element) {
  std::vector<Judgement> judgements;
  for (const auto& limit : element.limits)
    if (limit.selected) judgements.push_back(JudgementOf(limit, element));
  return judgements;
}

std::vector<Judgement> JudgementsOf(const document::RecordedTest& test) {
  std::vector<Judgement> judgements;
  for (const auto& limit : test.judged) judgements.push_back(JudgementOf(limit, test));
  return judgements;
}

}  // namespace host::report::parts

#include "tests/system/history/Oracle.h"

#include <algorithm>

#include "tests/system/history/RunWatch.h"
#include "tests/system/history/Tests.h"

namespace history {
namespace {

const std::string kFailed = "failed", kDoubtful = "doubtful", kAborted = "aborted", kNotTested = "not tested",
                  kNotJudged = "not judged", kRecorded = "recorded", kNotApplicable = "not applicable",
                  kPassed = "passed";

constexpr int kMostLeads = 500;     // mOhm
constexpr int kSpreadOfLeads = 20;  // mOhm

bool LeadsAreDoubtful(const Record& record) {
  if (record.leads < 0 || record.leads > kMostLeads) return true;
  const auto milliohms = record.read->In("mOhm");
  return milliohms && *milliohms >= Decimal(0) &&
         Decimal(record.leads) - *milliohms > Decimal(kSpreadOfLeads);
}

/// The number that the plug-in may have parsed from a line that looks like a reading; none if it could be
/// any.
std::optional<Decimal> NumberIn(const std::string& line) {
  std::size_t place = 0;
  for (int field = 0; field < 3 && place != std::string::npos; ++field) {
    place = line.find(',', place);
    if (place != std::string::npos) ++place;
  }
  if (place == std::string::npos) return {};
  return Decimal::Parsed(line.substr(place, line.find(',', place) - place));
}

}  // namespace

const Record* Oracle::RecordOf(int element) const {
  const auto found = document_.records.find(element);
  return found == document_.records.end() ? nullptr : &found->second;
}

bool Oracle::StillHolds(const Element& element, const Record& record) const {
  return record.finished && record.equipment == document_.plan.equipment && record.testId == element.testId &&
         record.options == MeasuringPart(element.options);
}

Verdicts Oracle::Allowed(const Element& element, const Said& said) const {
  const auto* record = RecordOf(element.id);
  if (!record) return {kNotTested};
  auto allowed = ByRecord(element, *record, said);
  if (record->resultChanges == 1 && !allowed.contains(kAborted)) allowed = {kNotTested};
  const bool inDoubt = InDoubt(*record, document_);
  if (record->resultChanges > 0 || inDoubt) allowed.insert(kNotTested);
  if (record->resultChanges > 1 || inDoubt) allowed.insert(kDoubtful);
  if (inDoubt) {
    // The last record may be hidden.
    if (FailedBefore(element)) allowed.insert(kFailed);
    for (const auto& done : {kPassed, kRecorded, kNotApplicable}) allowed.erase(done);
  }
  return allowed;
}

Verdicts Oracle::ByRecord(const Element& element, const Record& record, const Said& said) const {
  if (!record.finished && record.interrupted) return {kNotTested, kAborted};
  if (!StillHolds(element, record) || record.how == Record::How::kSkipped) return {kNotTested};
  if (record.how == Record::How::kAborted) return {kAborted};
  if (element.group && OlderThanAChild(element, record)) return {kNotTested};
  if (record.how == Record::How::kNotApplicable) {
    // All were set aside at once, so none is older; a test that then was in another group may be.
    if (HasMovedIn(element, record)) return {kNotApplicable, kNotTested};
    return {kNotApplicable};
  }
  auto allowed = element.group ? OfGroup(element, record, said) : OfTest(element, record);
  if (record.interrupted) allowed.insert(kNotTested);
  if (element.group && record.anyResult == Maybe::kNo) allowed = {kNotTested};
  if (element.group && record.anyResult == Maybe::kUnknown) allowed.insert(kNotTested);
  return allowed;
}

Verdicts Oracle::OfTest(const Element& element, const Record& record) const {
  Verdicts allowed;
  const bool usual = !record.read || record.read->unit == UsualUnit(element.testId);
  const auto foreign = [](const Limit& limit) { return limit.foreign; };
  const bool own = std::none_of(record.limits.begin(), record.limits.end(), foreign) &&
                   std::none_of(element.limits.begin(), element.limits.end(), foreign);
  const bool exact = own && usual && !record.spoiled && !record.doubtful && !record.interrupted;
  if (!record.doubtful) allowed.insert(Exactly(element, record));
  if (exact) return allowed;
  allowed.insert(kDoubtful);
  if (record.spoiled || record.doubtful || record.interrupted) allowed.insert(kNotTested);
  // A false reading is a reading too, but cannot make anything pass.
  if (record.spoiled && !record.doubtful && element.limits.empty())
    allowed.insert(element.recordOnly ? kRecorded : kNotJudged);
  if (record.interrupted) allowed.insert(kAborted);
  if (CouldHaveFailed(element, record)) allowed.insert(kFailed);
  return allowed;
}

std::string Oracle::Exactly(const Element& element, const Record& record) const {
  if (!record.read) {
    if (record.refusedNow) return kDoubtful;
    if (!record.lacked) return kNotTested;
    return element.limits.empty() && record.plausible ? kNotApplicable : kDoubtful;
  }
  const auto value = Corrected(*record.read, element.testId, record.leads);
  if (record.failed == Maybe::kYes) return kFailed;
  bool broken = false, comparable = value.In(KindOf(element.testId).unit).has_value();
  for (const auto& limit : element.limits) {
    broken = broken || limit.BrokenBy(value).value_or(false);
    comparable = comparable && limit.BrokenBy(value).has_value();
  }
  if (broken && !record.overload) return kFailed;
  if (record.overload || !record.plausible || !comparable) return kDoubtful;
  if (record.read->number < Decimal(0)) return kDoubtful;
  if (KindOf(element.testId).lessLeads && LeadsAreDoubtful(record)) return kDoubtful;
  if (!element.limits.empty()) return kPassed;
  return element.recordOnly ? kRecorded : kNotJudged;
}

/// Whether any reply of the tester exceeds a present or former limit, even as a bare number.
bool Oracle::CouldHaveFailed(const Element& element, const Record& record) const {
  auto limits = record.limits;
  limits.insert(limits.end(), element.limits.begin(), element.limits.end());
  for (const auto& line : record.said) {
    const auto number = NumberIn(line);
    if (!number) {
      if (!limits.empty()) return true;
      continue;
    }
    for (const auto& limit : limits) {
      for (const int power : {0, 3, -3}) {
        // Compared regardless of the limit's unit, with or without the leads.
        const auto bare = number->TimesPowerOfTen(power);
        const auto less = std::max(bare - Decimal(record.leads), Decimal(0));
        if ((limit.low && bare < *limit.low) || (limit.high && bare > *limit.high)) return true;
        if (BreaksByNumber(limit, bare, element.testId) || BreaksByNumber(limit, less, element.testId))
          return true;
      }
      if (record.read &&
          limit.BrokenBy(Corrected(*record.read, element.testId, record.leads)).value_or(false))
        return true;
    }
  }
  return false;
}

bool Oracle::FailedBefore(const Element& element) const {
  const auto past = document_.past.find(element.id);
  return past != document_.past.end() &&
         std::any_of(past->second.begin(), past->second.end(), [&](const Record& record) {
           return record.failed != Maybe::kNo || CouldHaveFailed(element, record);
         });
}

bool Oracle::HasMovedIn(const Element& group, const Record& record) const {
  return std::any_of(group.children.begin(), group.children.end(), [&](const Element& child) {
    const auto* below = RecordOf(child.id);
    return below && below->run == record.run && below->parent != group.id;
  });
}

bool Oracle::OlderThanAChild(const Element& group, const Record& record) const {
  return std::any_of(group.children.begin(), group.children.end(), [&](const Element& child) {
    const auto* below = RecordOf(child.id);
    return below && (below->run != record.run || below->LastAt() > record.finishedAt);
  });
}

Oracle::Summary Oracle::ValueOf(const Element& element) const {
  Summary value;
  const auto* record = RecordOf(element.id);
  if (!record || !StillHolds(element, *record) || record->how != Record::How::kTester) return value;
  if (record->resultChanges > 0 || InDoubt(*record, document_) || record->interrupted) value.known = false;
  if (element.group) return OlderThanAChild(element, *record) ? value : SummaryOf(element);
  if (record->spoiled || record->doubtful) value.known = false;
  if (!record->read) return value;
  if (record->read->unit != UsualUnit(element.testId)) value.known = false;
  value.amount = Corrected(*record->read, element.testId, record->leads);
  return value;
}

Oracle::Summary Oracle::SummaryOf(const Element& group) const {
  Summary summary;
  const bool highest = group.filter == "Maximum value", lowest = group.filter == "Minimum value";
  if (!highest && !lowest) return summary;
  for (const auto& child : group.children) {
    const auto value = ValueOf(child);
    summary.known = summary.known && value.known;
    summary.mixed = summary.mixed || value.mixed;
    if (!value.amount) continue;
    if (!summary.amount) {
      summary.amount = value.amount;
      continue;
    }
    const auto number = value.amount->In(summary.amount->unit);
    if (!number)
      summary.mixed = true;
    else if (highest ? *number > summary.amount->number : *number < summary.amount->number)
      summary.amount->number = *number;
  }
  return summary;
}

Verdicts Oracle::OfGroup(const Element& group, const Record& record, const Said& said) const {
  std::string worst = kNotTested;
  for (const auto& verdict :
       {kNotApplicable, kRecorded, kPassed, kNotJudged, kNotTested, kAborted, kDoubtful, kFailed})
    for (const auto& child : group.children)
      if (said(child.id) == verdict) worst = verdict;
  if (worst == kAborted) worst = kNotTested;
  const bool done = worst == kPassed || worst == kRecorded || worst == kNotApplicable;
  const auto summary = SummaryOf(group);

  if (record.failed == Maybe::kYes) return {kFailed};
  bool broken = false, comparable = true;
  for (const auto& limit : group.limits) {
    const auto breaks = summary.amount ? limit.BrokenBy(*summary.amount) : std::optional<bool>();
    broken = broken || breaks.value_or(false);
    comparable = comparable && (!summary.amount || breaks);
  }
  const auto number = summary.amount ? std::optional(summary.amount->number) : std::nullopt;
  const bool foreign =
      std::any_of(group.limits.begin(), group.limits.end(), [](const Limit& limit) { return limit.foreign; });
  const bool asThen =
      !foreign && record.summaryKnown && summary.known && !summary.mixed && number == record.summary;
  const bool sure = asThen && record.failed == Maybe::kNo && !record.interrupted;
  if (sure && broken) return {kFailed};
  if (!done) {
    if (sure) return {worst};
    return {worst, kNotTested, kFailed};
  }
  Verdicts allowed;
  if (group.limits.empty())
    allowed = {worst};
  else if (!summary.amount)
    allowed = {kNotJudged};
  else
    allowed = {broken ? kFailed : comparable && !summary.mixed ? kPassed : kDoubtful};
  if (!sure) {
    allowed.insert({kDoubtful, kNotTested});
    if (broken || record.failed == Maybe::kUnknown) allowed.insert(kFailed);
    if (!asThen && !group.limits.empty() && summary.known && record.summaryKnown) allowed.erase(kPassed);
  }
  return allowed;
}

}  // namespace history

#include "host/judge/JudgeGroup.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string>

#include "OrvikTypeLib/Codes.h"
#include "host/base/Text.h"
#include "host/judge/JudgeTest.h"
#include "host/judge/Limits.h"
#include "host/judge/Reading.h"
#include "host/standards/Units.h"

namespace host::judge {
namespace {

/// The value that the filter selects from the children's readings, in the unit of the first reading. None
/// when the filter gives no value, or no child has one.
Reading SummaryOf(const CaseElement& element, const std::vector<Child>& children) {
  Reading summary;
  if (element.filter == Filter::kNoValue) return summary;
  for (const auto& child : children) {
    const auto& reading = child.judged->value;
    if (!reading) continue;
    if (!summary.value) summary.unit = child.judged->unit;
    const auto value = standards::InUnit(*reading, child.judged->unit, summary.unit);
    if (!value) {
      summary.doubts.push_back({"units-of-children", {child.judged->unit, summary.unit}});
      return summary;
    }
    const bool further = element.filter == Filter::kMaximum ? value > summary.value : value < summary.value;
    if (!summary.value || further) summary.value = value;
  }
  return summary;
}

/// Gives the group the worst verdict of its children.
void FollowChildren(const std::vector<Child>& children, JudgedElement& judged) {
  constexpr std::array kWorstFirst{Verdict::kFailed,    Verdict::kDoubtful,     Verdict::kAborted,
                                   Verdict::kNotTested, Verdict::kNotJudged,    Verdict::kPassed,
                                   Verdict::kRecorded,  Verdict::kNotApplicable};
  if (children.empty()) judged.reasons.push_back({"no-children", {}});
  for (const auto verdict : kWorstFirst) {
    const auto found = std::find_if(children.begin(), children.end(), [verdict](const Child& child) {
      return child.judged->verdict == verdict;
    });
    if (found == children.end()) continue;
    // An aborted child leaves the group without a result, not aborted.
    judged.verdict = verdict == Verdict::kAborted ? Verdict::kNotTested : verdict;
    if (!IsDone(verdict))
      judged.reasons.push_back({"child", {std::to_string(found->judged->id), VerdictText(verdict)}});
    return;
  }
}

void JudgeSummary(const CaseElement& element, const LastRecord& last, const std::vector<Child>& children,
                  std::vector<document::Reason> doubts, JudgedElement& judged) {
  const auto summary = SummaryOf(element, children);
  doubts.insert(doubts.end(), summary.doubts.begin(), summary.doubts.end());
  judged.value = summary.value;
  judged.unit = summary.unit;
  const auto recorded = last.test->recorded ? FiniteNumber(last.test->recorded->value) : std::nullopt;
  // The plug-in has no unit for a group: it compares the bare numbers.
  const bool same = summary.value.has_value() == recorded.has_value() &&
                    (!recorded || SameNumber(*summary.value, *recorded));
  const bool anyLimit = std::any_of(judged.limits.begin(), judged.limits.end(),
                                    [](const JudgedLimit& limit) { return limit.selected; });
  LimitFindings findings;
  if (summary.value)
    findings = PutToLimits(element, {summary.value, summary.unit, recorded, false}, judged.limits);
  if (!same && anyLimit && summary.doubts.empty())
    doubts.push_back({"summary-differs",
                      {summary.value ? NumberText(*summary.value, summary.unit) : "-",
                       recorded ? NumberText(*recorded) : "-"}});
  doubts.insert(doubts.end(), findings.doubts.begin(), findings.doubts.end());
  judged.judged = findings.judged;

  FollowChildren(children, judged);
  if (last.test->status == orvik::ResultStatus::kFailed && judged.verdict != Verdict::kFailed &&
      findings.broke.empty())
    judged.reasons.insert(judged.reasons.begin(), {"failed-by-plug-in", {}});
  judged.reasons.insert(judged.reasons.begin(), findings.broke.begin(), findings.broke.end());
  if (last.test->status == orvik::ResultStatus::kFailed || findings.broken) judged.verdict = Verdict::kFailed;
  if (IsDone(judged.verdict) && !doubts.empty()) judged.verdict = Verdict::kDoubtful;
  if (IsDone(judged.verdict) && findings.judged) judged.verdict = Verdict::kPassed;
  if (IsDone(judged.verdict) && anyLimit && !findings.judged) {
    judged.verdict = Verdict::kNotJudged;
    judged.reasons.push_back({"group-without-value", {}});
  }
  std::move(doubts.begin(), doubts.end(), std::back_inserter(judged.reasons));
}

}  // namespace

std::optional<document::Reason> OlderThanChildren(const LastRecord& group,
                                                  const std::vector<Child>& children) {
  for (const auto& child : children)
    if (child.last.run && (child.last.run != group.run || child.last.step > group.step))
      return document::Reason{"older-than-child",
                              {std::to_string(child.judged->id), std::to_string(child.last.run->number)}};
  return {};
}

void JudgeGroup(const CaseElement& element, const LastRecord& last, const std::vector<Child>& children,
                JudgedElement& judged) {
  auto doubts = RecordDoubts(element, last);
  if (last.test->status == orvik::ResultStatus::kNotApplicable &&
      last.test->by == document::RecordedTest::By::kOperator) {
    judged.verdict = doubts.empty() ? Verdict::kNotApplicable : Verdict::kDoubtful;
    if (doubts.empty()) judged.reasons = {{"set-aside-by-operator", {judged.by}}};
  } else if (last.test->status == orvik::ResultStatus::kNotTested) {
    judged.verdict = Verdict::kNotTested;
    judged.reasons = {{last.test->by == document::RecordedTest::By::kOperator ? "skipped" : "no-result", {}}};
  } else {
    return JudgeSummary(element, last, children, std::move(doubts), judged);
  }
  std::move(doubts.begin(), doubts.end(), std::back_inserter(judged.reasons));
}

}  // namespace host::judge

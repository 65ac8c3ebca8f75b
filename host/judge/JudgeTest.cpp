#include "host/judge/JudgeTest.h"

#include <algorithm>
#include <iterator>

#include "OrvikTypeLib/Codes.h"
#include "host/base/Text.h"
#include "host/judge/Limits.h"
#include "host/judge/Reading.h"

namespace host::judge {
namespace {

bool HasSelectedLimit(const JudgedElement& judged) {
  return std::any_of(judged.limits.begin(), judged.limits.end(),
                     [](const JudgedLimit& limit) { return limit.selected; });
}

void JudgeNotApplicable(const document::RecordedTest& test, std::vector<document::Reason> doubts,
                        JudgedElement& judged) {
  const bool byOperator = test.by == document::RecordedTest::By::kOperator;
  // That the tester lacks the test does not clear the equipment.
  if (!byOperator && HasSelectedLimit(judged)) doubts.insert(doubts.begin(), {"refused-with-limits", {}});
  judged.verdict = doubts.empty() ? Verdict::kNotApplicable : Verdict::kDoubtful;
  judged.reasons = std::move(doubts);
  if (!judged.reasons.empty()) return;
  judged.reasons.push_back(byOperator ? document::Reason{"set-aside-by-operator", {judged.by}}
                                      : document::Reason{"refused-by-tester", {}});
}

/// Why no limit judged the reading.
document::Reason WhyNotJudged(const JudgedElement& judged) {
  return judged.limits.empty() ? document::Reason{"no-limit", {}} : document::Reason{"limits-left-out", {}};
}

void JudgeReading(const CaseElement& element, const LastRecord& last, std::vector<document::Reason> doubts,
                  JudgedElement& judged) {
  auto reading = ReadingOf(element, *last.test, judged.tester ? &*judged.tester : nullptr);
  for (auto& doubt : reading.doubts) AddOnce(doubts, std::move(doubt));
  judged.value = reading.value;
  judged.unit = reading.unit;

  Judged put{reading.value, reading.unit, {}, false};
  bool differs = false;
  if (const auto& recorded = last.test->recorded) {
    put.recorded = FiniteNumber(recorded->value);
    put.overload = recorded->flags.find('O') != std::string::npos;
    differs = reading.value &&
              !(put.recorded && recorded->unit == reading.unit && SameNumber(*put.recorded, *reading.value));
    if (put.overload) AddOnce(doubts, {"overload", {}});
    if (differs)
      doubts.push_back({"arithmetic-differs",
                        {NumberText(*reading.value, reading.unit), recorded->value + " " + recorded->unit}});
  }
  auto findings = PutToLimits(element, put, judged.limits);
  judged.judged = findings.judged;
  std::move(findings.doubts.begin(), findings.doubts.end(), std::back_inserter(doubts));

  judged.reasons = std::move(findings.broke);
  const bool failed = last.test->status == orvik::ResultStatus::kFailed || (findings.broken && !differs);
  // For an overload the reason is there already; its number is only the end of the range.
  if (last.test->status == orvik::ResultStatus::kFailed && judged.reasons.empty() && !put.overload)
    judged.reasons.push_back({"failed-by-plug-in", {}});
  if (failed)
    judged.verdict = Verdict::kFailed;
  else if (!doubts.empty())
    judged.verdict = Verdict::kDoubtful;
  else if (judged.judged)
    judged.verdict = Verdict::kPassed;
  else
    judged.verdict = element.recordOnly ? Verdict::kRecorded : Verdict::kNotJudged;
  std::move(doubts.begin(), doubts.end(), std::back_inserter(judged.reasons));
  if (judged.verdict == Verdict::kNotJudged) judged.reasons.push_back(WhyNotJudged(judged));
}

}  // namespace

void AddOnce(std::vector<document::Reason>& reasons, document::Reason reason) {
  const bool known = std::any_of(reasons.begin(), reasons.end(),
                                 [&](const document::Reason& other) { return other.code == reason.code; });
  if (!known) reasons.push_back(std::move(reason));
}

std::vector<document::Reason> RecordDoubts(const CaseElement& element, const LastRecord& last) {
  auto doubts = last.test->doubts;
  if (last.changed) doubts.push_back({"record-changed", {std::to_string(last.run->number)}});
  if (!element.fault.empty()) doubts.push_back({"unknown-test", {element.fault}});
  const auto& code = element.result ? element.result->serviceCode : std::string();
  if (!code.empty() && code != orvik::ServiceCode::Of(last.test->status))
    doubts.push_back({"service-code", {code, StatusText(last.test->status)}});
  return doubts;
}

void JudgeTest(const CaseElement& element, const LastRecord& last, JudgedElement& judged) {
  const auto& test = *last.test;
  auto doubts = RecordDoubts(element, last);
  switch (test.status) {
    case orvik::ResultStatus::kPassed:
    case orvik::ResultStatus::kFailed:
      return JudgeReading(element, last, std::move(doubts), judged);
    case orvik::ResultStatus::kNotApplicable:
      return JudgeNotApplicable(test, std::move(doubts), judged);
    case orvik::ResultStatus::kAborted:
      judged.verdict = Verdict::kAborted;
      judged.reasons = {{"aborted", {judged.by}}};
      break;
    default:
      judged.verdict = Verdict::kNotTested;
      judged.reasons = {{test.by == document::RecordedTest::By::kOperator ? "skipped" : "no-result", {}}};
  }
  std::move(doubts.begin(), doubts.end(), std::back_inserter(judged.reasons));
}

}  // namespace host::judge

#include "host/report/RunOutcome.h"

#include <algorithm>
#include <array>
#include <map>
#include <set>

#include "OrvikTypeLib/Codes.h"
#include "host/base/Text.h"
#include "host/base/Tr.h"

namespace host::report {

namespace {

using judge::LimitVerdict;

constexpr std::array kWorstFirst{judge::Verdict::kFailed,    judge::Verdict::kDoubtful,
                                 judge::Verdict::kAborted,   judge::Verdict::kNotTested,
                                 judge::Verdict::kNotJudged, judge::Verdict::kPassed,
                                 judge::Verdict::kRecorded,  judge::Verdict::kNotApplicable};

/// "1, 3-7"
std::string NumbersText(const std::set<std::int32_t>& numbers) {
  std::string text;
  for (auto number = numbers.begin(); number != numbers.end();) {
    const auto first = *number;
    auto last = first;
    while (++number != numbers.end() && *number == last + 1) ++last;
    text += (text.empty() ? "" : ", ") + std::to_string(first);
    if (last > first) text += (last == first + 1 ? ", " : "-") + std::to_string(last);
  }
  return text;
}

}  // namespace

RunOutcomes::RunOutcomes(const judge::JudgedDocument& now) {
  for (const auto& element : now.elements) {
    if (element.group) groups_.insert(element.id);
    children_[element.parent].push_back(element.id);
  }
}

RunOutcome RunOutcomes::Of(const document::RunRecord& run) const {
  RunOutcome outcome;
  Verdicts verdicts;
  std::set<std::int32_t> open;
  for (const auto& step : run.steps) {
    if (const auto* takes = std::get_if<document::RecordedTakes>(&step)) {
      open.insert(takes->elements.begin(), takes->elements.end());
      continue;
    }
    const auto& test = std::get<document::RecordedTest>(step);
    open.erase(test.element);
    outcome.tests.push_back({&test, VerdictThen(test, verdicts)});
    verdicts[test.element] = outcome.tests.back().verdict;
  }
  outcome.unfinished.assign(open.begin(), open.end());
  return outcome;
}

judge::Verdict RunOutcomes::VerdictThen(const document::RecordedTest& test, const Verdicts& before) const {
  switch (test.status) {
    case orvik::ResultStatus::kFailed:
      return judge::Verdict::kFailed;
    case orvik::ResultStatus::kAborted:
      return judge::Verdict::kAborted;
    case orvik::ResultStatus::kNotTested:
      return judge::Verdict::kNotTested;
    default:
      break;
  }
  if (!test.doubts.empty()) return judge::Verdict::kDoubtful;
  if (test.status == orvik::ResultStatus::kNotApplicable) return judge::Verdict::kNotApplicable;
  if (std::any_of(test.judged.begin(), test.judged.end(), [](const document::RecordedLimit& limit) {
        return limit.status == orvik::Judgement::kWithinLimits;
      }))
    return judge::Verdict::kPassed;
  // A group without a limit of its own is what its children are.
  const auto children = children_.find(test.element);
  if (!groups_.contains(test.element) || children == children_.end()) return judge::Verdict::kNotJudged;
  for (const auto verdict : kWorstFirst)
    for (const auto child : children->second)
      if (const auto known = before.find(child); known != before.end() && known->second == verdict)
        return verdict;
  return judge::Verdict::kNotJudged;
}

std::string RunOutcomes::TextOf(const RunOutcome& outcome) const {
  std::unordered_map<std::int32_t, judge::Verdict> last;
  for (const auto& [test, verdict] : outcome.tests) last[test->element] = verdict;
  for (const auto id : outcome.unfinished) last.erase(id);
  const auto toldByChild = [&](std::int32_t id, judge::Verdict verdict) {
    const auto children = children_.find(id);
    return groups_.contains(id) && children != children_.end() &&
           std::any_of(children->second.begin(), children->second.end(), [&](std::int32_t child) {
             const auto found = last.find(child);
             return found != last.end() && found->second == verdict;
           });
  };
  std::string text;
  const auto add = [&text](const std::string& word, const std::set<std::int32_t>& numbers) {
    if (!numbers.empty()) text += (text.empty() ? "" : "; ") + Tr("%%1: %%2", {word, NumbersText(numbers)});
  };
  for (const auto verdict : kWorstFirst) {
    std::set<std::int32_t> numbers;
    for (const auto& [id, is] : last)
      if (is == verdict && !toldByChild(id, verdict)) numbers.insert(id);
    add(Tr(judge::VerdictText(verdict)), numbers);
  }
  add(Tr("not finished"), {outcome.unfinished.begin(), outcome.unfinished.end()});
  return text;
}

LimitVerdict VerdictThen(const document::RecordedLimit& limit, const document::RecordedTest& test) {
  if (limit.status == orvik::Judgement::kWithinLimits) return LimitVerdict::kWithin;
  if (limit.status != orvik::Judgement::kLimitExceeded) return LimitVerdict::kNotApplied;
  const auto value = test.recorded ? FiniteNumber(test.recorded->value) : std::nullopt;
  const auto low = FiniteNumber(limit.low);
  const bool below = value && low && static_cast<float>(*value) < static_cast<float>(*low);
  return below ? LimitVerdict::kBelow : LimitVerdict::kExceeded;
}

std::string LimitWord(LimitVerdict verdict) {
  switch (verdict) {
    case LimitVerdict::kWithin:
      return Tr("within limit");
    case LimitVerdict::kBelow:
      return Tr("below limit");
    case LimitVerdict::kExceeded:
      return Tr("exceeded");
    case LimitVerdict::kNotApplied:
    case LimitVerdict::kNotComparable:
      break;
  }
  return Tr("not judged");
}

std::string EndWord(const document::RunRecord& run) {
  switch (run.end) {
    case document::RunRecord::End::kFinished:
      return Tr("finished");
    case document::RunRecord::End::kStopped:
      return Tr("stopped");
    case document::RunRecord::End::kAborted:
      return Tr("aborted");
    case document::RunRecord::End::kLost:
      return Tr("tester lost");
    case document::RunRecord::End::kNone:
      break;
  }
  return Tr("interrupted");
}

RunProgressCount CountOf(const document::RunRecord& run) {
  std::map<std::int32_t, bool> done;
  for (const auto& step : run.steps) {
    if (const auto* takes = std::get_if<document::RecordedTakes>(&step)) {
      for (const auto id : takes->elements) done[id] = false;
    } else {
      const auto& test = std::get<document::RecordedTest>(step);
      done[test.element] =
          test.status >= orvik::ResultStatus::kPassed && test.status <= orvik::ResultStatus::kNotApplicable;
    }
  }
  RunProgressCount count;
  count.taken = done.size();
  for (const auto& [id, finished] : done) count.finished += finished ? 1 : 0;
  return count;
}

}  // namespace host::report

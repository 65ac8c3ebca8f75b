#include "host/judge/Verdict.h"

#include <algorithm>

#include "OrvikTypeLib/Codes.h"
#include "host/base/Tr.h"

namespace bench::judge {

std::string VerdictText(Verdict verdict) {
  switch (verdict) {
    case Verdict::kFailed:
      return Marked("failed");
    case Verdict::kDoubtful:
      return Marked("doubtful");
    case Verdict::kAborted:
      return Marked("aborted");
    case Verdict::kNotTested:
      return Marked("not tested");
    case Verdict::kNotJudged:
      return Marked("not judged");
    case Verdict::kRecorded:
      return Marked("recorded");
    case Verdict::kNotApplicable:
      return Marked("not applicable");
    case Verdict::kPassed:
      break;
  }
  return Marked("passed");
}

std::string OutcomeText(Outcome outcome) {
  switch (outcome) {
    case Outcome::kPassed:
      return Marked("passed");
    case Outcome::kFailed:
      return Marked("failed");
    case Outcome::kIncomplete:
      break;
  }
  return Marked("incomplete");
}

std::string StatusText(std::int32_t status) {
  switch (status) {
    case orvik::ResultStatus::kNotTested:
      return Marked("not tested");
    case orvik::ResultStatus::kPassed:
      return Marked("passed");
    case orvik::ResultStatus::kFailed:
      return Marked("failed");
    case orvik::ResultStatus::kNotApplicable:
      return Marked("not applicable");
    case orvik::ResultStatus::kAborted:
      return Marked("aborted");
    default:
      return "unknown status " + std::to_string(status);
  }
}

std::string LimitVerdictText(LimitVerdict verdict) {
  switch (verdict) {
    case LimitVerdict::kWithin:
      return Marked("passed");
    case LimitVerdict::kBelow:
    case LimitVerdict::kExceeded:
      return Marked("failed");
    case LimitVerdict::kNotApplied:
    case LimitVerdict::kNotComparable:
      break;
  }
  return Marked("not judged");
}

std::vector<std::string> JudgedElement::FailedStandards() const {
  std::vector<std::string> names;
  for (const auto& limit : limits) {
    if (!limit.selected || !limit.Broken()) continue;
    if (std::find(names.begin(), names.end(), limit.standard) == names.end()) names.push_back(limit.standard);
  }
  return names;
}

const JudgedElement* JudgedDocument::Find(std::int32_t id) const {
  const auto found = std::find_if(elements.begin(), elements.end(),
                                  [id](const JudgedElement& element) { return element.id == id; });
  return found == elements.end() ? nullptr : &*found;
}

Outcome OutcomeOf(const std::vector<JudgedElement>& elements) {
  bool done = true, passed = false;
  for (const auto& element : elements) {
    if (element.verdict == Verdict::kFailed) return Outcome::kFailed;
    done = done && IsDone(element.verdict);
    passed = passed || element.verdict == Verdict::kPassed;
  }
  return done && passed ? Outcome::kPassed : Outcome::kIncomplete;
}

}  // namespace bench::judge

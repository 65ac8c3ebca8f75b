#include "host/judge/Verdict.h"

#include <algorithm>
#include <array>

#include "OrvikTypeLib/Codes.h"
#include "host/base/Tr.h"

namespace host::judge {

namespace {

// Each in the order of its enumeration.
constexpr std::array kVerdicts{TrNoop("failed"),         TrNoop("doubtful"),   TrNoop("aborted"),
                               TrNoop("not tested"),     TrNoop("not judged"), TrNoop("recorded"),
                               TrNoop("not applicable"), TrNoop("passed")};
constexpr std::array kOutcomes{TrNoop("passed"), TrNoop("failed"), TrNoop("incomplete")};
constexpr std::array kStatuses{TrNoop("not tested"), TrNoop("passed"), TrNoop("failed"),
                               TrNoop("not applicable"), TrNoop("aborted")};
constexpr std::array kLimitVerdicts{TrNoop("not judged"), TrNoop("passed"), TrNoop("failed"),
                                    TrNoop("failed"), TrNoop("not judged")};
static_assert(kVerdicts.size() == static_cast<std::size_t>(Verdict::kPassed) + 1);
static_assert(kOutcomes.size() == static_cast<std::size_t>(Outcome::kIncomplete) + 1);
static_assert(kStatuses.size() == static_cast<std::size_t>(orvik::ResultStatus::kAborted) + 1);
static_assert(kLimitVerdicts.size() == static_cast<std::size_t>(LimitVerdict::kNotComparable) + 1);

}  // namespace

std::string VerdictText(Verdict verdict) { return kVerdicts.at(static_cast<std::size_t>(verdict)); }

std::string OutcomeText(Outcome outcome) { return kOutcomes.at(static_cast<std::size_t>(outcome)); }

std::string LimitVerdictText(LimitVerdict verdict) {
  return kLimitVerdicts.at(static_cast<std::size_t>(verdict));
}

std::string StatusText(std::int32_t status) {
  const auto place = static_cast<std::size_t>(status);
  return status >= 0 && place < kStatuses.size() ? kStatuses[place]
                                                 : "unknown status " + std::to_string(status);
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

}  // namespace host::judge

#include <algorithm>
#include <array>
#include <map>

#include "host/base/Tr.h"
#include "host/report/ReportParts.h"

namespace host::report::parts {
namespace {

using judge::JudgedElement;
using judge::Verdict;

constexpr std::size_t kKinds = 8;

constexpr std::size_t Place(Verdict verdict) { return static_cast<std::size_t>(verdict); }

/// How many tests there are of each kind. A sequence counts only where none of its children says the same.
std::array<int, kKinds> Counts(const std::vector<JudgedElement>& elements) {
  std::array<int, kKinds> counts{};
  std::map<std::int32_t, std::array<bool, kKinds>> below;  // by the identifier of the sequence
  // From the end: children come after their parents.
  for (auto element = elements.rbegin(); element != elements.rend(); ++element) {
    const auto kind = Place(element->verdict);
    const bool done = judge::IsDone(element->verdict);
    auto kinds = below[element->id];
    if (!element->group || (!done && !kinds[kind])) ++counts[kind];
    kinds[kind] = kinds[kind] || !element->group || !done;
    auto& above = below[element->parent];
    for (std::size_t i = 0; i < kKinds; ++i) above[i] = above[i] || kinds[i];
  }
  return counts;
}

struct Kind {
  report::Standing standing;
  const char* count;
};

/// What reports show for a verdict.
const Kind& KindOf(Verdict verdict) {
  static const std::map<Verdict, Kind> kKindOf{
      {Verdict::kFailed, {report::Standing::kFailed, TrNoop("%%1 failed")}},
      {Verdict::kNotTested, {report::Standing::kNotTested, TrNoop("%%1 not tested")}},
      {Verdict::kAborted, {report::Standing::kAborted, TrNoop("%%1 aborted")}},
      {Verdict::kDoubtful, {report::Standing::kDoubtful, TrNoop("%%1 doubtful")}},
      {Verdict::kNotJudged, {report::Standing::kNotJudged, TrNoop("%%1 not judged")}},
      {Verdict::kRecorded, {report::Standing::kRecorded, TrNoop("%%1 recorded only")}},
      {Verdict::kNotApplicable, {report::Standing::kNotApplicable, TrNoop("%%1 not applicable")}},
      {Verdict::kPassed, {report::Standing::kPassed, TrNoop("%%1 passed")}}};
  return kKindOf.at(verdict);
}

std::string Piece(Verdict verdict, const std::string& count) { return Tr(KindOf(verdict).count, {count}); }

/// "2 of 6 failed, 1 not tested".
std::string Pieces(const std::array<int, kKinds>& counts, std::initializer_list<Verdict> verdicts) {
  int all = 0;
  for (const int count : counts) all += count;
  std::string text;
  for (const auto verdict : verdicts) {
    if (counts[Place(verdict)] == 0) continue;
    const auto count = std::to_string(counts[Place(verdict)]);
    text += text.empty() ? Piece(verdict, Tr("%%1 of %%2", {count, std::to_string(all)}))
                         : ", " + Piece(verdict, count);
  }
  return text;
}

constexpr std::initializer_list<Verdict> kEvery = {
    Verdict::kFailed,    Verdict::kNotTested, Verdict::kAborted,  Verdict::kDoubtful,
    Verdict::kNotJudged, Verdict::kPassed,    Verdict::kRecorded, Verdict::kNotApplicable};
constexpr std::initializer_list<Verdict> kOpen = {Verdict::kNotTested, Verdict::kAborted, Verdict::kDoubtful,
                                                  Verdict::kNotJudged};

}  // namespace

report::Standing StandingOf(Verdict verdict) { return KindOf(verdict).standing; }

report::Standing StandingOf(const JudgedElement& element) { return StandingOf(element.verdict); }

report::Standing StandingOf(judge::Outcome outcome) {
  switch (outcome) {
    case judge::Outcome::kPassed:
      return report::Standing::kPassed;
    case judge::Outcome::kFailed:
      return report::Standing::kFailed;
    case judge::Outcome::kIncomplete:
      break;
  }
  return report::Standing::kOpen;
}

report::Verdict VerdictOf(const std::vector<JudgedElement>& elements, judge::Outcome outcome) {
  report::Verdict verdict;
  verdict.standing = StandingOf(outcome);
  verdict.word = outcome == judge::Outcome::kPassed   ? Tr("Passed")
                 : outcome == judge::Outcome::kFailed ? Tr("Failed")
                                                      : Tr("Incomplete");
  if (elements.empty()) {
    verdict.sentence = Tr("The document has no tests.");
    return verdict;
  }
  verdict.sentence = Pieces(Counts(elements), kEvery);
  if (outcome == judge::Outcome::kIncomplete && OpenParts(elements).empty())
    verdict.sentence += "; " + Tr("nothing was judged by a limit");
  return verdict;
}

std::string OpenParts(const std::vector<JudgedElement>& elements) {
  if (elements.empty()) return Tr("The document has no tests.");
  return Pieces(Counts(elements), kOpen);
}

}  // namespace host::report::parts

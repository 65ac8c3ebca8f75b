#include <algorithm>
#include <array>
#include <map>

#include "host/app/report/ReportParts.h"
#include "host/services/Tr.h"

namespace bench::parts {
namespace {

enum Kind { kFailed, kNotTested, kAborted, kDoubtful, kPassed, kNotApplicable, kKinds };

Kind KindOf(const ElementSummary& element) {
  if (element.Failed()) return kFailed;
  if (element.CountsAsDone()) return element.status == 1 ? kPassed : kNotApplicable;
  if (element.status == 1 || element.status == 3) return kDoubtful;
  return element.status == 0 ? kNotTested : kAborted;
}

/// How many tests there are of each kind. A sequence counts only where none of its children says the same.
std::array<int, kKinds> Counts(const std::vector<ElementSummary>& elements) {
  std::array<int, kKinds> counts{};
  std::map<std::int32_t, std::array<bool, kKinds>> below;  // by the identifier of the sequence
  // From the end: children come after their parents.
  for (auto element = elements.rbegin(); element != elements.rend(); ++element) {
    const auto kind = KindOf(*element);
    const bool done = kind == kPassed || kind == kNotApplicable;
    auto kinds = below[element->id];
    if (!element->sequence || (!done && !kinds[kind])) ++counts[kind];
    kinds[kind] = kinds[kind] || !element->sequence || !done;
    auto& above = below[element->parent];
    for (std::size_t i = 0; i < kKinds; ++i) above[i] = above[i] || kinds[i];
  }
  return counts;
}

std::string Piece(Kind kind, const std::string& count) {
  switch (kind) {
    case kFailed:
      return Tr("%%1 failed", {count});
    case kNotTested:
      return Tr("%%1 not tested", {count});
    case kAborted:
      return Tr("%%1 aborted", {count});
    case kDoubtful:
      return Tr("%%1 doubtful", {count});
    case kNotApplicable:
      return Tr("%%1 not applicable", {count});
    default:
      return Tr("%%1 passed", {count});
  }
}

/// "2 of 6 failed, 1 not tested".
std::string Pieces(const std::array<int, kKinds>& counts, std::initializer_list<Kind> kinds) {
  int all = 0;
  for (const int count : counts) all += count;
  std::string text;
  for (const auto kind : kinds) {
    if (counts[kind] == 0) continue;
    const auto count = std::to_string(counts[kind]);
    text += text.empty() ? Piece(kind, Tr("%%1 of %%2", {count, std::to_string(all)}))
                         : ", " + Piece(kind, count);
  }
  return text;
}

}  // namespace

report::Standing StandingOf(const ElementSummary& element) {
  switch (KindOf(element)) {
    case kFailed:
      return report::Standing::kFailed;
    case kPassed:
      return report::Standing::kPassed;
    case kNotApplicable:
      return report::Standing::kNotApplicable;
    default:
      return report::Standing::kOpen;
  }
}

report::Standing StandingOf(Outcome outcome) {
  switch (outcome) {
    case Outcome::kPassed:
      return report::Standing::kPassed;
    case Outcome::kFailed:
      return report::Standing::kFailed;
    case Outcome::kIncomplete:
      break;
  }
  return report::Standing::kOpen;
}

report::Verdict VerdictOf(const std::vector<ElementSummary>& elements, Outcome outcome) {
  report::Verdict verdict;
  verdict.standing = StandingOf(outcome);
  verdict.word = outcome == Outcome::kPassed   ? Tr("Passed")
                 : outcome == Outcome::kFailed ? Tr("Failed")
                                               : Tr("Incomplete");
  const auto counts = Counts(elements);
  verdict.sentence =
      elements.empty() ? Tr("The document has no tests.")
      : outcome == Outcome::kPassed
          ? Pieces(counts, {kPassed, kNotApplicable})
          : Pieces(counts, {kFailed, kNotTested, kAborted, kDoubtful, kPassed, kNotApplicable});
  return verdict;
}

std::string OpenParts(const std::vector<ElementSummary>& elements) {
  if (elements.empty()) return Tr("The document has no tests.");
  return Pieces(Counts(elements), {kNotTested, kAborted, kDoubtful});
}

}  // namespace bench::parts

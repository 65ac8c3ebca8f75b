#include "host/archive/ArchiveWords.h"

#include <string_view>
#include <utility>

#include "host/archive/ArchiveError.h"
#include "host/base/Tr.h"

namespace host::archive::words {

namespace {

using judge::LimitVerdict;
using judge::Outcome;
using judge::Verdict;

template <class Meaning>
using Word = std::pair<Meaning, std::string_view>;

constexpr Word<Verdict> kVerdicts[] = {{Verdict::kFailed, "failed"},
                                       {Verdict::kDoubtful, "doubtful"},
                                       {Verdict::kAborted, "aborted"},
                                       {Verdict::kNotTested, "not tested"},
                                       {Verdict::kNotJudged, "not judged"},
                                       {Verdict::kRecorded, "recorded"},
                                       {Verdict::kNotApplicable, "not applicable"},
                                       {Verdict::kPassed, "passed"}};

constexpr Word<Outcome> kOutcomes[] = {
    {Outcome::kIncomplete, "incomplete"}, {Outcome::kFailed, "failed"}, {Outcome::kPassed, "passed"}};

constexpr Word<LimitVerdict> kLimitVerdicts[] = {{LimitVerdict::kNotApplied, "not applied"},
                                                 {LimitVerdict::kWithin, "within"},
                                                 {LimitVerdict::kBelow, "below"},
                                                 {LimitVerdict::kExceeded, "exceeded"},
                                                 {LimitVerdict::kNotComparable, "not comparable"}};

template <class Meaning, std::size_t kCount>
std::string WordOf(const Word<Meaning> (&known)[kCount], Meaning meaning) {
  for (const auto& [each, word] : known)
    if (each == meaning) return std::string(word);
  return std::string(known[0].second);
}

template <class Meaning, std::size_t kCount>
Meaning MeaningOf(const Word<Meaning> (&known)[kCount], const std::string& word) {
  for (const auto& [meaning, each] : known)
    if (each == word) return meaning;
  throw ArchiveError(ArchiveError::Kind::kBadInput,
                     Tr("the archive has the unknown verdict \"%%1\": it is damaged, or another program "
                        "changed it (restore a copy)",
                        {word}));
}

}  // namespace

std::string Of(Verdict verdict) { return WordOf(kVerdicts, verdict); }
std::string Of(Outcome outcome) { return WordOf(kOutcomes, outcome); }
std::string Of(LimitVerdict verdict) { return WordOf(kLimitVerdicts, verdict); }

Verdict VerdictOf(const std::string& word) { return MeaningOf(kVerdicts, word); }
Outcome OutcomeOf(const std::string& word) { return MeaningOf(kOutcomes, word); }
LimitVerdict LimitVerdictOf(const std::string& word) { return MeaningOf(kLimitVerdicts, word); }

}  // namespace host::archive::words

#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "host/document/RunRecord.h"
#include "host/judge/Verdict.h"

namespace host::report {

/// A finished test and what it counted for when it was done.
struct TestThen {
  const document::RecordedTest* test = nullptr;
  judge::Verdict verdict = judge::Verdict::kNotTested;
};

/// What came of the elements of one run, by its record alone. Not what counts now: `judge::Judge`.
struct RunOutcome {
  std::vector<TestThen> tests;           ///< in the order in which they finished
  std::vector<std::int32_t> unfinished;  ///< taken up and not finished, in the order of the elements' numbers
};

class RunOutcomes {
 public:
  /// @param now which elements are groups, and of which children
  explicit RunOutcomes(const judge::JudgedDocument& now);

  RunOutcome Of(const document::RunRecord& run) const;
  /// "failed: 1; passed: 2-4, 7"; a group is named only where none of its children had the same outcome.
  std::string TextOf(const RunOutcome& outcome) const;

 private:
  using Verdicts = std::unordered_map<std::int32_t, judge::Verdict>;

  judge::Verdict VerdictThen(const document::RecordedTest& test, const Verdicts& before) const;

  std::unordered_set<std::int32_t> groups_;
  std::unordered_map<std::int32_t, std::vector<std::int32_t>> children_;
};

/// What a limit said of the test's reading when it was measured.
judge::LimitVerdict VerdictThen(const document::RecordedLimit& limit, const document::RecordedTest& test);

/// "within limit", "exceeded", "below limit", "not judged".
std::string LimitWord(judge::LimitVerdict verdict);

/// "finished", "stopped", "aborted", "tester lost", "interrupted"; in the reader's language.
std::string EndWord(const document::RunRecord& run);

/// How many of the elements that the run took up it finished with a result, and how many there are.
struct RunProgressCount {
  std::size_t finished = 0;
  std::size_t taken = 0;
};
RunProgressCount CountOf(const document::RunRecord& run);

}  // namespace host::report

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "host/document/Reason.h"
#include "host/document/RunRecord.h"

namespace host::judge {

/// What an element's result counts as, from the worst.
enum class Verdict {
  kFailed,
  kDoubtful,
  kAborted,
  kNotTested,
  kNotJudged,
  kRecorded,
  kNotApplicable,
  kPassed
};

/// "failed", "doubtful", "aborted", "not tested", "not judged", "recorded", "not applicable", "passed".
std::string VerdictText(Verdict verdict);

/// Whether the element needs nothing more: passed, recorded or not applicable.
constexpr bool IsDone(Verdict verdict) {
  return verdict == Verdict::kPassed || verdict == Verdict::kRecorded || verdict == Verdict::kNotApplicable;
}

/// The outcome of a document, or of a part of it.
enum class Outcome { kPassed, kFailed, kIncomplete };

/// "passed", "failed", "incomplete".
std::string OutcomeText(Outcome outcome);

/// The plug-in's status as a word: "not tested", "passed", "failed", "not applicable", "aborted".
std::string StatusText(std::int32_t status);

/// The result of comparing the element's reading with one limit.
enum class LimitVerdict {
  kNotApplied,  ///< there is no current reading, or the limit's standard is not selected
  kWithin,
  kBelow,         ///< below the lower bound
  kExceeded,      ///< above the upper bound
  kNotComparable  ///< the units cannot be compared, or the reading is an overload
};

/// "passed", "failed" or "not judged".
std::string LimitVerdictText(LimitVerdict verdict);

struct JudgedLimit {
  std::string standard, description, unit;
  std::optional<double> low, high;
  std::string lowText, highText;  ///< as entered
  bool selected = true;           ///< whether its standard is selected in this view
  LimitVerdict verdict = LimitVerdict::kNotApplied;
  std::optional<double> value;  ///< the reading in the limit's unit, when it could be compared

  bool Broken() const { return verdict == LimitVerdict::kBelow || verdict == LimitVerdict::kExceeded; }
};

/// A measurement as the plug-in saved it.
struct Measurement {
  std::optional<double> value;  ///< none when the measurement has no value
  std::string unit, flags;
  std::int32_t status = 0;

  bool Overloaded() const { return flags.find('O') != std::string::npos; }
};

struct JudgedElement {
  std::int32_t id = 0;
  std::int32_t parent = 0;
  std::int32_t testId = 0;
  bool group = false;
  std::string name;

  Verdict verdict = Verdict::kNotTested;
  /// Why, most important first. Those of a passed element are for information only.
  std::vector<document::Reason> reasons;
  /// Whether at least one selected limit judged the current reading.
  bool judged = false;
  bool recordOnly = false;
  /// The tester's reading by the judge's own arithmetic, in the element's unit. None without a current
  /// reading that is a number.
  std::optional<double> value;
  std::string unit;
  std::vector<JudgedLimit> limits;  ///< those with a bound

  // Origin of the result; empty without a current one.
  std::int32_t run = 0;  ///< number of the run; 0 without a current result
  std::string at, by;
  std::optional<document::RecordedTester> tester;

  // As the plug-in saved it, even if it is not current.
  std::int32_t status = 0;
  std::int32_t instrument = 0;
  std::string serviceCode, serviceValue, comment;
  std::optional<Measurement> measurement;

  bool Current() const { return run != 0; }
  /// The names of the selected standards that the reading breaks, each once.
  std::vector<std::string> FailedStandards() const;
};

struct JudgedDocument {
  Outcome outcome = Outcome::kIncomplete;
  bool simulated = false;               ///< whether its runs were on a simulated tester
  std::int32_t run = 0;                 ///< number of the last run; 0 when there is none
  std::vector<std::string> standards;   ///< names of the standards it was judged by, each once
  std::vector<std::string> leftOut;     ///< names of the standards that this view leaves out
  std::vector<JudgedElement> elements;  ///< in document order, parents before children

  const JudgedElement* Find(std::int32_t id) const;
};

/// Failed when an element has failed; passed when every element is done and at least one has passed; else
/// incomplete.
Outcome OutcomeOf(const std::vector<JudgedElement>& elements);

}  // namespace host::judge

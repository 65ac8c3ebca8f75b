#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/judge/Case.h"
#include "host/judge/Verdict.h"

namespace host::judge {

/// A reading to compare with limits.
struct Judged {
  std::optional<double> value;  ///< by the judge's own arithmetic
  std::string unit;
  std::optional<double> recorded;  ///< the number that the plug-in compared
  bool overload = false;
};

/// The result of comparing a reading with an element's limits.
struct LimitFindings {
  bool judged = false;                   ///< at least one selected limit was compared
  bool broken = false;                   ///< one is exceeded, by the judge's and by the plug-in's arithmetic
  std::vector<document::Reason> broke;   ///< those exceeded
  std::vector<document::Reason> doubts;  ///< where the two differ, or units cannot be compared
};

/// The element's limits that have a bound, none of them applied yet.
/// @param selected names of standards; empty for all
std::vector<JudgedLimit> LimitsOf(const CaseElement& element, const std::vector<std::string>& selected);

/// Compares the reading with the selected limits: inclusive bounds in single precision, like the plug-in's,
/// but in the limit's own unit.
LimitFindings PutToLimits(const CaseElement& element, const Judged& reading,
                          std::vector<JudgedLimit>& limits);

}  // namespace host::judge

#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/judge/Case.h"
#include "host/judge/Verdict.h"

namespace bench::judge {

/// A reading that limits are put to.
struct Judged {
  std::optional<double> value;  ///< by the judge's own arithmetic
  std::string unit;
  std::optional<double> recorded;  ///< the number that the plug-in compared
  bool overload = false;
};

/// What the limits of one element say of its reading.
struct LimitFindings {
  bool judged = false;         ///< at least one selected limit was compared
  bool broken = false;         ///< one is broken by the judge's arithmetic and by the plug-in's
  std::vector<Reason> broke;   ///< the broken ones
  std::vector<Reason> doubts;  ///< where the two differ, or nothing can be compared
};

/// The element's limits that have a bound, none of them applied yet.
/// @param selected names of standards; empty for all
std::vector<JudgedLimit> LimitsOf(const CaseElement& element, const std::vector<std::string>& selected);

/// Puts the reading to the selected limits: inclusive bounds in single precision, as the plug-in has them,
/// but in the limit's own unit.
LimitFindings PutToLimits(const CaseElement& element, const Judged& reading,
                          std::vector<JudgedLimit>& limits);

}  // namespace bench::judge

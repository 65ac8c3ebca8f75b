#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/document/RunRecord.h"
#include "host/judge/Case.h"

namespace bench::judge {

/// A reading by the judge's own arithmetic, from what the tester said.
struct Reading {
  std::optional<double> value;  ///< none when the tester said no number
  std::string unit;
  std::vector<Reason> doubts;
};

/// @param test of status passed or failed
/// @param tester whose test leads correct it; null when none is recorded
Reading ReadingOf(const CaseElement& element, const RecordedTest& test, const RecordedTester* tester);

/// Whether two numbers are the same but for what is lost when they are written with 15 digits.
bool SameNumber(double one, double other);

/// A number for people and reasons: at most 15 digits; with its unit, when there is one.
std::string NumberText(double number, const std::string& unit = {});

}  // namespace bench::judge

#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/document/RunRecord.h"
#include "host/judge/Case.h"

namespace host::judge {

/// A reading by the judge's own arithmetic, from the tester's replies.
struct Reading {
  std::optional<double> value;  ///< none when the tester sent no number
  std::string unit;
  std::vector<document::Reason> doubts;
};

/// @param test of status passed or failed
/// @param tester whose test leads correct it; null when none is recorded
Reading ReadingOf(const CaseElement& element, const document::RecordedTest& test,
                  const document::RecordedTester* tester);

/// Whether two numbers are equal when written with 15 digits.
bool SameNumber(double one, double other);

/// A number with at most 15 digits, and its unit if there is one.
std::string NumberText(double number, const std::string& unit = {});

}  // namespace host::judge

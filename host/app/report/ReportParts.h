#pragma once

#include <memory>
#include <string>
#include <vector>

#include "OrvikTypeLib/ITestElement.h"
#include "host/judge/Verdict.h"
#include "host/report/Report.h"
#include "host/services/WallClock.h"

/// The parts that a document's report is put together from.
namespace bench::parts {

/// When and by whom the results were made.
struct RunTimes {
  std::string first;  ///< as noted; empty when no result says when it was made
  std::string last;
  std::vector<std::string> operators;  ///< each once
};

report::Standing StandingOf(const judge::JudgedElement& element);
report::Standing StandingOf(judge::Outcome outcome);

/// The verdict of the whole; `counted` are the elements that count as tests.
report::Verdict VerdictOf(const std::vector<judge::JudgedElement>& elements, judge::Outcome outcome);
/// Why the report is partial: what is not tested, aborted or doubtful; empty when nothing is.
std::string OpenParts(const std::vector<judge::JudgedElement>& elements);

/// "2026-11-21 14:03"; a text that is no moment stays as it is.
std::string MinuteText(const std::string& date);
/// "2026-11-21 14:03 to 16:20".
std::string SpanText(const RunTimes& times);

/// The reading without its unit: "1850", "OL", or empty.
std::string ValueText(const judge::JudgedElement& element);
bool Overloaded(const judge::JudgedElement& element);

/// What the selected limits say of the element's reading.
std::vector<report::Judgement> JudgementsOf(const judge::JudgedElement& element);

/// The tables that the element itself prints, without those of its children and without its title.
std::vector<report::Table> TablesOf(orvik::ITestElement& element, const std::string& name);

report::Words WordsOfReport();

}  // namespace bench::parts

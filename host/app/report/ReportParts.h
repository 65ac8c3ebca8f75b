#pragma once

#include <memory>
#include <string>
#include <vector>

#include "OrvikTypeLib/IStandardColl.h"
#include "OrvikTypeLib/ITestElement.h"
#include "host/report/Report.h"
#include "host/run/ElementSummary.h"
#include "host/services/WallClock.h"

/// The parts that a document's report is put together from.
namespace bench::parts {

/// When and by whom the results were made.
struct RunTimes {
  std::string first;  ///< as noted; empty when no result says when it was made
  std::string last;
  std::vector<std::string> operators;  ///< each once
};

report::Standing StandingOf(const ElementSummary& element);
report::Standing StandingOf(Outcome outcome);

/// The verdict of the whole; `counted` are the elements that count as tests.
report::Verdict VerdictOf(const std::vector<ElementSummary>& elements, Outcome outcome);
/// Why the report is partial: what is not tested, aborted or doubtful; empty when nothing is.
std::string OpenParts(const std::vector<ElementSummary>& elements);

/// "2026-11-21 14:03"; a text that is no moment stays as it is.
std::string MinuteText(const std::string& date);
/// "2026-11-21 14:03 to 16:20".
std::string SpanText(const RunTimes& times);

/// The reading without its unit: "1850", "OL", or empty.
std::string ValueText(const ElementSummary& element);
bool Overloaded(const ElementSummary& element);

/// The element's reading put to the limits of the standards selected.
std::vector<report::Judgement> JudgementsOf(const orvik::ITestElement& element, const ElementSummary& summary,
                                            const orvik::IStandardColl& selected);

/// The tables that the element itself prints, without those of its children and without its title.
std::vector<report::Table> TablesOf(orvik::ITestElement& element, const std::string& name);

report::Words WordsOfReport();

}  // namespace bench::parts

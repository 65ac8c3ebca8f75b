#pragma once

#include <memory>
#include <string>
#include <vector>

#include "OrvikTypeLib/ITestElement.h"
#include "host/base/WallClock.h"
#include "host/document/RunRecord.h"
#include "host/judge/Verdict.h"
#include "host/report/Report.h"
#include "host/report/RunOutcome.h"

/// The parts that a report is put together from.
namespace host::report::parts {

/// When and by whom something was done.
struct RunTimes {
  std::string first;  ///< as noted; empty when it is not known
  std::string last;
  std::vector<std::string> operators;  ///< each once
};

report::Standing StandingOf(judge::Verdict verdict);
report::Standing StandingOf(const judge::JudgedElement& element);
report::Standing StandingOf(judge::Outcome outcome);

/// The verdict of the whole. `elements` are all of the document's.
report::Verdict VerdictOf(const std::vector<judge::JudgedElement>& elements, judge::Outcome outcome);
/// Counts of what is not tested, aborted, doubtful or not judged, such as "1 of 3 not tested"; may be empty.
std::string OpenParts(const std::vector<judge::JudgedElement>& elements);

/// "2026-11-21 14:03"; a text that is not a date and time stays as it is.
std::string MinuteText(const std::string& date);
/// "2026-11-21 14:03 to 16:20".
std::string SpanText(const RunTimes& times);
std::string OperatorsText(const RunTimes& times);

/// "KELD(IN), serial number SIM-0001, firmware 3.10"
std::string TesterText(const document::RecordedTester& tester);
/// All testers in one line, for the top of a page: one in full, of several type and serial number.
std::string TestersText(const std::vector<document::RecordedTester>& testers);
/// Adds the fact unless its value is empty.
void AddFact(std::vector<report::Fact>& facts, const std::string& label, const std::string& value);
void AddEquipment(std::vector<report::Fact>& facts, const document::Equipment& equipment);
/// Each tester with its test leads and their date.
void AddTesters(std::vector<report::Fact>& facts, const std::vector<document::RecordedTester>& testers);
/// The four facts for the top of every page.
/// @param otherwise for equipment without a name
std::vector<report::Fact> PageHeader(const document::Equipment& equipment, const std::string& otherwise,
                                     const std::vector<document::RecordedTester>& testers,
                                     const RunTimes& times);
/// For every page of a simulated run.
report::PageMark SimulatedMark();
/// "SIMULATED electrical safety test" or "Electrical safety test".
std::string TitleOf(bool simulated);
/// The language of a report as HTML and PDF name it: "zh-CN".
std::string LanguageTag(const std::string& language);

/// The reading without its unit: "1850", "OL", or empty.
std::string ValueText(const judge::JudgedElement& element);
std::string ValueText(const document::RecordedTest& test);
bool Overloaded(const judge::JudgedElement& element);

/// What the selected limits say of the element's reading.
std::vector<report::Judgement> JudgementsOf(const judge::JudgedElement& element);
/// What limits said of the reading when it was measured.
std::vector<report::Judgement> JudgementsOf(const document::RecordedTest& test);

/// A row for each run: times, end, operator, testers, and the outcome of its elements.
/// @param now the equipment as the document has it
report::Table RunsTable(const std::vector<document::RunRecord>& runs, const RunOutcomes& outcomes,
                        const document::Equipment& now);

/// A test with the run that did it.
struct RecordedIn {
  const document::RunRecord* run = nullptr;
  TestThen then;
};
/// A row for each reading of one element.
report::Table ReadingsTable(const std::vector<RecordedIn>& tests);

/// The tables that the element itself prints, without those of its children and without its title.
std::vector<report::Table> TablesOf(orvik::ITestElement& element, const std::string& name);

report::Words WordsOfReport();

}  // namespace host::report::parts

#include "host/report/RunReport.h"

#include <algorithm>
#include <array>
#include <map>

#include "host/base/TextColumns.h"
#include "host/base/Tr.h"
#include "host/base/VisibleText.h"
#include "host/document/Document.h"
#include "host/judge/ReasonText.h"
#include "host/report/DocumentView.h"
#include "host/report/ReportParts.h"
#include "host/report/RunOutcome.h"

namespace host::report {

namespace {

using host::LineEnds;
using host::VisibleText;
using report::Standing;

/// Puts together the report of one run.
class RunBuilder {
 public:
  RunBuilder(const document::Document& document, const document::Host& host, const document::RunRecord& run)
      : document_(document), run_(run), now_(ViewOf(document, host).judged), outcomes_(now_) {
    for (const auto& element : now_.elements) elements_[element.id] = &element;
  }

  report::Report Build(const std::string& language) {
    const auto outcome = outcomes_.Of(run_);
    report_.language = parts::LanguageTag(language);
    report_.title = Tr("%%1: run %%2 of %%3", {parts::TitleOf(run_.simulated), Number(), Count()});
    report_.words = parts::WordsOfReport();
    // No colour of a verdict: none of this says what counts now.
    report_.verdict = {Standing::kRecorded, Tr("Run %%1 of %%2", {Number(), Count()}), Sentence(outcome)};
    report_.created = run_.ended.empty() ? run_.begun : run_.ended;
    AddMarks();
    AddFacts();
    report_.pageHeader =
        parts::PageHeader(run_.equipment, document_.Path().filename().string(), run_.testers, Times());
    for (const auto& then : outcome.tests) AddTest(then);
    for (const auto id : outcome.unfinished) AddUnfinished(id);
    return std::move(report_);
  }

 private:
  std::string Number() const { return std::to_string(run_.number); }
  std::string Count() const { return std::to_string(document_.Runs().All().size()); }

  std::string Sentence(const RunOutcome& outcome) const {
    const auto text = outcomes_.TextOf(outcome);
    return text.empty() ? EndWord(run_) : Tr("%%1; %%2", {EndWord(run_), text});
  }

  void AddMarks() {
    if (run_.simulated) report_.marks.push_back(parts::SimulatedMark());
    report_.marks.push_back(
        {Tr("Run %%1", {Number()}),
         Tr("Run %%1 of %%2: what was done then, not what counts now.", {Number(), Count()})});
    if (!run_.intact)
      report_.marks.push_back({Tr("Changed"), Tr("The record of this run was changed by another program.")});
  }

  parts::RunTimes Times() const {
    parts::RunTimes times{run_.begun, run_.ended.empty() ? run_.begun : run_.ended, {}};
    if (!run_.by.empty()) times.operators.push_back(VisibleText(run_.by));
    return times;
  }

  void AddFacts() {
    auto& facts = report_.facts;
    parts::AddEquipment(facts, run_.equipment);
    parts::AddFact(facts, Tr("Begun"), parts::MinuteText(run_.begun));
    parts::AddFact(facts, Tr("Ended"), run_.ended.empty() ? "-" : parts::MinuteText(run_.ended));
    parts::AddFact(facts, Tr("How it ended"), EndWord(run_));
    parts::AddFact(facts, Tr("Operator"), parts::OperatorsText(Times()));
    parts::AddTesters(facts, run_.testers);
    parts::AddFact(facts, Tr("Port"), VisibleText(run_.port));
    if (run_.timeScale != 1) parts::AddFact(facts, Tr("Time scale"), ShortNumber(run_.timeScale));
    parts::AddFact(facts, Tr("Program"), VisibleText(run_.program));
    parts::AddFact(facts, Tr("Document"), VisibleText(document_.Path().filename().string()));
  }

  /// The element's name, where the document still has it as the same test.
  std::string NameOf(std::int32_t id, const document::RecordedTest* test) const {
    const auto found = elements_.find(id);
    const bool same = found != elements_.end() && (!test || found->second->testId == test->testId);
    if (same) return VisibleText(found->second->name);
    return test ? Tr("Test %%1 (not in the document any more)", {std::to_string(test->testId)})
                : Tr("Element %%1 (not in the document any more)", {std::to_string(id)});
  }

  report::OverviewRow RowOf(std::int32_t id, const document::RecordedTest* test, judge::Verdict verdict) {
    report::OverviewRow row;
    row.id = id;
    row.name = NameOf(id, test);
    row.standing = parts::StandingOf(verdict);
    row.word = Tr(judge::VerdictText(verdict));
    if (test) row.value = parts::ValueText(*test);
    if (!row.value.empty()) row.unit = VisibleText(test->recorded->unit);
    // An element can be done more than once in one run.
    const auto time = ++times_[id];
    row.anchor = "element-" + std::to_string(id) + (time > 1 ? "-" + std::to_string(time) : "");
    return row;
  }

  static report::Section SectionOf(const report::OverviewRow& row) {
    report::Section section;
    section.id = row.id;
    section.anchor = row.anchor;
    section.name = row.name;
    section.standing = row.standing;
    section.word = row.word;
    section.value = row.value;
    section.unit = row.unit;
    return section;
  }

  void AddTest(const TestThen& then) {
    const auto& test = *then.test;
    auto row = RowOf(test.element, &test, then.verdict);
    auto section = SectionOf(row);
    for (const auto& doubt : test.doubts)
      section.notes.push_back(
          {Standing::kDoubtful, VisibleText(Tr("doubt: %%1", {judge::ReasonText(doubt)}), LineEnds::kKept)});
    section.facts = FactsOf(test);
    section.judgements = parts::JudgementsOf(test);
    if (!section.notes.empty()) row.note = section.notes.front().text;
    report_.sections.push_back(std::move(section));
    report_.overview.push_back(std::move(row));
  }

  void AddUnfinished(std::int32_t id) {
    auto row = RowOf(id, nullptr, judge::Verdict::kNotTested);
    row.note = Tr("taken up and not finished in this run");
    auto section = SectionOf(row);
    section.notes.push_back({row.standing, row.note});
    report_.sections.push_back(std::move(section));
    report_.overview.push_back(std::move(row));
  }

  std::vector<report::Fact> FactsOf(const document::RecordedTest& test) const {
    std::vector<report::Fact> facts;
    parts::AddFact(facts, Tr("Tested"), parts::MinuteText(test.at));
    parts::AddFact(
        facts, Tr("Recorded as"),
        Tr("%%1, by %%2", {Tr(judge::StatusText(test.status)),
                           test.by == document::RecordedTest::By::kOperator ? Tr("the operator")
                                                                            : Tr("the tester's answer")}));
    if (run_.testers.size() > 1 && test.tester > 0)
      parts::AddFact(facts, Tr("Tester"),
                     parts::TesterText(run_.testers[static_cast<std::size_t>(test.tester) - 1]));
    std::string said;
    for (const auto& line : test.said) said += (said.empty() ? "" : "\n") + VisibleText(line);
    parts::AddFact(facts, Tr("The tester said"), said);
    if (test.recorded && !test.recorded->flags.empty())
      parts::AddFact(facts, Tr("Flags"), VisibleText(test.recorded->flags));
    return facts;
  }

  const document::Document& document_;
  const document::RunRecord& run_;
  const judge::JudgedDocument now_;  ///< for names and groups alone
  const RunOutcomes outcomes_;
  std::map<std::int32_t, const judge::JudgedElement*> elements_;
  std::map<std::int32_t, int> times_;
  report::Report report_;
};

}  // namespace

report::Report RunReportOf(const document::Document& document, const document::Host& host,
                           const document::RunRecord& run, const std::string& language) {
  return RunBuilder(document, host, run).Build(language);
}

}  // namespace host::report

#include "host/report/DocumentReport.h"

#include <algorithm>
#include <map>
#include <set>
#include <unordered_map>
#include <utility>

#include "OrvikTypeLib/IAuxiliaryState.h"
#include "OrvikTypeLib/IBaseElement.h"
#include "host/base/TextColumns.h"
#include "host/base/Tr.h"
#include "host/base/VisibleText.h"
#include "host/document/Document.h"
#include "host/document/ElementWalk.h"
#include "host/document/Host.h"
#include "host/elements/ElementFactory.h"
#include "host/report/DocumentText.h"
#include "host/report/DocumentView.h"
#include "host/report/ReportParts.h"

namespace host::report {

namespace {

using Element = std::shared_ptr<orvik::ITestElement>;
using host::LineEnds;
using host::VisibleText;
using report::Fact;

/// Puts together the report of one document.
class Builder {
 public:
  Builder(const document::Document& document, document::Host& host, DocumentView view)
      : document_(document), host_(host), view_(std::move(view)), outcomes_(view_.judged) {
    for (const auto& top : TopElements(document))
      document::WalkElements(top, [this](const Element& element) { elements_.push_back(element); });
    FindTimes();
    FindTesters();
    FindReadings();
  }

  report::Report Build(const std::string& language) {
    report_.language = parts::LanguageTag(language);
    report_.title = parts::TitleOf(view_.judged.simulated);
    report_.words = parts::WordsOfReport();
    report_.verdict = parts::VerdictOf(Judged(), view_.judged.outcome);
    report_.created = times_.last;
    AddMarks();
    AddFacts();
    report_.pageHeader =
        parts::PageHeader(document_.equipment, document_.Path().filename().string(), testers_, times_);
    report_.runs = parts::RunsTable(document_.Runs().All(), outcomes_, document_.equipment);
    for (std::size_t i = 0; i < elements_.size(); ++i) AddElement(elements_[i], Judged()[i]);
    return std::move(report_);
  }

  std::optional<report::Section> Section(std::int32_t id) const {
    for (std::size_t i = 0; i < elements_.size(); ++i)
      if (Judged()[i].id == id) return SectionOf(elements_[i], Judged()[i], RowOf(Judged()[i]));
    return {};
  }

 private:
  const std::vector<judge::JudgedElement>& Judged() const { return view_.judged.elements; }

  void FindTimes() {
    std::optional<std::int64_t> first, last;
    for (const auto& element : Judged()) {
      if (!element.Current()) continue;
      const auto by = VisibleText(element.by);
      auto& operators = times_.operators;
      if (!by.empty() && std::find(operators.begin(), operators.end(), by) == operators.end())
        operators.push_back(by);
      const auto moment = MomentOf(element.at);
      if (!moment) continue;
      if (!first || moment->utc < *first) first = moment->utc, times_.first = element.at;
      if (!last || moment->utc >= *last) last = moment->utc, times_.last = element.at;
    }
  }

  void FindTesters() {
    for (const auto& element : Judged()) {
      if (!element.tester || std::find(testers_.begin(), testers_.end(), *element.tester) != testers_.end())
        continue;
      testers_.push_back(*element.tester);
    }
  }

  void FindReadings() {
    for (const auto& run : document_.Runs().All())
      for (const auto& then : outcomes_.Of(run).tests)
        if (then.test->recorded) readings_[then.test->element].push_back({&run, then});
  }

  void AddMarks() {
    if (view_.judged.simulated) report_.marks.push_back(parts::SimulatedMark());
    if (const auto open = parts::OpenParts(Judged()); !open.empty())
      report_.marks.push_back({Tr("Partial"), Tr("Partial report: %%1", {open})});
    if (!view_.judged.leftOut.empty())
      report_.marks.push_back({Tr("Partial"), Tr("Standards left out: %%1", {LeftOut()})});
  }

  std::string LeftOut() const { return VisibleText(Joined(view_.judged.leftOut, ", ")); }

  void AddFacts() {
    auto& facts = report_.facts;
    parts::AddEquipment(facts, document_.equipment);
    parts::AddFact(facts, Tr("Comment"), VisibleText(document_.comment, LineEnds::kKept));
    parts::AddFact(facts, Tr("Tested"), parts::SpanText(times_));
    parts::AddFact(facts, Tr("Operator"), parts::OperatorsText(times_));
    parts::AddTesters(facts, testers_);
    parts::AddFact(facts, Tr("Standards"), StandardsText());
    parts::AddFact(facts, Tr("Standards left out"), LeftOut());
    parts::AddFact(facts, Tr("Document"), VisibleText(document_.Path().filename().string()));
  }

  /// Every standard by which the document is judged, each with its description.
  std::string StandardsText() const {
    std::vector<std::string> names;
    for (const auto& element : Judged()) {
      for (const auto& limit : element.limits) {
        if (!limit.selected) continue;
        auto name = VisibleText(limit.standard);
        if (!limit.description.empty()) name += " (" + VisibleText(limit.description) + ")";
        if (std::find(names.begin(), names.end(), name) == names.end()) names.push_back(std::move(name));
      }
    }
    return names.empty() ? Tr("none selected: nothing was judged by limits") : Joined(names, "; ");
  }

  void AddElement(const Element& element, const judge::JudgedElement& judged) {
    const bool atTop = judged.parent == 0;
    const int depth = atTop ? 0 : depths_[judged.parent] + 1;
    depths_[judged.id] = depth;
    const auto base = host_.Elements()->BaseOf(element);
    const bool printed =
        (!base || base->Auxiliary()->PrintElement()) && (atTop || !unprinted_.contains(judged.parent));
    if (!printed) unprinted_.insert(judged.id);

    auto row = RowOf(judged);
    row.depth = depth;
    if (printed) {
      row.anchor = "element-" + std::to_string(judged.id);
      report_.sections.push_back(SectionOf(element, judged, row));
    }
    report_.overview.push_back(std::move(row));
  }

  static report::OverviewRow RowOf(const judge::JudgedElement& judged) {
    report::OverviewRow row;
    row.id = judged.id;
    row.name = VisibleText(judged.name);
    row.value = parts::ValueText(judged);
    if (!row.value.empty()) row.unit = VisibleText(judged.measurement->unit);
    row.standing = parts::StandingOf(judged);
    row.word = VisibleText(Tr(judge::VerdictText(judged.verdict)));
    const auto reasons = ReasonTexts(judged);
    if (judged.verdict != judge::Verdict::kPassed && !reasons.empty())
      row.note = VisibleText(reasons.front());
    return row;
  }

  report::Section SectionOf(const Element& element, const judge::JudgedElement& judged,
                            const report::OverviewRow& row) const {
    report::Section section;
    section.id = row.id;
    section.depth = row.depth;
    section.anchor = row.anchor;
    section.name = row.name;
    section.standing = row.standing;
    section.word = row.word;
    section.value = row.value;
    section.unit = row.unit;
    for (const auto& reason : ReasonTexts(judged))
      section.notes.push_back({row.standing, VisibleText(reason, LineEnds::kKept)});
    section.facts = FactsOf(judged);
    section.judgements = parts::JudgementsOf(judged);
    if (const auto found = readings_.find(judged.id); found != readings_.end() && found->second.size() > 1)
      section.readings = parts::ReadingsTable(found->second);
    section.tables = parts::TablesOf(*element, section.name);
    return section;
  }

  std::vector<Fact> FactsOf(const judge::JudgedElement& judged) const {
    std::vector<Fact> facts;
    if (judged.Current()) {
      facts.push_back({Tr("Tested"), parts::MinuteText(judged.at)});
      parts::AddFact(facts, Tr("Operator"), VisibleText(judged.by));
    }
    if (testers_.size() > 1 && judged.tester)
      facts.push_back({Tr("Tester"), parts::TesterText(*judged.tester)});
    parts::AddFact(facts, Tr("Comment"), VisibleText(judged.comment, LineEnds::kKept));
    return facts;
  }

  const document::Document& document_;
  document::Host& host_;
  const DocumentView view_;
  const RunOutcomes outcomes_;
  std::vector<Element> elements_;  ///< as they are judged
  parts::RunTimes times_;
  std::vector<document::RecordedTester> testers_;
  std::unordered_map<std::int32_t, std::vector<parts::RecordedIn>> readings_;
  std::map<std::int32_t, int> depths_;
  std::set<std::int32_t> unprinted_;
  report::Report report_;
};

}  // namespace

report::Report ReportOf(const document::Document& document, document::Host& host, const std::string& language,
                        std::vector<std::string> standards) {
  return Builder(document, host, ViewOf(document, host, std::move(standards))).Build(language);
}

std::vector<report::Section> SectionsOf(const document::Document& document, document::Host& host,
                                        DocumentView view, const std::vector<std::int32_t>& ids) {
  if (ids.empty()) return {};
  const Builder builder(document, host, std::move(view));
  std::vector<report::Section> sections;
  for (const auto id : ids)
    if (auto section = builder.Section(id)) sections.push_back(std::move(*section));
  return sections;
}

report::Table RunsOf(const document::Document& document, const DocumentView& view) {
  return parts::RunsTable(document.Runs().All(), RunOutcomes(view.judged), document.equipment);
}

}  // namespace host::report

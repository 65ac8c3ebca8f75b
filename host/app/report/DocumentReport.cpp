#include "host/app/report/DocumentReport.h"

#include <algorithm>
#include <map>
#include <set>

#include "OrvikTypeLib/IAuxiliaryState.h"
#include "OrvikTypeLib/IBaseElement.h"
#include "host/Host.h"
#include "host/app/DocumentText.h"
#include "host/app/DocumentView.h"
#include "host/app/TextColumns.h"
#include "host/app/report/ReportParts.h"
#include "host/document/Document.h"
#include "host/elements/ElementFactory.h"
#include "host/report/VisibleText.h"
#include "host/run/ElementWalk.h"
#include "host/services/Tr.h"

namespace bench {

namespace {

using Element = std::shared_ptr<orvik::ITestElement>;
using report::Fact;
using report::LineEnds;
using report::VisibleText;

/// Puts together the report of one document.
class Builder {
 public:
  Builder(const Document& document, Host& host, const std::string& language)
      : document_(document), host_(host), view_(ViewOf(document, host)) {
    for (const auto& top : TopElements(document))
      WalkElements(top, [this](const Element& element) { elements_.push_back(element); });
    report_.language = language.empty() ? "en" : VisibleText(language);
    std::replace(report_.language.begin(), report_.language.end(), '_', '-');
  }

  report::Report Build() {
    report_.title = Tr("Electrical safety test");
    report_.words = parts::WordsOfReport();
    report_.verdict = Verdict();
    const auto open = parts::OpenParts(Judged());
    report_.partial = !open.empty();
    if (report_.partial) report_.partialNotice = Tr("Partial report: %%1", {open});
    FindTimes();
    FindTesters();
    AddFacts();
    AddPageHeader();
    for (std::size_t i = 0; i < elements_.size(); ++i) AddElement(elements_[i], Judged()[i]);
    return std::move(report_);
  }

  report::Verdict Verdict() const { return parts::VerdictOf(Judged(), view_.judged.outcome); }

  std::optional<report::Section> Section(std::int32_t id) {
    FindTesters();
    for (std::size_t i = 0; i < elements_.size(); ++i) {
      if (Judged()[i].id == id) return SectionOf(elements_[i], Judged()[i], RowOf(Judged()[i]));
    }
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
    report_.created = times_.last;
  }

  void FindTesters() {
    for (const auto& element : Judged()) {
      if (!element.tester || std::find(testers_.begin(), testers_.end(), *element.tester) != testers_.end())
        continue;
      testers_.push_back(*element.tester);
    }
  }

  static std::string TesterText(const RecordedTester& tester) {
    return Tr("%%1, serial number %%2, firmware %%3",
              {VisibleText(tester.type), VisibleText(tester.serial), VisibleText(tester.firmware)});
  }

  static std::string LeadsText(const RecordedTester& tester) {
    const auto measured = tester.leadsMeasured.empty()
                              ? Tr("date not known")
                              : Tr("measured %%1", {parts::MinuteText(tester.leadsMeasured)});
    return Tr("%%1 mOhm, %%2", {std::to_string(tester.leads), measured});
  }

  void AddFact(const std::string& label, const std::string& value) {
    if (!value.empty()) report_.facts.push_back({label, value});
  }

  void AddFacts() {
    const auto& equipment = document_.equipment;
    AddFact(Tr("Asset number"), VisibleText(equipment.asset));
    AddFact(Tr("Serial number"), VisibleText(equipment.serial));
    AddFact(Tr("Maker"), VisibleText(equipment.maker));
    AddFact(Tr("Model"), VisibleText(equipment.model));
    AddFact(Tr("Comment"), VisibleText(document_.comment));
    AddFact(Tr("Tested"), parts::SpanText(times_));
    AddFact(Tr("Operator"), times_.operators.empty() ? Tr("not recorded") : Joined(times_.operators, ", "));
    if (testers_.empty()) AddFact(Tr("Tester"), Tr("not recorded"));
    for (std::size_t i = 0; i < testers_.size(); ++i) {
      AddFact(testers_.size() == 1 ? Tr("Tester") : Tr("Tester %%1", {std::to_string(i + 1)}),
              TesterText(testers_[i]));
      AddFact(Tr("Its test leads"), LeadsText(testers_[i]));
    }
    AddFact(Tr("Standards"), StandardsText());
    AddFact(Tr("Document"), VisibleText(document_.Path().filename().string()));
  }

  /// Every standard that judged, each with its description.
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

  std::string TestersText() const {
    std::vector<std::string> texts;
    for (const auto& tester : testers_) texts.push_back(TesterText(tester));
    return texts.empty() ? Tr("not recorded") : Joined(texts, "; ");
  }

  void AddPageHeader() {
    const auto& equipment = document_.equipment;
    std::vector<std::string> names;
    for (const auto& part : {equipment.asset, equipment.maker, equipment.model, equipment.serial})
      if (!part.empty()) names.push_back(VisibleText(part));
    report_.pageHeader = {
        {Tr("Equipment"),
         names.empty() ? VisibleText(document_.Path().filename().string()) : Joined(names, ", ")},
        {Tr("Tester"), TestersText()},
        {Tr("Tested"), parts::SpanText(times_)},
        {Tr("Operator"), times_.operators.empty() ? Tr("not recorded") : Joined(times_.operators, ", ")}};
  }

  void AddElement(const Element& element, const judge::JudgedElement& summary) {
    const bool atTop = summary.parent == 0;
    const int depth = atTop ? 0 : depths_[summary.parent] + 1;
    depths_[summary.id] = depth;
    const auto base = host_.Elements()->BaseOf(element);
    const bool printed =
        (!base || base->Auxiliary()->PrintElement()) && (atTop || !unprinted_.contains(summary.parent));
    if (!printed) unprinted_.insert(summary.id);

    auto row = RowOf(summary);
    row.depth = depth;
    row.detailed = printed;
    if (printed) report_.sections.push_back(SectionOf(element, summary, row));
    report_.overview.push_back(std::move(row));
  }

  report::OverviewRow RowOf(const judge::JudgedElement& summary) const {
    report::OverviewRow row;
    row.id = summary.id;
    row.name = VisibleText(summary.name);
    row.value = parts::ValueText(summary);
    if (!row.value.empty()) row.unit = VisibleText(summary.measurement->unit);
    row.standing = parts::StandingOf(summary);
    row.word = VisibleText(Tr(judge::VerdictText(summary.verdict)));
    return row;
  }

  report::Section SectionOf(const Element& element, const judge::JudgedElement& summary,
                            const report::OverviewRow& row) const {
    report::Section section;
    section.id = row.id;
    section.depth = row.depth;
    section.name = row.name;
    section.standing = row.standing;
    section.word = row.word;
    section.value = row.value;
    section.unit = row.unit;
    for (const auto& reason : ReasonTexts(summary))
      section.notes.push_back({row.standing, VisibleText(reason, LineEnds::kKept)});
    section.facts = FactsOf(summary);
    section.judgements = parts::JudgementsOf(summary);
    section.tables = parts::TablesOf(*element, section.name);
    return section;
  }

  std::vector<Fact> FactsOf(const judge::JudgedElement& summary) const {
    std::vector<Fact> facts;
    if (summary.Current()) {
      facts.push_back({Tr("Tested"), parts::MinuteText(summary.at)});
      if (!summary.by.empty()) facts.push_back({Tr("Operator"), VisibleText(summary.by)});
    }
    if (testers_.size() > 1 && summary.tester) facts.push_back({Tr("Tester"), TesterText(*summary.tester)});
    if (!summary.comment.empty())
      facts.push_back({Tr("Comment"), VisibleText(summary.comment, LineEnds::kKept)});
    return facts;
  }

  const Document& document_;
  Host& host_;
  const DocumentView view_;
  std::vector<Element> elements_;  ///< as they are judged
  parts::RunTimes times_;
  std::vector<RecordedTester> testers_;
  std::map<std::int32_t, int> depths_;
  std::set<std::int32_t> unprinted_;
  report::Report report_;
};

}  // namespace

report::Report ReportOf(const Document& document, Host& host, const std::string& language) {
  return Builder(document, host, language).Build();
}

report::Verdict VerdictOf(const Document& document, Host& host) {
  return Builder(document, host, {}).Verdict();
}

std::optional<report::Section> SectionOf(const Document& document, Host& host, std::int32_t id) {
  return Builder(document, host, {}).Section(id);
}

}  // namespace bench

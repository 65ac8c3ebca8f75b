#include "host/app/report/DocumentReport.h"

#include <algorithm>
#include <map>
#include <set>

#include "OrvikTypeLib/IAuxiliaryState.h"
#include "OrvikTypeLib/IBaseElement.h"
#include "OrvikTypeLib/IInstrumentRecord.h"
#include "OrvikTypeLib/IResultData.h"
#include "OrvikTypeLib/IStandard.h"
#include "host/Host.h"
#include "host/app/DocumentView.h"
#include "host/app/TextColumns.h"
#include "host/app/report/ReportParts.h"
#include "host/document/Document.h"
#include "host/elements/ElementFactory.h"
#include "host/instruments/InstrumentColl.h"
#include "host/report/VisibleText.h"
#include "host/run/ElementWalk.h"
#include "host/run/RunMark.h"
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
      : document_(document), host_(host), standards_(document.Standards()) {
    if (standards_->Count() == 0) standards_ = NamedStandards(document, host);
    summary_ = SummaryOf(document, host, standards_);
    for (const auto& top : TopElements(document))
      WalkElements(top, [this](const Element& element) { elements_.push_back(element); });
    report_.language = language.empty() ? "en" : VisibleText(language);
    std::replace(report_.language.begin(), report_.language.end(), '_', '-');
  }

  report::Report Build() {
    report_.title = Tr("Electrical safety test");
    report_.words = parts::WordsOfReport();
    report_.verdict = Verdict();
    const auto open = parts::OpenParts(summary_.elements);
    report_.partial = !open.empty();
    if (report_.partial) report_.partialNotice = Tr("Partial report: %%1", {open});
    FindTimes();
    FindTesters();
    AddFacts();
    AddPageHeader();
    for (std::size_t i = 0; i < elements_.size(); ++i) AddElement(elements_[i], summary_.elements[i]);
    return std::move(report_);
  }

  /// A test that no limit was put to has passed for having been carried out. Who reads "passed" must know.
  report::Verdict Verdict() const {
    auto verdict = parts::VerdictOf(summary_.elements, summary_.outcome);
    const auto unjudged = verdict.standing == report::Standing::kPassed ? Unjudged() : 0;
    if (unjudged > 0)
      verdict.sentence = Tr("%%1; %%2 of them without a limit", {verdict.sentence, std::to_string(unjudged)});
    if (unjudged > 0 && !AnyJudged()) {
      verdict.standing = report::Standing::kNotApplicable;
      verdict.word = Joined({verdict.word, Tr("not judged")}, ", ");
    }
    return verdict;
  }

  std::optional<report::Section> Section(std::int32_t id) {
    FindTesters();
    for (std::size_t i = 0; i < elements_.size(); ++i) {
      if (summary_.elements[i].id == id)
        return SectionOf(elements_[i], summary_.elements[i], RowOf(elements_[i], summary_.elements[i]));
    }
    return {};
  }

 private:
  /// How many tests have passed without a limit.
  int Unjudged() const {
    int count = 0;
    for (std::size_t i = 0; i < elements_.size(); ++i)
      if (IsUnjudged(elements_[i], summary_.elements[i])) ++count;
    return count;
  }

  /// Whether somebody or something has said of one test at least that it is good: a limit, or a person where
  /// there is nothing to measure.
  bool AnyJudged() const {
    for (std::size_t i = 0; i < elements_.size(); ++i) {
      const auto& summary = summary_.elements[i];
      const bool passed = !summary.sequence && parts::StandingOf(summary) == report::Standing::kPassed;
      if (passed && (!summary.measurement || !IsUnjudged(elements_[i], summary))) return true;
    }
    return false;
  }

  bool IsUnjudged(const Element& element, const ElementSummary& summary) const {
    return !summary.sequence && parts::StandingOf(summary) == report::Standing::kPassed &&
           parts::JudgementsOf(*element, summary, *standards_).empty();
  }

  void FindTimes() {
    std::optional<std::int64_t> first, last;
    for (const auto& element : elements_) {
      const auto mark = MarkOf(element);
      if (!mark) continue;
      const auto by = VisibleText(mark->by);
      auto& operators = times_.operators;
      if (!by.empty() && std::find(operators.begin(), operators.end(), by) == operators.end())
        operators.push_back(by);
      const auto moment = MomentOf(mark->date);
      if (!moment) continue;
      if (!first || moment->utc < *first) first = moment->utc, times_.first = mark->date;
      if (!last || moment->utc >= *last) last = moment->utc, times_.last = mark->date;
    }
    report_.created = times_.last;
  }

  /// What made the element's present result; a result that was set aside has none.
  std::optional<RunMark> MarkOf(const Element& element) const {
    const auto result = element->Result();
    return result && result->Status() != 0 ? RunMarkOf(element, *host_.Elements()) : std::nullopt;
  }

  void FindTesters() {
    const std::shared_ptr<orvik::IInstrumentColl> instruments = document_.Instruments();
    for (std::int32_t i = 1; i <= instruments->Count(); ++i) {
      const auto record = instruments->item(i);
      const auto type = record->MTIType().empty() ? record->TypeName() : record->MTIType();
      testers_.push_back(Tr(
          "%%1, serial number %%2, firmware %%3",
          {VisibleText(type), VisibleText(record->SerialNumber()), VisibleText(record->FirmwareVersion())}));
      leads_.push_back(VisibleText(record->Property("calib")));
    }
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
    AddFact(Tr("Tested"), parts::SpanText(times_));
    AddFact(Tr("Operator"), times_.operators.empty() ? Tr("not recorded") : Joined(times_.operators, ", "));
    if (testers_.empty()) AddFact(Tr("Tester"), Tr("not recorded"));
    for (std::size_t i = 0; i < testers_.size(); ++i) {
      AddFact(testers_.size() == 1 ? Tr("Tester") : Tr("Tester %%1", {std::to_string(i + 1)}), testers_[i]);
      if (!leads_[i].empty()) AddFact(Tr("Its test leads"), leads_[i] + " mOhm");
    }
    AddFact(Tr("Standards"), StandardsText());
    AddFact(Tr("Document"), VisibleText(document_.Path().filename().string()));
  }

  std::string StandardsText() const {
    std::vector<std::string> names;
    for (std::int32_t i = 1; i <= standards_->Count(); ++i) {
      const auto standard = standards_->item(i);
      auto name = VisibleText(standard->Name());
      if (!standard->Description().empty()) name += " (" + VisibleText(standard->Description()) + ")";
      names.push_back(std::move(name));
    }
    return names.empty() ? Tr("none selected: nothing was judged by limits") : Joined(names, "; ");
  }

  void AddPageHeader() {
    const auto& equipment = document_.equipment;
    std::vector<std::string> names;
    for (const auto& part : {equipment.asset, equipment.maker, equipment.model, equipment.serial})
      if (!part.empty()) names.push_back(VisibleText(part));
    report_.pageHeader = {
        {Tr("Equipment"),
         names.empty() ? VisibleText(document_.Path().filename().string()) : Joined(names, ", ")},
        {Tr("Tester"), testers_.empty() ? Tr("not recorded") : testers_.back()},
        {Tr("Tested"), parts::SpanText(times_)},
        {Tr("Operator"), times_.operators.empty() ? Tr("not recorded") : Joined(times_.operators, ", ")}};
  }

  void AddElement(const Element& element, const ElementSummary& summary) {
    const bool atTop = summary.parent == 0;
    const int depth = atTop ? 0 : depths_[summary.parent] + 1;
    depths_[summary.id] = depth;
    const auto base = host_.Elements()->BaseOf(element);
    const bool printed =
        (!base || base->Auxiliary()->PrintElement()) && (atTop || !unprinted_.contains(summary.parent));
    if (!printed) unprinted_.insert(summary.id);

    auto row = RowOf(element, summary);
    row.depth = depth;
    row.detailed = printed;
    if (printed) report_.sections.push_back(SectionOf(element, summary, row));
    report_.overview.push_back(std::move(row));
  }

  report::OverviewRow RowOf(const Element& element, const ElementSummary& summary) const {
    report::OverviewRow row;
    row.id = summary.id;
    row.name = VisibleText(summary.name);
    row.value = parts::ValueText(summary);
    if (!row.value.empty()) row.unit = VisibleText(summary.measurement->unit);
    row.standing = parts::StandingOf(summary);
    row.word = VisibleText(Tr(summary.Verdict()));
    // Nobody has said that the reading is good: a green tick would.
    if (IsUnjudged(element, summary)) {
      row.standing = report::Standing::kNotApplicable;
      row.word = Joined({row.word, Tr("not judged")}, ", ");
    }
    return row;
  }

  report::Section SectionOf(const Element& element, const ElementSummary& summary,
                            const report::OverviewRow& row) const {
    report::Section section;
    section.id = row.id;
    section.depth = row.depth;
    section.name = row.name;
    section.standing = row.standing;
    section.word = row.word;
    section.value = row.value;
    section.unit = row.unit;
    for (const auto& standard : summary.failedStandards)
      section.notes.push_back({report::Standing::kFailed, Tr("Fails %%1", {VisibleText(standard)})});
    for (const auto& doubt : summary.doubts)
      section.notes.push_back(
          {report::Standing::kOpen, Tr("Doubt: %%1", {VisibleText(doubt, LineEnds::kKept)})});
    if (IsUnjudged(element, summary))
      section.notes.push_back({report::Standing::kOpen, Tr("no limits: recorded, not judged")});
    section.facts = FactsOf(element, summary);
    section.judgements = parts::JudgementsOf(*element, summary, *standards_);
    section.tables = parts::TablesOf(*element, section.name);
    return section;
  }

  std::vector<Fact> FactsOf(const Element& element, const ElementSummary& summary) const {
    std::vector<Fact> facts;
    if (const auto mark = MarkOf(element)) {
      facts.push_back({Tr("Tested"), parts::MinuteText(mark->date)});
      if (!mark->by.empty()) facts.push_back({Tr("Operator"), VisibleText(mark->by)});
    }
    const auto tester = static_cast<std::size_t>(std::max(summary.mtiId, 0));
    if (testers_.size() > 1 && tester >= 1 && tester <= testers_.size())
      facts.push_back({Tr("Tester"), testers_[tester - 1]});
    const auto result = element->Result();
    if (result && !result->Comment().empty())
      facts.push_back({Tr("Comment"), VisibleText(result->Comment(), LineEnds::kKept)});
    return facts;
  }

  const Document& document_;
  Host& host_;
  std::shared_ptr<orvik::IStandardColl> standards_;
  DocumentSummary summary_;
  std::vector<Element> elements_;  ///< as in the summary
  parts::RunTimes times_;
  std::vector<std::string> testers_, leads_;
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

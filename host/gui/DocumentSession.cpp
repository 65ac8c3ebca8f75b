#include "host/gui/DocumentSession.h"

#include <array>
#include <cstdlib>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/Codes.h"
#include "OrvikTypeLib/HostError.h"
#include "OrvikTypeLib/IConfigData.h"
#include "OrvikTypeLib/ILimitData.h"
#include "OrvikTypeLib/ITestContainer.h"
#include "host/base/TextColumns.h"
#include "host/base/Tr.h"
#include "host/base/VisibleText.h"
#include "host/bench/InputError.h"
#include "host/bench/RecordOnlyMark.h"
#include "host/bench/ReportFile.h"
#include "host/bench/TestOptions.h"
#include "host/bench/UnsavedChanges.h"
#include "host/document/SavedSettings.h"
#include "host/elements/ElementFactory.h"
#include "host/plugins/keld/KeldTests.h"
#include "host/report/DocumentReport.h"
#include "host/report/ReportParts.h"
#include "host/standards/ElementLimits.h"

namespace host::gui {

namespace {

using Element = std::shared_ptr<orvik::ITestElement>;

std::vector<std::string> OptionsInWords(std::int32_t bits, std::int32_t testId) {
  std::vector<std::string> words;
  if (bits & orvik::OptionBits::kOffersNotApplicable)
    words.push_back(Tr("The guide offers \"not applicable\"."));
  if (bits & orvik::OptionBits::kOffersSkip) words.push_back(Tr("The guide offers \"skip\"."));
  if (bench::options::SaysLeads(bits, testId))
    words.push_back(Tr("Leads: %%1.", {bench::options::LeadsInWords(bits)}));
  return words;
}

/// How a sequence's value is made up; the settings hold it in English.
std::string FilterInWords(const std::string& filter) {
  for (const auto* known : plugins::keld::kFilters)
    if (filter == known) return Tr(known);
  return filter;
}

/// What made the result.
std::vector<report::Fact> OriginOf(const judge::JudgedElement& element, bool simulated) {
  using host::VisibleText;
  std::vector<report::Fact> facts;
  if (element.Current()) {
    report::parts::AddFact(facts, Tr("Run"),
                           std::to_string(element.run) + (simulated ? ", " + Tr("SIMULATED") : ""));
    report::parts::AddFact(facts, Tr("Tested"), report::parts::MinuteText(element.at));
    report::parts::AddFact(facts, Tr("Operator"), VisibleText(element.by));
    if (element.tester) report::parts::AddTesters(facts, {*element.tester});
  }
  report::parts::AddFact(facts, Tr("Comment"), VisibleText(element.comment, host::LineEnds::kKept));
  return facts;
}

}  // namespace

void DocumentSession::Create(const std::filesystem::path& file) {
  document_ = document::Document::Create(workbench_.Host(), file);
  openedMark_.reset();  // a new document is worth saving
}

void DocumentSession::CreateFromThis(const std::filesystem::path& file) {
  const auto next = document::Document::Create(workbench_.Host(), file);
  next->AddPlanOf(*document_);
  document_ = next;
  openedMark_.reset();
}

void DocumentSession::Open(const std::filesystem::path& file) {
  std::error_code absent;
  // The document holds its file alone, also against ourselves.
  if (document_ && std::filesystem::equivalent(document_->Path(), file, absent)) document_.reset();
  document_ = document::Document::Open(workbench_.Host(), file);
  openedMark_ = document::Document::MarkOf(document_->Text());
}

void DocumentSession::SaveAs(const std::filesystem::path& file) {
  document_->MoveTo(file);
  Save();
}

bool DocumentSession::Changed() const {
  if (!document_) return false;
  const auto saved = document_->SavedMark();
  try {
    return document::Document::MarkOf(document_->Text()) != (saved ? saved : openedMark_);
  } catch (const orvik::HostError&) {
    return true;  // saving reports the reason
  }
}

std::filesystem::path DocumentSession::UnsavedFile() const { return bench::UnsavedFile(*document_); }

std::filesystem::path DocumentSession::KeepUnsaved() const { return bench::KeepUnsaved(*document_); }

std::string DocumentSession::Device() const {
  const auto& equipment = document_->equipment;
  std::vector<std::string> kind;
  for (const auto& part : {equipment.maker, equipment.model})
    if (!part.empty()) kind.push_back(part);
  const auto& number = equipment.asset.empty() ? equipment.serial : equipment.asset;
  if (number.empty() && kind.empty()) return document_->Path().filename().string();
  if (number.empty()) return Joined(kind, " ");
  return kind.empty() ? number : number + " (" + Joined(kind, " ") + ")";
}

report::DocumentView DocumentSession::View() const { return report::ViewOf(*document_, *workbench_.Host()); }

std::vector<report::Section> DocumentSession::Sections(const report::DocumentView& view,
                                                       const std::vector<std::int32_t>& ids) const {
  auto sections = report::SectionsOf(*document_, *workbench_.Host(), view, ids);
  for (auto& section : sections)
    if (const auto* element = view.judged.Find(section.id))
      section.facts = OriginOf(*element, view.judged.simulated);
  return sections;
}

report::Table DocumentSession::Runs(const report::DocumentView& view) const {
  return report::RunsOf(*document_, view);
}

std::vector<std::string> DocumentSession::Settings(std::int32_t id) const {
  const auto element = document_->Find(id);
  const auto configuration = element ? element->Configuration() : nullptr;
  if (!configuration) return {};
  const document::SavedSettings saved(*configuration);
  if (!saved.Settings()) return {};
  auto words = OptionsInWords(
      std::atoi(saved.Settings()->Attribute(document::SavedSettings::kOptions).c_str()), element->TestID());
  const auto filter = saved.Settings()->Attribute(document::SavedSettings::kFilter);
  if (orvik::As<orvik::ITestContainer>(element) && !filter.empty())
    words.push_back(Tr("Value of the sequence: %%1.", {FilterInWords(filter)}));
  return words;
}

std::int32_t DocumentSession::AddTests(const std::vector<std::int32_t>& testIds) {
  std::int32_t last = 0;
  for (const auto testId : testIds) last = document_->AddTest(testId)->ID();
  return last;
}

void DocumentSession::Remove(std::int32_t id) { document_->Remove(Found(id)); }

bool DocumentSession::IsRecordOnly(std::int32_t id) const {
  return bench::IsRecordOnly(Found(id), *workbench_.Host()->Elements());
}

void DocumentSession::SetRecordOnly(std::int32_t id, bool recordOnly) {
  bench::MarkRecordOnly(Found(id), *workbench_.Host()->Elements(), recordOnly);
}

bool DocumentSession::HasLimits(std::int32_t id) const {
  const auto limits = Found(id)->Limits();
  return limits && !standards::LimitsOf(*limits).empty();
}

void DocumentSession::RemoveLimits(std::int32_t id) {
  if (const auto limits = Found(id)->Limits())
    standards::RemoveStandards(*limits, [](const orvik::IStandard&) { return true; });
}

bench::AppliedLimits DocumentSession::ApplySet(const standards::LimitSet& set,
                                               std::optional<std::int32_t> id) {
  const auto elements = id ? std::vector<Element>{Found(*id)} : report::TopElements(*document_);
  auto result = bench::ApplyLimitSet(set, elements, *workbench_.Host()->Elements());
  if (result.applied.empty())
    throw bench::InputError(Tr("%%1: the set covers none of these elements", {set.Name()}));
  return result;
}

void DocumentSession::WriteReport(const std::filesystem::path& out) const {
  bench::CheckReportFile(document_->Path(), out);
  bench::WriteReport(report::ReportOf(*document_, *workbench_.Host(), options_.language), out);
}

Element DocumentSession::Found(std::int32_t id) const {
  auto element = document_->Find(id);
  if (!element) throw bench::InputError(Tr("The document has no element %%1.", {std::to_string(id)}));
  return element;
}

}  // namespace host::gui

#include "host/app/archive/ArchiveCommandEntry.h"

#include <unistd.h>

#include <array>
#include <filesystem>

#include "OrvikTypeLib/ILimit.h"
#include "OrvikTypeLib/ILimitData.h"
#include "OrvikTypeLib/IStandard.h"
#include "OrvikTypeLib/IStandardColl.h"
#include "host/app/DocumentView.h"
#include "host/app/InputError.h"
#include "host/app/Workbench.h"
#include "host/archive/IsoTime.h"
#include "host/archive/SavedRunMarks.h"
#include "host/document/Document.h"
#include "host/run/ElementWalk.h"
#include "host/services/Files.h"
#include "host/services/Text.h"
#include "host/services/Tr.h"

namespace bench {

namespace {

enum Status { kNotTested = 0, kAborted = 4 };

std::string MachineName() {
  std::array<char, 256> name{};
  return gethostname(name.data(), name.size() - 1) == 0 ? ValidUtf8(name.data()) : std::string();
}

bool HasResult(const ElementSummary& element) {
  return element.status != kNotTested && element.status != kAborted;
}

void MakeValid(std::vector<std::string>& texts) {
  for (auto& text : texts) text = ValidUtf8(text);
}

ElementSummary Valid(ElementSummary summary) {
  for (auto* text : {&summary.name, &summary.serviceCode, &summary.serviceValue}) *text = ValidUtf8(*text);
  if (summary.measurement) {
    summary.measurement->unit = ValidUtf8(summary.measurement->unit);
    summary.measurement->flags = ValidUtf8(summary.measurement->flags);
  }
  MakeValid(summary.failedStandards);
  MakeValid(summary.doubts);
  return summary;
}

std::vector<StandardLimit> LimitsOf(const orvik::ITestElement& element) {
  std::vector<StandardLimit> limits;
  const auto data = element.Limits();
  const auto standards = data ? data->Standards() : nullptr;
  for (std::int32_t i = 1; standards && i <= standards->Count(); ++i) {
    const auto standard = standards->item(i);
    for (std::int32_t j = 1; j <= standard->LimitCount(); ++j) {
      const auto limit = standard->Limit(j);
      const auto low = limit->LowBound(), high = limit->HighBound();
      if (low || high)
        limits.push_back({ValidUtf8(standard->Name()), ValidUtf8(standard->Description()),
                          ValidUtf8(limit->Unit()), low, high});
    }
  }
  return limits;
}

std::vector<ArchivedElement> ElementsOf(const Document& document, const DocumentSummary& summary,
                                        const std::map<std::int32_t, SavedRunMark>& marks) {
  std::vector<ArchivedElement> elements;
  for (const auto& element : summary.elements) {
    ArchivedElement kept{Valid(element), {}, {}, {}};
    const auto mark = marks.find(element.id);
    if (mark != marks.end()) kept.runDate = mark->second.date, kept.operatorName = mark->second.by;
    if (const auto found = document.Find(element.id)) kept.limits = LimitsOf(*found);
    elements.push_back(std::move(kept));
  }
  return elements;
}

/// A result that was set aside has no run.
void DropUntested(const DocumentSummary& summary, std::map<std::int32_t, SavedRunMark>& marks) {
  for (const auto& element : summary.elements)
    if (element.status == kNotTested) marks.erase(element.id);
}

}  // namespace

ArchivedDocument EntryOf(const std::string& file, Workbench& workbench) {
  ArchivedDocument entry;
  entry.contents = ReadFile(file);
  const auto document = Document::Open(workbench.Host(), file, DocumentFile::Use::kRead);
  if (ReadFile(file) != entry.contents)
    throw InputError(Tr("%%1 is being changed by another program; try again when that has ended", {file}));
  auto standards = document->Standards();
  if (standards->Count() == 0) standards = NamedStandards(*document, *workbench.Host());
  const auto summary = SummaryOf(*document, *workbench.Host(), standards);

  auto marks = SavedRunMarks(entry.contents);
  DropUntested(summary, marks);
  entry.elements = ElementsOf(*document, summary, marks);
  if (const auto& tester = summary.instrument)
    entry.instrument = ArchivedInstrument{ValidUtf8(tester->type), ValidUtf8(tester->serial),
                                          ValidUtf8(tester->firmware), tester->calibration};
  auto& told = entry.entry;
  told.bench = MachineName();
  told.path = ValidUtf8(document->Path().string());
  told.asset = ValidUtf8(document->equipment.asset);
  told.serial = ValidUtf8(document->equipment.serial);
  told.maker = ValidUtf8(document->equipment.maker);
  told.model = ValidUtf8(document->equipment.model);
  told.outcome = OutcomeText(summary.outcome);
  told.finished = UnfinishedReason(entry).empty();
  told.runDate = LastDate(marks);
  told.operatorName = Operators(marks);
  told.added = IsoText(UtcNow());
  return entry;
}

std::string UnfinishedReason(const ArchivedDocument& document) {
  if (document.elements.empty()) return Tr("it has no tests");
  std::size_t open = 0;
  const ElementSummary* first = nullptr;
  for (const auto& element : document.elements) {
    if (HasResult(element.summary)) continue;
    ++open;
    if (!first) first = &element.summary;
  }
  if (!first) return {};
  return Tr("%%1 of its %%2 elements have no result, the first is element %%3, %%4 (%%5)",
            {std::to_string(open), std::to_string(document.elements.size()), std::to_string(first->id),
             first->name, Tr(StatusText(first->status))});
}

std::string ReceiptText(const std::string& file, const Archive::Receipt& receipt) {
  const std::vector<std::string> values = {file, std::to_string(receipt.id),
                                           std::to_string(receipt.revision)};
  switch (receipt.added) {
    case Archive::Added::kNew:
      return Tr("%%1: added as document %%2", values);
    case Archive::Added::kRevision:
      return Tr("%%1: has changed, added as document %%2, revision %%3", values);
    case Archive::Added::kUnchanged:
      break;
  }
  return Tr("%%1: is in the archive already, as document %%2; nothing was added", values);
}

}  // namespace bench

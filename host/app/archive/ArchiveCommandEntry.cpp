#include "host/app/archive/ArchiveCommandEntry.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <filesystem>

#include "host/app/DocumentView.h"
#include "host/app/InputError.h"
#include "host/app/TextColumns.h"
#include "host/app/Workbench.h"
#include "host/archive/IsoTime.h"
#include "host/document/Document.h"
#include "host/services/Files.h"
#include "host/services/Text.h"
#include "host/services/Tr.h"

namespace bench {

namespace {

std::string MachineName() {
  std::array<char, 256> name{};
  return gethostname(name.data(), name.size() - 1) == 0 ? ValidUtf8(name.data()) : std::string();
}

bool HasResult(const judge::JudgedElement& element) {
  return element.verdict != judge::Verdict::kNotTested && element.verdict != judge::Verdict::kAborted;
}

judge::JudgedElement Valid(judge::JudgedElement element) {
  for (auto* text : {&element.name, &element.serviceCode, &element.serviceValue}) *text = ValidUtf8(*text);
  if (element.measurement) {
    element.measurement->unit = ValidUtf8(element.measurement->unit);
    element.measurement->flags = ValidUtf8(element.measurement->flags);
  }
  return element;
}

std::vector<StandardLimit> LimitsOf(const judge::JudgedElement& element) {
  std::vector<StandardLimit> limits;
  for (const auto& limit : element.limits)
    limits.push_back({ValidUtf8(limit.standard), ValidUtf8(limit.description), ValidUtf8(limit.unit),
                      limit.low, limit.high});
  return limits;
}

std::vector<ArchivedElement> ElementsOf(const judge::JudgedDocument& judged) {
  std::vector<ArchivedElement> elements;
  for (const auto& element : judged.elements)
    elements.push_back(
        {Valid(element), UtcText(element.at).value_or(""), ValidUtf8(element.by), LimitsOf(element)});
  return elements;
}

std::string LastDate(const std::vector<ArchivedElement>& elements) {
  std::string last;
  for (const auto& element : elements) last = std::max(last, element.runDate);
  return last;
}

/// Each once, in the order of the elements: "A. Berg, K. Holm".
std::string Operators(const std::vector<ArchivedElement>& elements) {
  std::vector<std::string> names;
  for (const auto& element : elements)
    if (!element.operatorName.empty() &&
        std::find(names.begin(), names.end(), element.operatorName) == names.end())
      names.push_back(element.operatorName);
  return Joined(names, ", ");
}

}  // namespace

ArchivedDocument EntryOf(const std::string& file, Workbench& workbench) {
  ArchivedDocument entry;
  entry.contents = ReadFile(file);
  const auto document = Document::Open(workbench.Host(), file, DocumentFile::Use::kRead);
  if (ReadFile(file) != entry.contents)
    throw InputError(Tr("%%1 is being changed by another program; try again when that has ended", {file}));
  const auto view = ViewOf(*document, *workbench.Host());
  entry.elements = ElementsOf(view.judged);
  if (const auto& tester = view.instrument)
    entry.instrument = ArchivedInstrument{ValidUtf8(tester->type), ValidUtf8(tester->serial),
                                          ValidUtf8(tester->firmware), tester->leads};
  auto& told = entry.entry;
  told.bench = MachineName();
  told.path = ValidUtf8(document->Path().string());
  told.asset = ValidUtf8(document->equipment.asset);
  told.serial = ValidUtf8(document->equipment.serial);
  told.maker = ValidUtf8(document->equipment.maker);
  told.model = ValidUtf8(document->equipment.model);
  told.outcome = judge::OutcomeText(view.judged.outcome);
  told.finished = UnfinishedReason(entry).empty();
  told.runDate = LastDate(entry.elements);
  told.operatorName = Operators(entry.elements);
  told.added = IsoText(UtcNow());
  return entry;
}

std::string UnfinishedReason(const ArchivedDocument& document) {
  if (document.elements.empty()) return Tr("it has no tests");
  std::size_t open = 0;
  const judge::JudgedElement* first = nullptr;
  for (const auto& element : document.elements) {
    if (HasResult(element.summary)) continue;
    ++open;
    if (!first) first = &element.summary;
  }
  if (!first) return {};
  return Tr("%%1 of its %%2 elements have no result, the first is element %%3, %%4 (%%5)",
            {std::to_string(open), std::to_string(document.elements.size()), std::to_string(first->id),
             first->name, Tr(judge::VerdictText(first->verdict))});
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

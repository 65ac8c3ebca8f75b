#include "host/bench/ArchiveEntryOf.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <initializer_list>

#include "host/archive/IsoTime.h"
#include "host/base/Files.h"
#include "host/base/Text.h"
#include "host/base/TextColumns.h"
#include "host/base/Tr.h"
#include "host/bench/InputError.h"
#include "host/bench/Workbench.h"
#include "host/document/Document.h"
#include "host/report/DocumentView.h"

namespace host::bench {

namespace {

std::string MachineName() {
  std::array<char, 256> name{};
  return gethostname(name.data(), name.size() - 1) == 0 ? ValidUtf8(name.data()) : std::string();
}

bool HasResult(const judge::JudgedElement& element) {
  return element.verdict != judge::Verdict::kNotTested && element.verdict != judge::Verdict::kAborted;
}

void MakeValid(std::initializer_list<std::string*> texts) {
  for (auto* text : texts) *text = ValidUtf8(*text);
}

/// The databases take nothing but UTF-8.
judge::JudgedElement Valid(judge::JudgedElement element) {
  MakeValid(
      {&element.name, &element.serviceCode, &element.serviceValue, &element.unit, &element.at, &element.by});
  if (element.measurement) MakeValid({&element.measurement->unit, &element.measurement->flags});
  for (auto& limit : element.limits) MakeValid({&limit.standard, &limit.description, &limit.unit});
  for (auto& reason : element.reasons) {
    MakeValid({&reason.code});
    for (auto& argument : reason.arguments) MakeValid({&argument});
  }
  return element;
}

std::vector<archive::ArchivedElement> ElementsOf(const judge::JudgedDocument& judged) {
  std::vector<archive::ArchivedElement> elements;
  for (const auto& element : judged.elements)
    elements.push_back({Valid(element), archive::UtcText(element.at).value_or("")});
  return elements;
}

std::string LastDate(const std::vector<archive::ArchivedElement>& elements) {
  std::string last;
  for (const auto& element : elements) last = std::max(last, element.runDate);
  return last;
}

/// Each once, in the order of the elements: "A. Berg, K. Holm".
std::string Operators(const std::vector<archive::ArchivedElement>& elements) {
  std::vector<std::string> names;
  for (const auto& element : elements)
    if (!element.result.by.empty() && std::find(names.begin(), names.end(), element.result.by) == names.end())
      names.push_back(element.result.by);
  return Joined(names, ", ");
}

}  // namespace

archive::ArchivedDocument ArchiveEntryOf(const std::string& file, Workbench& workbench) {
  archive::ArchivedDocument entry;
  entry.contents = ReadFile(file);
  const auto document = document::Document::Open(workbench.Host(), file, document::DocumentFile::Use::kRead);
  if (ReadFile(file) != entry.contents)
    throw InputError(Tr("%%1 is being changed by another program; try again when that has ended", {file}));
  const auto view = report::ViewOf(*document, *workbench.Host());
  entry.elements = ElementsOf(view.judged);
  entry.instrument = view.instrument;
  if (auto& tester = entry.instrument)
    MakeValid({&tester->type, &tester->serial, &tester->firmware, &tester->leadsMeasured});
  auto& head = entry.entry;
  head.bench = MachineName();
  head.path = ValidUtf8(document->Path().string());
  head.asset = ValidUtf8(document->equipment.asset);
  head.serial = ValidUtf8(document->equipment.serial);
  head.maker = ValidUtf8(document->equipment.maker);
  head.model = ValidUtf8(document->equipment.model);
  head.comment = ValidUtf8(document->comment);
  head.outcome = view.judged.outcome;
  head.simulated = view.judged.simulated;
  head.run = view.judged.run;
  head.finished = UnfinishedReason(entry).empty();
  head.runDate = LastDate(entry.elements);
  head.operatorName = Operators(entry.elements);
  head.added = archive::IsoText(archive::UtcNow());
  return entry;
}

std::string UnfinishedReason(const archive::ArchivedDocument& document) {
  if (document.elements.empty()) return Tr("it has no tests");
  std::size_t open = 0;
  const judge::JudgedElement* first = nullptr;
  for (const auto& element : document.elements) {
    if (HasResult(element.result)) continue;
    ++open;
    if (!first) first = &element.result;
  }
  if (!first) return {};
  return Tr("%%1 of its %%2 elements have no result, the first is element %%3, %%4 (%%5)",
            {std::to_string(open), std::to_string(document.elements.size()), std::to_string(first->id),
             first->name, Tr(judge::VerdictText(first->verdict))});
}

std::string SimulatedMark(const archive::ArchiveEntry& entry) {
  return entry.simulated ? Tr("(simulated: nothing was measured)") : std::string();
}

std::string ReceiptText(const archive::ArchivedDocument& document, const std::string& file,
                        const archive::Archive::Receipt& receipt) {
  const std::vector<std::string> values = {file, std::to_string(receipt.id),
                                           std::to_string(receipt.revision)};
  const auto mark = SimulatedMark(document.entry);
  const auto after = mark.empty() ? std::string() : " " + mark;
  switch (receipt.added) {
    case archive::Archive::Added::kNew:
      return Tr("%%1: added as document %%2", values) + after;
    case archive::Archive::Added::kRevision:
      return Tr("%%1: has changed, added as document %%2, revision %%3", values) + after;
    case archive::Archive::Added::kUnchanged:
      break;
  }
  return Tr("%%1: is in the archive already, as document %%2; nothing was added", values);
}

}  // namespace host::bench

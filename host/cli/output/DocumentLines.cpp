#include "host/cli/output/DocumentLines.h"

#include <filesystem>
#include <map>

#include "host/base/TextColumns.h"
#include "host/base/Tr.h"
#include "host/base/VisibleText.h"
#include "host/cli/output/Colour.h"
#include "host/report/DocumentText.h"

namespace host::cli {

namespace {

using host::VisibleText;
using judge::JudgedElement;
using judge::Outcome;
using judge::Verdict;

Tone ToneOf(Verdict verdict) {
  if (verdict == Verdict::kFailed) return Tone::kBad;
  return judge::IsDone(verdict) ? Tone::kGood : Tone::kOpen;
}

Tone ToneOf(Outcome outcome) {
  switch (outcome) {
    case Outcome::kPassed:
      return Tone::kGood;
    case Outcome::kFailed:
      return Tone::kBad;
    case Outcome::kIncomplete:
      break;
  }
  return Tone::kOpen;
}

std::string ElementsOf(const judge::JudgedDocument& document, bool coloured) {
  std::string text;
  std::map<std::int32_t, int> depths;
  for (const auto& element : document.elements) {
    const auto parent = depths.find(element.parent);
    const int depth = parent == depths.end() ? 0 : parent->second + 1;
    depths[element.id] = depth;
    text += LeftPadded(std::to_string(element.id), 4) + "  " +
            Toned(Padded(Tr(judge::VerdictText(element.verdict)), 15), ToneOf(element.verdict), coloured) +
            Padded(report::ReadingText(element), 16) + std::string(2 * static_cast<std::size_t>(depth), ' ') +
            VisibleText(element.name) + "\n";
    for (const auto& reason : report::ReasonTexts(element))
      text += std::string(6, ' ') + VisibleText(reason) + "\n";
  }
  return text;
}

}  // namespace

std::string LineOf(const JudgedElement& element, bool coloured) {
  return std::to_string(element.id) + "  " +
         Toned(Tr(judge::VerdictText(element.verdict)), ToneOf(element.verdict), coloured) + "  " +
         report::ReadingText(element) + "  " + VisibleText(element.name);
}

std::string TextOf(const report::DocumentView& document, bool coloured) {
  const auto& judged = document.judged;
  std::string text =
      Tr("%%1: %%2", {VisibleText(std::filesystem::path(document.path).filename().string()),
                      Toned(Tr(judge::OutcomeText(judged.outcome)), ToneOf(judged.outcome), coloured)}) +
      "\n";
  if (const auto equipment = report::EquipmentText(document.equipment); !equipment.empty())
    text += Tr("Equipment %%1", {equipment}) + "\n";
  if (!document.comment.empty()) text += Tr("Comment: %%1", {VisibleText(document.comment)}) + "\n";
  if (judged.simulated) text += Tr("SIMULATED: a simulated tester was used; nothing was measured.") + "\n";
  if (document.instrument) text += report::TesterLine(*document.instrument) + "\n";
  if (!judged.leftOut.empty())
    text += Tr("Judged by %%1 alone; left out: %%2",
               {VisibleText(Joined(judged.standards, ", ")), VisibleText(Joined(judged.leftOut, ", "))}) +
            "\n";
  return text + ElementsOf(judged, coloured);
}

}  // namespace host::cli

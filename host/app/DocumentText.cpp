#include "host/app/DocumentText.h"

#include <filesystem>
#include <map>

#include "host/app/Colour.h"
#include "host/app/TextColumns.h"
#include "host/report/VisibleText.h"
#include "host/services/Tr.h"

namespace bench {

namespace {

using report::VisibleText;

Tone ToneOf(const ElementSummary& element) {
  if (element.CountsAsDone()) return Tone::kGood;
  return element.Failed() ? Tone::kBad : Tone::kOpen;
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

std::string ElementsOf(const DocumentSummary& document, bool coloured) {
  std::string text;
  std::map<std::int32_t, int> depths;
  for (const auto& element : document.elements) {
    const auto parent = depths.find(element.parent);
    const int depth = parent == depths.end() ? 0 : parent->second + 1;
    depths[element.id] = depth;
    text += LeftPadded(std::to_string(element.id), 4) + "  " +
            Toned(Padded(Tr(element.Verdict()), 15), ToneOf(element), coloured) +
            Padded(ReadingText(element), 16) + std::string(2 * static_cast<std::size_t>(depth), ' ') +
            VisibleText(element.name) + "\n";
    if (!element.failedStandards.empty())
      text +=
          std::string(6, ' ') + Tr("fails %%1", {VisibleText(Joined(element.failedStandards, ", "))}) + "\n";
    if (element.recordedOnly) text += std::string(6, ' ') + Tr("no limits: recorded, not judged") + "\n";
    for (const auto& doubt : element.doubts)
      text += std::string(6, ' ') + Tr("doubt: %%1", {VisibleText(doubt)}) + "\n";
  }
  return text;
}

}  // namespace

std::string ReadingText(const ElementSummary& element) {
  if (!element.measurement || !element.measurement->value) return "-";
  if (element.measurement->flags.find('O') != std::string::npos) return "OL";
  const auto number = ShortNumber(*element.measurement->value);
  return element.measurement->unit.empty() ? number : number + " " + VisibleText(element.measurement->unit);
}

std::string LineOf(const ElementSummary& element, bool coloured) {
  return std::to_string(element.id) + "  " + Toned(Tr(element.Verdict()), ToneOf(element), coloured) + "  " +
         ReadingText(element) + "  " + VisibleText(element.name);
}

std::string TextOf(const DocumentSummary& document, bool coloured) {
  std::string text =
      Tr("%%1: %%2", {VisibleText(std::filesystem::path(document.path).filename().string()),
                      Toned(Tr(OutcomeText(document.outcome)), ToneOf(document.outcome), coloured)}) +
      "\n";
  if (document.instrument) {
    const auto& instrument = *document.instrument;
    text += Tr("Tester %%1, serial number %%2, firmware %%3, test leads %%4 mOhm",
               {VisibleText(instrument.type), VisibleText(instrument.serial),
                VisibleText(instrument.firmware), std::to_string(instrument.calibration)}) +
            "\n";
  }
  return text + ElementsOf(document, coloured);
}

}  // namespace bench

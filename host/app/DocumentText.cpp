#include "host/app/DocumentText.h"

#include <map>

#include "host/app/TextColumns.h"

namespace bench {

namespace {

std::string Joined(const std::vector<std::string>& texts, const char* between) {
  std::string joined;
  for (const auto& text : texts) joined += (joined.empty() ? "" : between) + text;
  return joined;
}

std::string ElementsOf(const DocumentSummary& document) {
  std::string text;
  std::map<std::int32_t, int> depths;
  for (const auto& element : document.elements) {
    const auto parent = depths.find(element.parent);
    const int depth = parent == depths.end() ? 0 : parent->second + 1;
    depths[element.id] = depth;
    text += LeftPadded(std::to_string(element.id), 4) + "  " + Padded(element.Verdict(), 15) +
            Padded(ReadingText(element), 16) + std::string(2 * static_cast<std::size_t>(depth), ' ') +
            element.name + "\n";
    if (!element.failedStandards.empty())
      text += std::string(6, ' ') + "fails " + Joined(element.failedStandards, ", ") + "\n";
    for (const auto& doubt : element.doubts) text += std::string(6, ' ') + "doubt: " + doubt + "\n";
  }
  return text;
}

}  // namespace

std::string ReadingText(const ElementSummary& element) {
  if (!element.measurement || !element.measurement->value) return "-";
  if (element.measurement->flags.find('O') != std::string::npos) return "OL";
  const auto number = ShortNumber(*element.measurement->value);
  return element.measurement->unit.empty() ? number : number + " " + element.measurement->unit;
}

std::string LineOf(const ElementSummary& element) {
  return std::to_string(element.id) + "  " + element.Verdict() + "  " + ReadingText(element) + "  " +
         element.name;
}

std::string TextOf(const DocumentSummary& document) {
  std::string text = document.path + ": " + OutcomeText(document.outcome) + "\n";
  if (document.instrument) {
    const auto& instrument = *document.instrument;
    text += "Tester " + instrument.type + ", serial number " + instrument.serial + ", firmware " +
            instrument.firmware + ", test leads " + std::to_string(instrument.calibration) + " mOhm\n";
  }
  return text + ElementsOf(document);
}

}  // namespace bench

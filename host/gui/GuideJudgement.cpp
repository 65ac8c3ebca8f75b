#include "host/gui/GuideJudgement.h"

#include "host/base/TextColumns.h"
#include "host/base/Tr.h"
#include "host/report/HtmlText.h"

namespace host::gui {

namespace {

using report::Section;
using report::Standing;
using TextLines = std::vector<std::string>;

constexpr std::size_t kMostLines = 6;  ///< the guide must fit on a small screen

std::string Signed(Standing standing, const std::string& text) {
  return std::string(report::html::PlainSignOf(standing)) + " " + text;
}

std::string VerdictLine(const Section& section) {
  return Signed(section.standing, Tr("%%1: %%2", {section.name, section.word}));
}

/// Every standard that judged the reading: the guide's list shows the limits of one of them only.
void AppendStandards(TextLines& lines, const Section& section) {
  for (const auto& judgement : section.judgements)
    lines.push_back(Signed(judgement.standing,
                           Tr("%%1: %%2, %%3", {judgement.standard, judgement.bounds, judgement.word})));
}

}  // namespace

std::string GuideJudgement(const std::vector<Section>& sections) {
  TextLines lines;
  for (const auto& section : sections) {
    if (section.depth > 0 && section.standing == Standing::kPassed) continue;
    lines.push_back(VerdictLine(section));
    if (section.standing == Standing::kFailed) AppendStandards(lines, section);
    if (report::ToneOf(section.standing) == report::Tone::kOpen)
      for (const auto& note : section.notes) lines.push_back(Signed(note.standing, note.text));
  }
  if (lines.size() > kMostLines) {
    const auto more = std::to_string(lines.size() - kMostLines + 1);
    lines.resize(kMostLines - 1);
    lines.push_back(Tr("%%1 more lines: see the list of tests", {more}));
  }
  return Joined(lines, "\n");
}

}  // namespace host::gui

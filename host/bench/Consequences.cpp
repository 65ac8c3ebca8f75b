#include "host/bench/Consequences.h"

#include "host/base/TextColumns.h"
#include "host/base/Tr.h"
#include "host/base/VisibleText.h"
#include "host/document/Document.h"
#include "host/document/Host.h"
#include "host/report/DocumentText.h"
#include "host/report/DocumentView.h"

namespace host::bench {

Consequences::Consequences(const document::Document& document, document::Host& host)
    : document_(document), host_(host), before_(Now()) {}

Consequences::Judgement Consequences::Now() const {
  const auto judged = report::ViewOf(document_, host_).judged;
  Judgement judgement{judge::OutcomeText(judged.outcome), {}};
  for (const auto& element : judged.elements)
    judgement.elements[element.id] = {
        element.name, judge::VerdictText(element.verdict),
        judge::IsDone(element.verdict) || element.verdict == judge::Verdict::kFailed,
        Joined(report::ReasonTexts(element), "; ")};
  return judgement;
}

std::string Consequences::LineOf(std::int32_t id, const Verdict& before, const Verdict& after) {
  if (after.verdict == before.verdict || (!before.counts && !after.counts)) return {};
  const std::vector<std::string> values{std::to_string(id), Tr(after.verdict), Tr(before.verdict)};
  const auto reasons = after.reasons.empty() ? std::string() : ": " + host::VisibleText(after.reasons);
  const auto change = !after.counts    ? Tr("element %%1 no longer counts: %%2 (was: %%3)", values)
                      : !before.counts ? Tr("element %%1 counts now: %%2 (was: %%3)", values)
                                       : Tr("element %%1 is now: %%2 (was: %%3)", values);
  return change + reasons + "\n";
}

std::string Consequences::Text() const {
  const auto now = Now();
  std::string text;
  for (const auto& [id, before] : before_.elements) {
    if (const auto after = now.elements.find(id); after != now.elements.end())
      text += LineOf(id, before, after->second);
    else if (before.counts)
      text +=
          Tr("element %%1 is removed; its result was: %%2", {std::to_string(id), Tr(before.verdict)}) + "\n";
  }
  if (now.outcome != before_.outcome)
    text += Tr("the document is now: %%1 (was: %%2)", {Tr(now.outcome), Tr(before_.outcome)}) + "\n";
  return text;
}

}  // namespace host::bench

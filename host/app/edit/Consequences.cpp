#include "host/app/edit/Consequences.h"

#include "host/Host.h"
#include "host/app/DocumentText.h"
#include "host/app/DocumentView.h"
#include "host/app/TextColumns.h"
#include "host/document/Document.h"
#include "host/report/VisibleText.h"
#include "host/services/Tr.h"

namespace bench {

Consequences::Consequences(const Document& document, Host& host)
    : document_(document), host_(host), before_(Now()) {}

Consequences::Judgement Consequences::Now() const {
  const auto judged = ViewOf(document_, host_).judged;
  Judgement judgement{judge::OutcomeText(judged.outcome), {}};
  for (const auto& element : judged.elements)
    judgement.elements[element.id] = {
        element.name, judge::VerdictText(element.verdict),
        judge::IsDone(element.verdict) || element.verdict == judge::Verdict::kFailed,
        Joined(ReasonTexts(element), "; ")};
  return judgement;
}

std::string Consequences::Text() const {
  using report::VisibleText;
  const auto now = Now();
  std::string text;
  for (const auto& [id, before] : before_.elements) {
    if (!before.counts) continue;
    const auto number = std::to_string(id);
    const auto found = now.elements.find(id);
    if (found == now.elements.end()) {
      text += Tr("element %%1 is removed; its result was: %%2", {number, Tr(before.verdict)}) + "\n";
      continue;
    }
    const auto& after = found->second;
    if (after.verdict == before.verdict) continue;
    const auto reasons = after.reasons.empty() ? std::string() : ": " + VisibleText(after.reasons);
    text += (after.counts
                 ? Tr("element %%1 is now: %%2 (was: %%3)", {number, Tr(after.verdict), Tr(before.verdict)})
                 : Tr("element %%1 no longer counts: %%2 (was: %%3)",
                      {number, Tr(after.verdict), Tr(before.verdict)})) +
            reasons + "\n";
  }
  if (now.outcome != before_.outcome && !text.empty())
    text += Tr("the document is now: %%1 (was: %%2)", {Tr(now.outcome), Tr(before_.outcome)}) + "\n";
  return text;
}

}  // namespace bench

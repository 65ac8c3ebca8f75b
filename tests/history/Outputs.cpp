#include "tests/history/Outputs.h"

#include <nlohmann/json.hpp>

#include "host/app/DocumentJson.h"
#include "host/app/DocumentText.h"
#include "host/app/report/DocumentReport.h"
#include "host/services/Text.h"

namespace history {

std::optional<std::string> OutputsDiffer(const bench::DocumentView& view, const bench::Document& document,
                                         bench::Host& host) {
  const auto outcome = bench::judge::OutcomeText(view.judged.outcome);
  const auto json = bench::JsonOf(view);
  if (json["outcome"] != outcome) return "JSON says " + json["outcome"].dump();
  for (std::size_t i = 0; i < view.judged.elements.size(); ++i)
    if (json["elements"][i]["verdict"] != bench::judge::VerdictText(view.judged.elements[i].verdict))
      return "JSON says of an element " + json["elements"][i]["verdict"].dump();
  const auto text = bench::TextOf(view, false);
  if (text.substr(0, text.find('\n')).find(": " + outcome) == std::string::npos)
    return "the text says " + text.substr(0, text.find('\n'));
  const auto word = bench::LowerAscii(bench::ReportOf(document, host).verdict.word);
  if (word != outcome) return "the report says " + word;
  return {};
}

}  // namespace history

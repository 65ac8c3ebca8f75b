#include "tests/system/history/Outputs.h"

#include <nlohmann/json.hpp>

#include "host/base/Text.h"
#include "host/cli/output/DocumentJson.h"
#include "host/cli/output/DocumentLines.h"
#include "host/report/DocumentReport.h"

namespace history {

std::optional<std::string> OutputsDiffer(const host::report::DocumentView& view,
                                         const host::document::Document& document,
                                         host::document::Host& host) {
  const auto outcome = host::judge::OutcomeText(view.judged.outcome);
  const auto json = host::cli::JsonOf(view);
  if (json["outcome"] != outcome) return "JSON says " + json["outcome"].dump();
  for (std::size_t i = 0; i < view.judged.elements.size(); ++i)
    if (json["elements"][i]["verdict"] != host::judge::VerdictText(view.judged.elements[i].verdict))
      return "JSON says of an element " + json["elements"][i]["verdict"].dump();
  const auto text = host::cli::TextOf(view, false);
  if (text.substr(0, text.find('\n')).find(": " + outcome) == std::string::npos)
    return "the text says " + text.substr(0, text.find('\n'));
  const auto word = host::LowerAscii(host::report::ReportOf(document, host).verdict.word);
  if (word != outcome) return "the report says " + word;
  return {};
}

std::optional<std::string> CommandsDiffer(const host::report::DocumentView& view, Bench& program,
                                          bool tampered) {
  const auto outcome = host::judge::OutcomeText(view.judged.outcome);
  const auto shown = nlohmann::json::parse(program.Command({"show", view.path, "--json"}).out);
  if (shown["outcome"] != outcome) return "show --json says " + shown["outcome"].dump();
  const auto text = program.Command({"show", view.path}).out;
  if (text.find(": " + outcome) == std::string::npos) return "show says " + text.substr(0, text.find('\n'));
  const auto report = host::LowerAscii(program.Command({"report", view.path, "--to", "-"}).out);
  if (report.substr(0, report.find("summary")).find(outcome) == std::string::npos)
    return "the report does not say " + outcome + ": " + report;
  if (outcome == "passed" && !tampered) {
    const auto checked = program.Command({"check", view.path});
    if (checked.status != 0) return "it is passed, and check says " + checked.out;
  }
  const auto location = view.path + ".db";
  std::vector<std::string> add{"archive", "add", view.path, "--incomplete", "--archive", location};
  if (view.judged.simulated) add.emplace_back("--simulated");
  const auto added = program.Command(add);
  if (added.status != 0) return "the archive refuses it: " + added.error;
  const auto listed =
      nlohmann::json::parse(program.Command({"archive", "list", "--json", "--archive", location}).out);
  if (listed["documents"].size() != 1 || listed["documents"][0]["outcome"] != outcome)
    return "the archive says " + listed.dump();
  std::filesystem::remove(location);
  return {};
}

}  // namespace history

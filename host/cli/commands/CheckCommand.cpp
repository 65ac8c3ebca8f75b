#include "host/cli/commands/CheckCommand.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <iostream>
#include <nlohmann/json.hpp>

#include "OrvikTypeLib/HostError.h"
#include "host/base/Files.h"
#include "host/base/Tr.h"
#include "host/bench/JudgedCheck.h"
#include "host/cli/help/Examples.h"
#include "host/cli/output/DocumentJson.h"
#include "host/document/Document.h"
#include "host/document/DocumentCheck.h"
#include "host/elements/ElementFactory.h"
#include "host/report/DocumentView.h"

namespace bench {

namespace {

std::size_t WrongOnes(const std::vector<Finding>& findings) {
  return static_cast<std::size_t>(
      std::count_if(findings.begin(), findings.end(), [](const Finding& found) { return found.wrong; }));
}

nlohmann::ordered_json JsonOf(const std::string& file, const std::vector<Finding>& findings) {
  auto all = nlohmann::ordered_json::array();
  for (const auto& found : findings)
    all.push_back({{"kind", found.wrong ? "wrong" : "note"},
                   {"line", found.line},
                   {"column", found.column},
                   {"text", found.text}});
  return {{"document", file}, {"wrong", WrongOnes(findings)}, {"findings", std::move(all)}};
}

}  // namespace

CLI::App* CheckCommand::Declare(CLI::App& program) {
  auto* command = program.add_subcommand("check", Tr("Tell everything that is wrong with a document"));
  command->add_option("FILE", file_, Tr("The document"))->required();
  command->add_flag("--json", json_, Tr("Print one JSON object"));
  command->footer(Examples({"orvik-bench check pump-7.orvik", "orvik-bench check pump-7.orvik --json"}) +
                  "\n\n" +
                  Tr("Exit status 0: nothing is wrong, 3: something is; it is told with line and column."));
  return command;
}

ExitStatus CheckCommand::Run(const GlobalOptions& options) {
  const auto text = ReadFile(file_);
  Workbench workbench(options, Workbench::Settings::kIfReadable);
  auto findings = CheckDocument(text, *workbench.Host()->Elements());
  if (WrongOnes(findings) == 0) {
    // Whatever keeps the document from being opened is wrong with it.
    try {
      const auto document = Document::Open(workbench.Host(), file_, DocumentFile::Use::kRead);
      const auto judged = CheckJudged(text, ViewOf(*document, *workbench.Host()).judged);
      findings.insert(findings.end(), judged.begin(), judged.end());
      std::stable_sort(findings.begin(), findings.end(),
                       [](const Finding& one, const Finding& other) { return one.line < other.line; });
    } catch (const orvik::HostError& error) {
      findings.push_back({true, 1, 1, error.Description()});
    }
  }
  Print(findings);
  return WrongOnes(findings) == 0 ? ExitStatus::kPassed : ExitStatus::kBadInput;
}

void CheckCommand::Print(const std::vector<Finding>& findings) const {
  if (json_) {
    std::cout << Indented(JsonOf(file_, findings)) << "\n";
    return;
  }
  for (const auto& found : findings) {
    const std::vector<std::string> told{file_, std::to_string(found.line), std::to_string(found.column),
                                        found.text};
    std::cout << (found.wrong ? Tr("%%1, line %%2, column %%3: %%4", told)
                              : Tr("%%1, line %%2, column %%3: note: %%4", told))
              << "\n";
  }
  const auto wrong = WrongOnes(findings);
  std::cout << (wrong == 0   ? Tr("%%1: nothing wrong", {file_})
                : wrong == 1 ? Tr("%%1: 1 thing is wrong", {file_})
                             : Tr("%%1: %%2 things are wrong", {file_, std::to_string(wrong)}))
            << "\n";
}

}  // namespace bench

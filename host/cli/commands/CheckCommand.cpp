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

namespace host::cli {

namespace {

std::size_t CountWrong(const std::vector<document::Finding>& findings) {
  return static_cast<std::size_t>(std::count_if(findings.begin(), findings.end(),
                                                [](const document::Finding& found) { return found.wrong; }));
}

nlohmann::ordered_json JsonOf(const std::string& file, const std::vector<document::Finding>& findings) {
  auto all = nlohmann::ordered_json::array();
  for (const auto& found : findings)
    all.push_back({{"kind", found.wrong ? "wrong" : "note"},
                   {"line", found.line},
                   {"column", found.column},
                   {"text", found.text}});
  return {{"document", file}, {"wrong", CountWrong(findings)}, {"findings", std::move(all)}};
}

}  // namespace

CLI::App* CheckCommand::Declare(CLI::App& program) {
  auto* command = program.add_subcommand("check", Tr("Check a document for problems"));
  command->add_option("FILE", file_, Tr("The document"))->required();
  command->add_flag("--json", json_, Tr("Print one JSON object"));
  command->footer(
      Examples({"orvik-bench check pump-7.orvik", "orvik-bench check pump-7.orvik --json"}) + "\n\n" +
      Tr("Exit status 0: no problems, 3: problems were found; each is printed with line and column."));
  return command;
}

bench::ExitStatus CheckCommand::Run(const bench::GlobalOptions& options) {
  const auto text = ReadFile(file_);
  bench::Workbench workbench(options, bench::Workbench::Settings::kIfReadable);
  auto findings = document::CheckDocument(text, *workbench.Host()->Elements());
  if (CountWrong(findings) == 0) {
    // An error that prevents opening the document is a problem of it too.
    try {
      const auto document =
          document::Document::Open(workbench.Host(), file_, document::DocumentFile::Use::kRead);
      const auto judged = bench::CheckJudged(text, report::ViewOf(*document, *workbench.Host()).judged);
      findings.insert(findings.end(), judged.begin(), judged.end());
      std::stable_sort(
          findings.begin(), findings.end(),
          [](const document::Finding& one, const document::Finding& other) { return one.line < other.line; });
    } catch (const orvik::HostError& error) {
      findings.push_back({true, 1, 1, error.Description()});
    }
  }
  Print(findings);
  return CountWrong(findings) == 0 ? bench::ExitStatus::kPassed : bench::ExitStatus::kBadInput;
}

void CheckCommand::Print(const std::vector<document::Finding>& findings) const {
  if (json_) {
    std::cout << Indented(JsonOf(file_, findings)) << "\n";
    return;
  }
  for (const auto& found : findings) {
    const std::vector<std::string> fields{file_, std::to_string(found.line), std::to_string(found.column),
                                          found.text};
    std::cout << (found.wrong ? Tr("%%1, line %%2, column %%3: %%4", fields)
                              : Tr("%%1, line %%2, column %%3: note: %%4", fields))
              << "\n";
  }
  const auto wrong = CountWrong(findings);
  std::cout << (wrong == 0   ? Tr("%%1: no problems found", {file_})
                : wrong == 1 ? Tr("%%1: 1 problem found", {file_})
                             : Tr("%%1: %%2 problems found", {file_, std::to_string(wrong)}))
            << "\n";
}

}  // namespace host::cli

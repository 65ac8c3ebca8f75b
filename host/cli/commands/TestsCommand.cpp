#include "host/cli/commands/TestsCommand.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <iostream>
#include <nlohmann/json.hpp>

#include "host/base/TextColumns.h"
#include "host/base/Tr.h"
#include "host/bench/CatalogueEntries.h"
#include "host/bench/InputError.h"
#include "host/cli/help/Examples.h"
#include "host/cli/output/DocumentJson.h"

namespace host::cli {

namespace {

/// Deeper levels are not indented further: a catalogue may be nested to any depth.
constexpr std::size_t kDeepestIndent = 20;

nlohmann::ordered_json JsonOf(const std::vector<bench::CatalogueEntry>& entries) {
  auto tests = nlohmann::ordered_json::array();
  for (const auto& entry : entries)
    tests.push_back({{"testId", entry.testId},
                     {"parent", entry.parent},
                     {"kind", entry.sequence ? "sequence" : "test"},
                     {"name", entry.name},
                     {"unit", entry.unit}});
  return {{"tests", std::move(tests)}};
}

}  // namespace

CLI::App* TestsCommand::Declare(CLI::App& program) {
  auto* command = program.add_subcommand("tests", Tr("Print the catalogue of tests"));
  command->add_flag("--json", json_, Tr("Print one JSON object"));
  command->footer(Examples({"orvik-bench tests", "orvik-bench tests --json"}));
  return command;
}

bench::ExitStatus TestsCommand::Run(const bench::GlobalOptions& options) {
  bench::Workbench workbench(options, bench::Workbench::Settings::kIfReadable);
  const auto entries = bench::CatalogueEntries(workbench);
  if (entries.empty())
    throw bench::InputError(Tr(
        "the catalogue has no tests; see error.log in the state folder, or name another with --catalogue"));
  if (json_) {
    std::cout << Indented(JsonOf(entries)) << "\n";
    return bench::ExitStatus::kPassed;
  }
  for (const auto& entry : entries) {
    const auto name = std::string(2 * std::min(entry.depth, kDeepestIndent), ' ') + entry.name;
    std::cout << LeftPadded(std::to_string(entry.testId), 5) << "  "
              << (entry.unit.empty() ? name : Padded(name, 60) + entry.unit) << "\n";
  }
  return bench::ExitStatus::kPassed;
}

}  // namespace host::cli

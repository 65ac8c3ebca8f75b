#include "host/app/TestsCommand.h"

#include <iostream>

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/ILimit.h"
#include "OrvikTypeLib/ILimitData.h"
#include "OrvikTypeLib/IStandard.h"
#include "OrvikTypeLib/ITestContainer.h"
#include "OrvikTypeLib/ITestEnumerator.h"
#include "host/app/DocumentJson.h"
#include "host/app/InputError.h"
#include "host/app/TextColumns.h"
#include "host/elements/ElementFactory.h"
#include "host/run/ElementText.h"
#include "host/services/Tr.h"

namespace bench {

namespace {

struct CatalogueEntry {
  std::int32_t testId;
  std::int32_t parent;
  bool sequence;
  std::size_t depth;
  std::string name;
  std::string unit;
};

/// The unit that a new limit of the test has: the unit that its readings are recorded in.
std::string UnitOf(orvik::IPlugIn& plugIn, std::int32_t testId) {
  const auto element = plugIn.CreateTest(testId);
  const auto limits = element ? element->Limits() : nullptr;
  const auto standard = limits ? limits->CreateStandard("", "") : nullptr;
  return standard && standard->LimitCount() > 0 ? standard->Limit(1)->Unit() : std::string();
}

std::vector<CatalogueEntry> Entries(Workbench& workbench) {
  struct Level {
    std::shared_ptr<orvik::ITestEnumerator> walk;
    std::int32_t testId;
  };
  std::vector<CatalogueEntry> entries;
  std::vector<Level> levels;
  const auto tests = workbench.PlugIn().Tests();
  if (tests) levels.push_back({tests->NewEnum(), 0});
  while (!levels.empty()) {
    const auto element = levels.back().walk->Next();
    if (!element) {
      levels.pop_back();
      continue;
    }
    const auto container = orvik::As<orvik::ITestContainer>(element);
    const auto testId = element->TestID();
    entries.push_back({testId, levels.back().testId, container != nullptr, levels.size() - 1,
                       ElementName(*element, *workbench.Host()->Elements()),
                       container ? std::string() : UnitOf(workbench.PlugIn(), testId)});
    if (container) levels.push_back({container->NewEnum(), testId});
  }
  return entries;
}

nlohmann::ordered_json JsonOf(const std::vector<CatalogueEntry>& entries) {
  auto tests = nlohmann::ordered_json::array();
  for (const auto& entry : entries) {
    nlohmann::ordered_json json;
    json["testId"] = entry.testId;
    json["parent"] = entry.parent;
    json["kind"] = entry.sequence ? "sequence" : "test";
    json["name"] = entry.name;
    json["unit"] = entry.unit;
    tests.push_back(std::move(json));
  }
  return nlohmann::ordered_json{{"tests", std::move(tests)}};
}

}  // namespace

CLI::App* TestsCommand::Declare(CLI::App& program) {
  auto* command = program.add_subcommand("tests", Tr("Print the catalogue of tests"));
  command->add_flag("--json", json_, Tr("Print one JSON object"));
  command->footer(
      Tr("Examples:\n"
         "  orvik-bench tests\n"
         "  orvik-bench tests --json"));
  return command;
}

ExitStatus TestsCommand::Run(const GlobalOptions& options) {
  Workbench workbench(options);
  const auto entries = Entries(workbench);
  if (entries.empty())
    throw InputError(Tr(
        "the catalogue has no tests; see error.log in the state folder, or name another with --catalogue"));
  if (json_) {
    std::cout << Indented(JsonOf(entries)) << "\n";
    return ExitStatus::kPassed;
  }
  for (const auto& entry : entries) {
    const auto name = std::string(2 * entry.depth, ' ') + entry.name;
    std::cout << LeftPadded(std::to_string(entry.testId), 5) << "  "
              << (entry.unit.empty() ? name : Padded(name, 60) + entry.unit) << "\n";
  }
  return ExitStatus::kPassed;
}

}  // namespace bench

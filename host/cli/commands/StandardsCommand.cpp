#include "host/cli/commands/StandardsCommand.h"

#include <CLI/CLI.hpp>
#include <iostream>
#include <nlohmann/json.hpp>

#include "host/base/Text.h"
#include "host/base/TextColumns.h"
#include "host/base/Tr.h"
#include "host/bench/ProgramFiles.h"
#include "host/bench/SetOfLimits.h"
#include "host/cli/help/Examples.h"
#include "host/cli/output/DocumentJson.h"

namespace host::cli {

namespace {

using Json = nlohmann::ordered_json;

Json Head(const standards::LimitSet& set) {
  return {{"set", set.Name()},      {"file", set.file.string()},   {"standard", set.standard},
          {"edition", set.edition}, {"class", set.equipmentClass}, {"type", set.type}};
}

Json JsonOf(const standards::LimitSets::Entry& entry) {
  if (!entry.set)
    return {{"set", entry.file.stem().string()}, {"file", entry.file.string()}, {"fault", entry.fault}};
  auto json = Head(*entry.set);
  json["figures"] = entry.set->figures.size();
  return json;
}

Json JsonOf(const std::vector<standards::LimitSets::Entry>& entries) {
  auto sets = Json::array();
  for (const auto& entry : entries) sets.push_back(JsonOf(entry));
  return {{"standards", std::move(sets)}};
}

Json JsonOf(const standards::LimitSet& set) {
  auto json = Head(set);
  json["figures"] = Json::array();
  for (const auto& figure : set.figures)
    json["figures"].push_back({{"tests", figure.tests},
                               {"low", NumberOrNull(FiniteNumber(figure.low))},
                               {"high", NumberOrNull(FiniteNumber(figure.high))},
                               {"unit", figure.unit},
                               {"condition", figure.condition},
                               {"source", figure.source}});
  json["leftOut"] = Json::array();
  for (const auto& out : set.leftOut) json["leftOut"].push_back({{"what", out.what}, {"why", out.why}});
  return json;
}

std::string FiguresText(std::size_t count) {
  return count == 1 ? Tr("1 figure") : Tr("%%1 figures", {std::to_string(count)});
}

std::string TestsText(const standards::LimitFigure& figure) {
  std::string text;
  for (const auto test : figure.tests) text += (text.empty() ? "" : " ") + std::to_string(test);
  return text;
}

}  // namespace

CLI::App* StandardsCommand::Declare(CLI::App& program) {
  auto* command = program.add_subcommand(
      "standards", Tr("List the limit sets, or show one with the source of each limit"));
  command->add_option("SET", set_, Tr("The set to show: its name, or the path of its file"));
  command->add_flag("--json", json_, Tr("Print one JSON object"));
  command->footer(Examples({"orvik-bench standards", "orvik-bench standards iec-62353-class-1-bf",
                            "orvik-bench standards ./house-rules.xml"}));
  return command;
}

bench::ExitStatus StandardsCommand::Run(const bench::GlobalOptions& options) {
  const standards::LimitSets sets(bench::files::StandardsFolders(options.state));
  if (set_.empty()) return List(sets);
  const auto set = sets.Find(set_);
  if (json_)
    std::cout << Indented(JsonOf(set)) << "\n";
  else
    Show(set);
  return bench::ExitStatus::kPassed;
}

bench::ExitStatus StandardsCommand::List(const standards::LimitSets& sets) const {
  const auto entries = sets.All();
  if (json_) std::cout << Indented(JsonOf(entries)) << "\n";
  auto status = bench::ExitStatus::kPassed;
  std::filesystem::path folder;
  for (const auto& entry : entries) {
    if (!entry.set) {
      std::cerr << "orvik-bench: " << entry.fault << "\n";
      status = bench::ExitStatus::kBadInput;
    }
    if (json_ || !entry.set) continue;
    if (entry.file.parent_path() != folder) {
      folder = entry.file.parent_path();
      std::cout << folder.string() << ":\n";
    }
    std::cout << "  " << Padded(entry.set->Name(), 26) << Padded(entry.set->standard, 16)
              << Padded(entry.set->Description(), 36) << FiguresText(entry.set->figures.size()) << "\n";
  }
  return status;
}

void StandardsCommand::Show(const standards::LimitSet& set) const {
  std::cout << set.standard << ", " << set.Description() << "\n" << set.file.string() << "\n";
  for (const auto& figure : set.figures) {
    std::cout << "\n"
              << Padded(bench::BoundsText(figure.low, figure.high, figure.unit), 24)
              << Tr("tests %%1", {TestsText(figure)}) << "\n";
    if (!figure.condition.empty()) std::cout << "    " << figure.condition << "\n";
    std::cout << "    " << figure.source << "\n";
  }
  if (set.leftOut.empty()) return;
  std::cout << "\n" << Tr("Left out:") << "\n";
  for (const auto& out : set.leftOut) std::cout << "  " << out.what << "\n    " << out.why << "\n";
}

}  // namespace host::cli

#include "host/cli/commands/ArchiveCommandTrend.h"

#include <CLI/CLI.hpp>
#include <filesystem>
#include <iostream>

#include "host/archive/TrendChart.h"
#include "host/archive/TrendLimits.h"
#include "host/base/Files.h"
#include "host/base/Text.h"
#include "host/base/TextColumns.h"
#include "host/base/Tr.h"
#include "host/base/VisibleText.h"
#include "host/bench/InputError.h"
#include "host/bench/OpenArchive.h"
#include "host/cli/commands/ArchiveCommandJson.h"
#include "host/cli/options/NumberOption.h"
#include "host/cli/output/DocumentJson.h"

namespace host::cli {

namespace {

using host::VisibleText;

constexpr std::size_t kValueColumn = 1;

std::string ValueText(const archive::TrendPoint& point) {
  if (point.Overloaded()) return "OL";
  const auto value = point.Value();
  return value ? ShortNumber(*value) : "-";
}

std::vector<std::string> TrendHeading() {
  return {Tr("Date"), Tr("Value"), Tr("Unit"), Tr("Status"), Tr("Document"), Tr("Element"), Tr("Limits")};
}

std::vector<std::string> LineOf(const archive::TrendPoint& point) {
  const auto& result = point.element.result;
  std::string limits;
  for (const auto& limit : result.limits)
    if (limit.selected) limits += (limits.empty() ? "" : "; ") + VisibleText(archive::LimitText(limit));
  return {VisibleText(point.date) + (point.dated ? "" : "*"),
          ValueText(point),
          VisibleText(point.Unit()),
          Tr(judge::VerdictText(result.verdict)),
          std::to_string(point.document),
          std::to_string(result.id),
          limits};
}

/// What the trend leaves out, and why; a line each.
std::string LeftOutText(const archive::Trend& trend) {
  std::string text;
  if (trend.otherKind > 0)
    text += Tr(trend.simulated ? TrNoop("Real readings left out: %%1")
                               : TrNoop("Simulated readings left out (--simulated shows them): %%1"),
               {std::to_string(trend.otherKind)}) +
            "\n";
  if (trend.notCurrent > 0)
    text += Tr("Results left out that did not count when they were added (\"archive show\" says why): %%1",
               {std::to_string(trend.notCurrent)}) +
            "\n";
  return text;
}

}  // namespace

CLI::App* ArchiveCommandTrend::Declare(CLI::App& archive) {
  auto* command = archive.add_subcommand("trend", Tr("Show and plot a test's readings over time"));
  command->add_option("--asset", asset_, Tr("The asset"))->required();
  WholeNumbers(
      command->add_option("--test", test_, Tr("The test, such as 410; \"orvik-bench tests\" lists them")))
      ->required()
      ->type_name("TESTID");
  command->add_option("--to", to_, Tr("The picture to write (.svg)"))->type_name("OUT.svg");
  command->add_flag("--simulated", simulated_, Tr("Show readings of simulated testers instead of real ones"));
  command->add_flag("--json", json_, Tr("Print one JSON object"));
  return command;
}

bench::ExitStatus ArchiveCommandTrend::Run(const bench::GlobalOptions& options) {
  if (!to_.empty() && LowerAscii(std::filesystem::path(to_).extension().string()) != ".svg")
    throw bench::InputError(
        Tr("--to %%1: pictures are written as SVG; give a name that ends in .svg", {to_}));
  auto archive = bench::OpenArchiveToAsk(location_, options);
  const auto trend = archive.TrendOf(asset_, test_, simulated_);
  const auto leftOut = LeftOutText(trend);
  if (trend.points.empty())
    throw bench::InputError(
        Tr("the archive %%1 has no results of test %%2 of asset %%3; \"orvik-bench archive list "
           "--asset ASSET\" and \"archive show ID\" show what it has",
           {archive.Name(), std::to_string(test_), VisibleText(asset_)}) +
        (leftOut.empty() ? "" : "\n" + leftOut.substr(0, leftOut.size() - 1)));
  if (!to_.empty()) ReplaceFile(to_, archive::TrendChart(trend));
  Print(trend);
  return bench::ExitStatus::kPassed;
}

void ArchiveCommandTrend::Print(const archive::Trend& trend) const {
  if (json_) {
    std::cout << Indented(JsonOf(trend)) << "\n";
    return;
  }
  std::vector<std::vector<std::string>> lines = {TrendHeading()};
  bool undated = false;
  for (const auto& point : trend.points) {
    lines.push_back(LineOf(point));
    undated = undated || !point.dated;
  }
  if (trend.simulated)
    std::cout << Tr("SIMULATED: a simulated tester was used; nothing was measured.") << "\n";
  std::cout << Columned(lines, {kValueColumn});
  if (undated) std::cout << Tr("* when it was added: the document does not say when it was run") << "\n";
  std::cout << Tr("Each reading is shown as it was judged when its document was added.") << "\n"
            << LeftOutText(trend);
  if (!to_.empty()) std::cout << to_ << "\n";
}

}  // namespace host::cli

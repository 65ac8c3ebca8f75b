#include "host/app/archive/ArchiveCommandTrend.h"

#include <filesystem>
#include <iostream>

#include "host/app/DocumentJson.h"
#include "host/app/InputError.h"
#include "host/app/NumberOption.h"
#include "host/app/TextColumns.h"
#include "host/app/archive/ArchiveCommandJson.h"
#include "host/app/archive/ArchiveCommandOpen.h"
#include "host/archive/TrendChart.h"
#include "host/archive/TrendLimits.h"
#include "host/report/VisibleText.h"
#include "host/services/Files.h"
#include "host/services/Text.h"
#include "host/services/Tr.h"

namespace bench {

namespace {

using report::VisibleText;

constexpr std::size_t kValueColumn = 1;

std::string ValueText(const TrendPoint& point) {
  if (point.Overloaded()) return "OL";
  return point.HasValue() ? ShortNumber(*point.element.summary.measurement->value) : "-";
}

std::vector<std::string> TrendHeading() {
  return {Tr("Date"), Tr("Value"), Tr("Unit"), Tr("Status"), Tr("Document"), Tr("Element"), Tr("Limits")};
}

std::vector<std::string> LineOf(const TrendPoint& point) {
  const auto& summary = point.element.summary;
  std::string limits;
  for (const auto& limit : point.element.limits)
    limits += (limits.empty() ? "" : "; ") + VisibleText(LimitText(limit));
  return {VisibleText(point.date) + (point.dated ? "" : "*"),
          ValueText(point),
          summary.measurement ? VisibleText(summary.measurement->unit) : "",
          VisibleText(Tr(judge::VerdictText(summary.verdict))),
          std::to_string(point.document),
          std::to_string(summary.id),
          limits};
}

}  // namespace

CLI::App* ArchiveCommandTrend::Declare(CLI::App& archive) {
  auto* command =
      archive.add_subcommand("trend", Tr("Tell how the readings of a test went over time, and draw them"));
  command->add_option("--asset", asset_, Tr("The asset"))->required();
  WholeNumbers(
      command->add_option("--test", test_, Tr("The test, such as 410; \"orvik-bench tests\" lists them")))
      ->required()
      ->type_name("TESTID");
  command->add_option("--to", to_, Tr("The picture to write (.svg)"))->type_name("OUT.svg");
  command->add_flag("--json", json_, Tr("Print one JSON object"));
  return command;
}

ExitStatus ArchiveCommandTrend::Run(const GlobalOptions& options) {
  if (!to_.empty() && LowerAscii(std::filesystem::path(to_).extension().string()) != ".svg")
    throw InputError(Tr("--to %%1: pictures are written as SVG; give a name that ends in .svg", {to_}));
  auto archive = OpenArchiveToAsk(location_, options);
  const auto trend = archive.TrendOf(asset_, test_);
  if (trend.points.empty())
    throw InputError(
        Tr("the archive %%1 has no results of test %%2 of asset %%3; \"orvik-bench archive list "
           "--asset ASSET\" and \"archive show ID\" tell what it has",
           {archive.Name(), std::to_string(test_), VisibleText(asset_)}));
  if (!to_.empty()) ReplaceFile(to_, TrendChart(trend));
  Print(trend);
  return ExitStatus::kPassed;
}

void ArchiveCommandTrend::Print(const Trend& trend) const {
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
  std::cout << Columned(lines, {kValueColumn});
  if (undated) std::cout << Tr("* when it was added: the document does not tell when it was run") << "\n";
  if (!to_.empty()) std::cout << to_ << "\n";
}

}  // namespace bench

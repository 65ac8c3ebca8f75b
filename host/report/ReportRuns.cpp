#include "host/base/TextColumns.h"
#include "host/base/Tr.h"
#include "host/base/VisibleText.h"
#include "host/report/ReportParts.h"
#include "host/report/RunOutcome.h"

namespace host::report::parts {
namespace {

using host::VisibleText;
using orvik::platform::Alignment;

report::Cell CellOf(const std::string& text, bool bold = false) { return {{text, bold}}; }

/// An empty table with a line around each cell.
report::Table TableOf(const std::vector<std::pair<std::string, orvik::platform::Twips>>& columns) {
  report::Table table;
  table.border = 7;
  report::Row head;
  for (const auto& [name, width] : columns) {
    table.columns.push_back({});
    table.columns.back().width = width;
    head.push_back(CellOf(name, true));
  }
  table.header = {head};
  return table;
}

std::string TestersOf(const document::RunRecord& run) {
  std::vector<std::string> names;
  for (const auto& tester : run.testers) names.push_back(VisibleText(tester.type + " " + tester.serial));
  return names.empty() ? "-" : Joined(names, "; ");
}

/// How the run ended, and what is unusual about it.
report::Cell EndCell(const document::RunRecord& run, const document::Equipment& now) {
  auto cell = CellOf(EndWord(run), run.end != document::RunRecord::End::kFinished);
  const auto add = [&cell](const std::string& text) { cell.push_back({"\n" + text, true}); };
  if (run.simulated) add(Tr("SIMULATED"));
  if (!run.intact) add(Tr("the record was changed by another program"));
  if (run.gapAfter) add(Tr("a later run is missing"));
  if (run.equipment != now) {
    const auto header = PageHeader(run.equipment, Tr("without a name"), {}, {});
    add(Tr("on other equipment: %%1", {header.front().value}));
  }
  return cell;
}

}  // namespace

report::Table RunsTable(const std::vector<document::RunRecord>& runs, const RunOutcomes& outcomes,
                        const document::Equipment& now) {
  auto table = TableOf({{Tr("No."), 600},
                        {Tr("Begun"), 1280},
                        {Tr("Ended"), 1280},
                        {Tr("How it ended"), 1650},
                        {Tr("Operator"), 1300},
                        {Tr("Tester"), 1300},
                        {Tr("Tests and their outcome then"), 2230}});
  table.columns.front().alignment = Alignment::kRight;
  for (const auto& run : runs)
    table.rows.push_back({CellOf(std::to_string(run.number)), CellOf(MinuteText(run.begun)),
                          CellOf(run.ended.empty() ? "-" : MinuteText(run.ended)), EndCell(run, now),
                          CellOf(run.by.empty() ? "-" : VisibleText(run.by)), CellOf(TestersOf(run)),
                          CellOf(outcomes.TextOf(outcomes.Of(run)))});
  return table;
}

report::Table ReadingsTable(const std::vector<RecordedIn>& tests) {
  auto table = TableOf({{Tr("Run"), 1100},
                        {Tr("Tested"), 2200},
                        {Tr("Value"), 1500},
                        {Tr("Unit"), 1200},
                        {Tr("Result then"), 2200},
                        {Tr("Operator"), 2200}});
  table.columns[0].alignment = table.columns[2].alignment = Alignment::kRight;
  for (const auto& [run, then] : tests) {
    const auto& test = *then.test;
    const auto value = ValueText(test);
    table.rows.push_back({CellOf(std::to_string(run->number)), CellOf(MinuteText(test.at)),
                          CellOf(value.empty() ? "-" : value),
                          CellOf(value.empty() ? "" : VisibleText(test.recorded->unit)),
                          CellOf(Tr(judge::VerdictText(then.verdict))), CellOf(VisibleText(run->by))});
  }
  return table;
}

}  // namespace host::report::parts

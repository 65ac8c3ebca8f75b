#include "host/app/DocumentReport.h"

#include "OrvikTypeLib/IReport.h"
#include "host/Host.h"
#include "host/app/DocumentText.h"
#include "host/app/DocumentView.h"
#include "host/document/Document.h"

namespace bench {

namespace {

constexpr std::int32_t kUsableWidth = 10;  // number of the metric
constexpr std::int32_t kBoxed = 7;

/// A row of cells whose text is no markup.
std::string Row(const orvik::IReport& report, const std::vector<std::string>& cells) {
  std::string row;
  for (const auto& cell : cells) row += (row.empty() ? "" : "|") + report.Escape(cell);
  return row + ";";
}

void PrintTitle(orvik::IReport& report, const Document& document, const DocumentSummary& summary) {
  const auto half = std::to_string(report.Metric(kUsableWidth) / 2);
  const auto& equipment = document.equipment;
  std::string rows =
      Row(report, {"Document", summary.path}) + Row(report, {"Outcome", OutcomeText(summary.outcome)}) +
      Row(report, {"Asset number", equipment.asset}) + Row(report, {"Serial number", equipment.serial}) +
      Row(report, {"Maker", equipment.maker}) + Row(report, {"Model", equipment.model});
  if (const auto& tester = summary.instrument)
    rows += Row(report, {"Tester", tester->type + ", serial number " + tester->serial + ", firmware " +
                                       tester->firmware}) +
            Row(report, {"Test leads", std::to_string(tester->calibration) + " mOhm"});
  report.SetTableBorder(kBoxed);
  report.SetTableIndent(0);
  report.SetHeaderRows(0);
  report.AddTable("<" + half + "|<" + half + ";", "", rows);
}

void PrintOverview(orvik::IReport& report, const DocumentSummary& summary) {
  const auto width = report.Metric(kUsableWidth);
  std::string rows;
  for (const auto& element : summary.elements) {
    std::string name = element.name;
    for (const auto& doubt : element.doubts) name += " [doubt: " + doubt + "]";
    rows += Row(report, {std::to_string(element.id), element.Verdict(), ReadingText(element), name});
  }
  const auto column = [width](int percent) { return std::to_string(width * percent / 100); };
  report.SetTableBorder(kBoxed);
  report.SetHeaderRows(1);
  report.AddTable(">" + column(8) + "|<" + column(16) + "|<" + column(16) + "|<" + column(60) + ";",
                  Row(report, {"No.", "Result", "Value", "Test"}), rows);
}

}  // namespace

void PrintDocument(const Document& document, Host& host, const std::shared_ptr<ReportObject>& report) {
  auto standards = document.Standards();
  if (standards->Count() == 0) standards = NamedStandards(document, host);
  const auto summary = SummaryOf(document, host, standards);
  PrintTitle(*report, document, summary);
  PrintOverview(*report, summary);
  for (const auto& element : TopElements(document)) element->PrintReport(report, nullptr);
}

}  // namespace bench

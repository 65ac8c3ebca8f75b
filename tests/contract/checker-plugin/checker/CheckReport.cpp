#include "OrvikTypeLib/IReport.h"
#include "tests/contract/checker-plugin/checker/Checks.h"

namespace check {

void CheckReport(Findings& findings, const HostParts& parts) {
  const auto& report = parts.report;
  if (!report) return findings.Expect(false, "there is a report");
  const auto width = report->Metric(10);
  findings.Expect(width > 3360, "a page is wide enough for a result table");
  for (const std::int32_t number : {-1, 4711})
    findings.Refused("metric " + std::to_string(number), [&] { report->Metric(number); });

  findings.Try("a table", [&] {
    report->SetTableBorder(7);
    report->SetTableIndent(0);
    report->SetHeaderRows(1);
    report->AddTable("<+560|>+!2240|^1000;", "|{\\i\\b Head}|right;", "|a|{\\b bold}b;|c|d;");
  });
  findings.Equal("plain text", report->Escape("plain text"), "escaped plain text");
  const std::string nasty = "a|b;c{d}e\\f";
  findings.Expect(report->Escape(nasty) != nasty, "markup is made plain");
  findings.Try("a table of escaped text", [&] {
    report->AddTable("<1000|<1000;", "", report->Escape(nasty) + "|" + report->Escape("<b>&amp;") + ";");
  });
  for (const auto* format : {"", "x1000;", "<;", "<abc;", "<-5;", "<1000"})
    findings.Refused(std::string("the column format \"") + format + "\"",
                     [&] { report->AddTable(format, "", "a;"); });
  for (const auto* row : {"{\\b open;", "}close;", "a|b|c;"})
    findings.Refused(std::string("the row \"") + row + "\"", [&] { report->AddTable("<100;", "", row); });
}

}  // namespace check

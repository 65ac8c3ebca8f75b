#include <filesystem>
#include <string>
#include <vector>

#include "benchmarks/MeasuredDocument.h"
#include "benchmarks/Measurements.h"
#include "benchmarks/Repeat.h"

namespace benchmarks {

namespace {

constexpr int kResults = 1000;
constexpr int kReports = 5;

/// Wall time of the whole program, in seconds; the middle one of several.
double ReportSeconds(const MeasuredDocument& document, int results, const std::string& ending) {
  const auto file = document.Times(results);
  std::vector<double> times;
  for (int i = 0; i < kReports; ++i)
    times.push_back(document.Bench({"report", file, "--to", document.Folder() / ("a" + ending)}));
  return Median(times);
}

Figure MeasureReport(const Context& context, const std::string& ending, double limit) {
  const MeasuredDocument document(context);
  return {ReportSeconds(document, kResults, ending), "s",   ReportSeconds(document, 0, ending),
          "a report without results, in s",          limit, Bound::kAtMost};
}

}  // namespace

Figure MeasureHtmlReport(const Context& context) { return MeasureReport(context, ".html", 0.2); }

Figure MeasurePdfReport(const Context& context) { return MeasureReport(context, ".pdf", 2); }

}  // namespace benchmarks

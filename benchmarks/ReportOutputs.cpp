#include <algorithm>
#include <filesystem>
#include <fstream>
#include <pugixml.hpp>
#include <stdexcept>
#include <string>
#include <vector>

#include "benchmarks/ChildProcess.h"
#include "benchmarks/Measurements.h"
#include "benchmarks/Repeat.h"
#include "tests/support/TemporaryFolder.h"

namespace benchmarks {

namespace {

constexpr int kResults = 1000;
constexpr int kReports = 5;

/// Documents with one element that has been measured and judged, that element a thousand times, and none.
class Documents {
 public:
  explicit Documents(const Context& context) : context_(context) {
    const auto one = folder_.Path() / "one.orvik";
    Bench({"new", one, "--add", "410", "--asset", "VENT-0042"});
    Bench({"limit", one, "--element", "1", "--standard", "IEC 62353", "--high", "300"});
    Bench({"run", one, "--simulate", "--time-scale", "100"});
    Multiply(one, kResults, folder_.Path() / "many.orvik");
    Multiply(one, 0, folder_.Path() / "empty.orvik");
  }

  /// Wall time of the whole program, in seconds; the middle one of several.
  double Report(const std::string& document, const std::string& ending) const {
    std::vector<double> times;
    for (int i = 0; i < kReports; ++i)
      times.push_back(Bench({"report", folder_.Path() / document, "--to", folder_.Path() / ("a" + ending)}));
    return Median(times);
  }

 private:
  double Bench(std::vector<std::string> words) const {
    words.insert(words.begin(), context_.Bench());
    words.insert(words.end(), {"--state", folder_.Path() / "state"});
    return RunProgram(words, folder_.Path() / "bench.out").wall.count();
  }

  static void Multiply(const std::filesystem::path& from, int times, const std::filesystem::path& to) {
    pugi::xml_document xml;
    if (!xml.load_file(from.c_str(), pugi::parse_full))
      throw std::runtime_error(from.string() + " cannot be read");
    auto elements = xml.document_element().child("Elements");
    const auto element = elements.first_child();
    if (!element.child("ResultItem")) throw std::runtime_error("the element was not measured");
    for (int id = 1; id <= times; ++id) elements.append_copy(element).attribute("ID").set_value(id);
    elements.remove_child(element);
    if (!xml.save_file(to.c_str())) throw std::runtime_error(to.string() + " cannot be written");
  }

  const Context& context_;
  const support::TemporaryFolder folder_;
};

Figure MeasureReport(const Context& context, const std::string& ending, double limit) {
  const Documents documents(context);
  return {documents.Report("many.orvik", ending), "s",   documents.Report("empty.orvik", ending),
          "a report without results, in s",       limit, Bound::kAtMost};
}

}  // namespace

Figure MeasureHtmlReport(const Context& context) { return MeasureReport(context, ".html", 0.2); }

Figure MeasurePdfReport(const Context& context) { return MeasureReport(context, ".pdf", 2); }

}  // namespace benchmarks

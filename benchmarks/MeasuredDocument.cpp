#include "benchmarks/MeasuredDocument.h"

#include <pugixml.hpp>
#include <stdexcept>

#include "host/document/RunXml.h"
#include "tests/support/Process.h"

namespace benchmarks {

namespace {

namespace tags = host::document::run_tags;

/// Records `count` elements in the only run of the section, each like the first.
void RecordAll(pugi::xml_node section, int count) {
  auto run = section.child(tags::kRun);
  std::string taken;
  const auto test = run.child("Test");
  for (int id = 1; id <= count; ++id) {
    taken += (id == 1 ? "" : " ") + std::to_string(id);
    run.append_copy(test).attribute("Element").set_value(id);
  }
  run.remove_child(test);
  run.child("Takes").attribute("Elements").set_value(taken.c_str());
  // The section names the digest of its last run; without that, the run counts as doubtful.
  const auto digest = host::document::DigestOf(run);
  run.attribute(tags::kDigest).set_value(digest.c_str());
  section.attribute(tags::kLast).set_value(digest.c_str());
}

}  // namespace

MeasuredDocument::MeasuredDocument(const Context& context) : context_(context) {
  Bench({"new", one_, "--add", "410", "--asset", "VENT-0042"});
  Bench({"limit", one_, "--element", "1", "--standard", "IEC 62353", "--high", "300"});
  Bench({"run", one_, "--simulate", "--time-scale", "20"});
}

double MeasuredDocument::Bench(std::vector<std::string> words) const {
  words.insert(words.end(), {"--state", folder_.Path() / "state"});
  return support::RunWell(context_.Bench(), std::move(words)).wall.count();
}

std::filesystem::path MeasuredDocument::Times(int count) const {
  pugi::xml_document xml;
  if (!xml.load_file(one_.c_str(), pugi::parse_full))
    throw std::runtime_error(one_.string() + " cannot be read");
  auto elements = xml.document_element().child("Elements");
  const auto element = elements.first_child();
  if (!element.child("ResultItem")) throw std::runtime_error("the element was not measured");
  for (int id = 1; id <= count; ++id) elements.append_copy(element).attribute("ID").set_value(id);
  elements.remove_child(element);
  RecordAll(xml.document_element().child(tags::kRuns), count);
  const auto to = folder_.Path() / (std::to_string(count) + ".orvik");
  if (!xml.save_file(to.c_str(), "  ")) throw std::runtime_error(to.string() + " cannot be written");
  return to;
}

}  // namespace benchmarks

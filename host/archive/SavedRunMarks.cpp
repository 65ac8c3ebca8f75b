#include "host/archive/SavedRunMarks.h"

#include <algorithm>
#include <pugixml.hpp>
#include <vector>

#include "host/archive/IsoTime.h"
#include "host/elements/ElementTags.h"
#include "host/services/Text.h"

namespace bench {

namespace {

class Collector final : public pugi::xml_tree_walker {
 public:
  std::map<std::int32_t, SavedRunMark> marks;

  bool for_each(pugi::xml_node& node) override {
    if (std::string_view(node.name()) != tags::kTestElement) return true;
    const auto run = node.child(tags::kAuxiliary).child("Run");
    const auto id = WholeNumber(node.attribute(tags::kID).value());
    if (run && id)
      marks[*id] = {UtcText(run.attribute("Date").value()).value_or(""),
                    ValidUtf8(run.attribute("Operator").value())};
    return true;
  }
};

}  // namespace

std::map<std::int32_t, SavedRunMark> SavedRunMarks(std::string_view document) {
  pugi::xml_document xml;
  if (!xml.load_buffer(document.data(), document.size())) return {};
  Collector collector;
  xml.traverse(collector);
  return std::move(collector.marks);
}

std::string LastDate(const std::map<std::int32_t, SavedRunMark>& marks) {
  std::string last;
  for (const auto& [id, mark] : marks) last = std::max(last, mark.date);
  return last;
}

std::string Operators(const std::map<std::int32_t, SavedRunMark>& marks) {
  std::vector<std::string> names;
  for (const auto& [id, mark] : marks)
    if (!mark.by.empty() && std::find(names.begin(), names.end(), mark.by) == names.end())
      names.push_back(mark.by);
  std::string joined;
  for (const auto& name : names) joined += (joined.empty() ? "" : ", ") + name;
  return joined;
}

}  // namespace bench

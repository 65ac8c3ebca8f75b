#include "host/document/Runs.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>

#include "host/document/RunXml.h"
#include "host/xml/XmlNode.h"

namespace host::document {
Runs::Runs()
    : document_(std::make_shared<pugi::xml_document>()),
      finished_(document_->append_child(run_tags::kRuns)) {}

void Runs::Load(std::shared_ptr<pugi::xml_document> document, pugi::xml_node section) {
  *this = Runs();
  if (!section) return;
  document_ = std::move(document);
  finished_ = section;
  const char* last = "";
  besideRuns_.Take(section, {{run_tags::kLast, last}}, {run_tags::kRun});
  last_ = last;
  for (const auto node : section.children(run_tags::kRun)) {
    all_.push_back(ReadRun(node));
    all_.back().intact = IsIntact(node);
  }
  const auto gaps = GapsAfter(section);
  for (std::size_t place = 0; place < all_.size(); ++place) all_[place].gapAfter = gaps[place];
}

void Runs::Save(pugi::xml_node parent) const {
  auto section = parent.append_child(run_tags::kRuns);
  auto last = last_;
  for (const auto run : finished_.children(run_tags::kRun)) section.append_copy(run);
  if (open_) last = WriteCurrent(section).attribute(run_tags::kDigest).value();
  if (!last.empty()) xml::AddAttribute(section, run_tags::kLast, last);
  besideRuns_.Restore(section);
  if (!section.first_child() && !section.first_attribute()) parent.remove_child(section);
}

std::int32_t Runs::HighestElement() const {
  std::int32_t highest = 0;
  for (const auto& run : all_) {
    for (const auto& step : run.steps) {
      if (const auto* takes = std::get_if<RecordedTakes>(&step)) {
        for (const auto id : takes->elements) highest = std::max(highest, id);
      } else {
        highest = std::max(highest, std::get<RecordedTest>(step).element);
      }
    }
  }
  return highest;
}

RunRecord& Runs::Open(RunRecord run) {
  Close();
  run.number = all_.empty() ? 1 : all_.back().number + 1;
  all_.push_back(std::move(run));
  open_ = true;
  return all_.back();
}

void Runs::Close() {
  if (!std::exchange(open_, false)) return;
  last_ = WriteCurrent(finished_).attribute(run_tags::kDigest).value();
}

pugi::xml_node Runs::WriteCurrent(pugi::xml_node parent) const {
  auto node = WriteRun(all_.back(), parent);
  // The digest that the file named: where a run is missing, that shows for ever.
  xml::AddAttribute(node, run_tags::kBefore, last_);
  xml::AddAttribute(node, run_tags::kDigest, DigestOf(node));
  return node;
}

}  // namespace host::document

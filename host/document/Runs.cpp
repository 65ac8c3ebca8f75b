#include "host/document/Runs.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>

#include "host/document/RunXml.h"
#include "host/xml/XmlNode.h"

namespace bench {
namespace {

constexpr char kRuns[] = "Runs", kRun[] = "Run", kLast[] = "Last";

}  // namespace

void Runs::Load(pugi::xml_node section) {
  all_.clear();
  saved_.reset();
  open_ = false;
  const char* last = "";
  besideRuns_.Take(section, {{kLast, last}}, {kRun});
  last_ = last;
  for (const auto node : section.children(kRun)) {
    all_.push_back(ReadRun(node));
    all_.back().intact = IsIntact(node);
    saved_.append_copy(node);
  }
  const auto gaps = GapsAfter(section);
  for (std::size_t place = 0; place < all_.size(); ++place) all_[place].gapAfter = gaps[place];
}

void Runs::Save(pugi::xml_node parent) const {
  auto section = parent.append_child(kRuns);
  auto last = last_;
  for (const auto run : saved_.children()) section.append_copy(run);
  if (open_) last = WriteCurrent(section).attribute(kDigest).value();
  if (!last.empty()) xml::AddAttribute(section, kLast, last);
  besideRuns_.Restore(section);
  if (!section.first_child() && !section.first_attribute()) parent.remove_child(section);
}

std::int32_t Runs::HighestElement() const {
  std::int32_t highest = 0;
  for (const auto& run : all_) {
    for (const auto id : run.Elements()) highest = std::max(highest, id);
    for (const auto& step : run.steps)
      if (const auto* test = std::get_if<RecordedTest>(&step)) highest = std::max(highest, test->element);
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
  last_ = WriteCurrent(saved_).attribute(kDigest).value();
}

pugi::xml_node Runs::WriteCurrent(pugi::xml_node parent) const {
  auto node = WriteRun(all_.back(), parent);
  // The digest that the file named: where a run is missing, that shows for ever.
  xml::AddAttribute(node, kBefore, last_);
  xml::AddAttribute(node, kDigest, DigestOf(node));
  return node;
}

}  // namespace bench

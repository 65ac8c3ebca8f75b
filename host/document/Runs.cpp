#include "host/document/Runs.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>

#include "host/document/RunXml.h"
#include "host/services/XmlNode.h"

namespace bench {
namespace {

constexpr char kRuns[] = "Runs", kRun[] = "Run", kDigest[] = "Digest", kBefore[] = "Before";

}  // namespace

void Runs::Load(pugi::xml_node section) {
  all_.clear();
  saved_.reset();
  open_ = false;
  besideRuns_.Take(section, {}, {kRun});
  std::string before;
  for (const auto node : section.children(kRun)) {
    all_.push_back(ReadRun(node));
    all_.back().intact = IsIntact(node, all_.size(), before);
    before = node.attribute(kDigest).value();
    saved_.append_copy(node);
  }
}

void Runs::Save(pugi::xml_node parent) const {
  auto section = parent.append_child(kRuns);
  for (const auto run : saved_.children()) section.append_copy(run);
  if (open_) WriteCurrent(section);
  besideRuns_.Restore(section);
  if (!section.first_child() && !section.first_attribute()) parent.remove_child(section);
}

std::int32_t Runs::HighestElement() const {
  std::int32_t highest = 0;
  for (const auto& run : all_)
    for (const auto id : run.Elements()) highest = std::max(highest, id);
  return highest;
}

RunRecord& Runs::Open(RunRecord run) {
  Close();
  run.number = static_cast<std::int32_t>(all_.size()) + 1;
  all_.push_back(std::move(run));
  open_ = true;
  return all_.back();
}

void Runs::Close() {
  if (!std::exchange(open_, false)) return;
  WriteCurrent(saved_);
}

std::string Runs::LastDigest() const { return saved_.last_child().attribute(kDigest).value(); }

pugi::xml_node Runs::WriteCurrent(pugi::xml_node parent) const {
  const auto before = LastDigest();
  auto node = WriteRun(all_.back(), parent);
  xml::AddAttribute(node, kBefore, before);
  xml::AddAttribute(node, kDigest, DigestOf(node));
  return node;
}

}  // namespace bench

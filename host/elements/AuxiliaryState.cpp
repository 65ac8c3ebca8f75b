#include "host/elements/AuxiliaryState.h"

#include <algorithm>

#include "host/elements/ElementTags.h"
#include "host/services/XmlNode.h"

namespace bench {

void AuxiliaryState::CopyFrom(const AuxiliaryState& other) {
  printElement_ = other.printElement_;
  recordOnly_ = other.recordOnly_;
  doubts_ = other.doubts_;
  besideDoubts_ = other.besideDoubts_;
  run_ = other.run_;
  besideRun_ = other.besideRun_;
  leftovers_ = other.leftovers_;
}

void AuxiliaryState::Load(pugi::xml_node node) {
  leftovers_.TakeAttributes(node, {tags::kPrint, tags::kRecordOnly});
  printElement_ = node.attribute(tags::kPrint).as_bool(true);
  recordOnly_ = node.attribute(tags::kRecordOnly).as_bool(false);
  SetDoubts({});
  SetRun({});
  for (auto part = node.first_child(); part; part = part.next_sibling()) {
    if (xml::IsElement(part, tags::kDoubt)) {
      LoadDoubt(part);
    } else if (!run_ && xml::IsElement(part, tags::kRun)) {
      LoadRun(part);
    } else {
      leftovers_.Add(part);
    }
  }
}

void AuxiliaryState::LoadDoubt(pugi::xml_node node) {
  Leftovers beside;
  beside.TakeAttributes(node, {});
  for (auto part = node.first_child(); part; part = part.next_sibling()) {
    if (part.type() != pugi::node_pcdata && part.type() != pugi::node_cdata) beside.Add(part);
  }
  doubts_.push_back(xml::Text(node));
  if (beside.Empty() && besideDoubts_.empty()) return;
  besideDoubts_.resize(doubts_.size());
  besideDoubts_.back() = std::move(beside);
}

void AuxiliaryState::LoadRun(pugi::xml_node node) {
  const char *date = "", *by = "";
  besideRun_.Take(node, {{tags::kDate, date}, {tags::kOperator, by}}, {});
  run_ = RunMark{date, by};
}

void AuxiliaryState::SetDoubts(std::vector<std::string> doubts) {
  std::vector<Leftovers> beside(besideDoubts_.empty() ? 0 : doubts.size());
  // A doubt that stays keeps what stands beside it.
  for (std::size_t index = 0; index < beside.size(); ++index) {
    const auto former = std::find(doubts_.begin(), doubts_.end(), doubts[index]) - doubts_.begin();
    if (static_cast<std::size_t>(former) < besideDoubts_.size())
      beside[index] = besideDoubts_[static_cast<std::size_t>(former)];
  }
  doubts_ = std::move(doubts);
  besideDoubts_ = std::move(beside);
}

void AuxiliaryState::SetRun(std::optional<RunMark> run) {
  // What stands beside a run belongs to that run alone.
  if (run != run_) besideRun_ = {};
  run_ = std::move(run);
}

void AuxiliaryState::Save(pugi::xml_node node) const {
  xml::AddAttribute(node, tags::kPrint, printElement_ ? "1" : "0");
  if (recordOnly_) xml::AddAttribute(node, tags::kRecordOnly, "1");
  for (std::size_t index = 0; index < doubts_.size(); ++index) {
    const auto saved = node.append_child(tags::kDoubt);
    xml::SetText(saved, doubts_[index]);
    if (index < besideDoubts_.size()) besideDoubts_[index].Restore(saved);
  }
  if (run_) {
    const auto saved = node.append_child(tags::kRun);
    xml::AddAttribute(saved, tags::kDate, run_->date);
    xml::AddAttribute(saved, tags::kOperator, run_->by);
    besideRun_.Restore(saved);
  }
  leftovers_.Restore(node);
}

}  // namespace bench

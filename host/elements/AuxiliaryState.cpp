#include "host/elements/AuxiliaryState.h"

#include "host/elements/ElementTags.h"
#include "host/services/XmlNode.h"

namespace bench {

void AuxiliaryState::CopyFrom(const AuxiliaryState& other) {
  printElement_ = other.printElement_;
  doubts_ = other.doubts_;
  run_ = other.run_;
  leftovers_ = other.leftovers_;
}

void AuxiliaryState::Load(pugi::xml_node node) {
  leftovers_.TakeAttributes(node, {tags::kPrint});
  printElement_ = node.attribute(tags::kPrint).as_bool(true);
  doubts_.clear();
  run_.reset();
  for (auto part = node.first_child(); part; part = part.next_sibling()) {
    if (xml::IsElement(part, tags::kDoubt)) {
      doubts_.emplace_back(part.text().get());
    } else if (!run_ && xml::IsElement(part, tags::kRun)) {
      run_ = RunMark{part.attribute(tags::kDate).value(), part.attribute(tags::kOperator).value()};
    } else {
      leftovers_.Add(part);
    }
  }
}

void AuxiliaryState::Save(pugi::xml_node node) const {
  xml::AddAttribute(node, tags::kPrint, printElement_ ? "1" : "0");
  for (const auto& doubt : doubts_) xml::SetText(node.append_child(tags::kDoubt), doubt);
  if (run_) {
    const auto saved = node.append_child(tags::kRun);
    xml::AddAttribute(saved, tags::kDate, run_->date);
    xml::AddAttribute(saved, tags::kOperator, run_->by);
  }
  leftovers_.Restore(node);
}

}  // namespace bench

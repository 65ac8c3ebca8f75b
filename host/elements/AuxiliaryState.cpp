#include "host/elements/AuxiliaryState.h"

#include "host/elements/ElementTags.h"
#include "host/xml/XmlNode.h"

namespace host::elements {

void AuxiliaryState::CopyFrom(const AuxiliaryState& other) {
  printElement_ = other.printElement_;
  recordOnly_ = other.recordOnly_;
  leftovers_ = other.leftovers_;
}

void AuxiliaryState::Load(pugi::xml_node node) {
  leftovers_.Take(node, {tags::kPrint, tags::kRecordOnly}, {});
  printElement_ = node.attribute(tags::kPrint).as_bool(true);
  recordOnly_ = node.attribute(tags::kRecordOnly).as_bool(false);
}

void AuxiliaryState::Save(pugi::xml_node node) const {
  xml::AddAttribute(node, tags::kPrint, printElement_ ? "1" : "0");
  if (recordOnly_) xml::AddAttribute(node, tags::kRecordOnly, "1");
  leftovers_.Restore(node);
}

}  // namespace host::elements

#include "host/elements/InformationRecord.h"

#include "host/elements/ElementTags.h"
#include "host/xml/XmlNode.h"

namespace host::elements {

void InformationRecord::CopyFrom(const InformationRecord& other) {
  firstText_ = other.firstText_;
  displayName_ = other.displayName_;
  secondText_ = other.secondText_;
  leftovers_ = other.leftovers_;
}

void InformationRecord::Load(pugi::xml_node node) {
  const char *first = "", *second = nullptr, *displayName = "";
  leftovers_.Take(
      node, {{tags::kFirstText, first}, {tags::kSecondText, second}, {tags::kDisplayName, displayName}}, {});
  firstText_ = first;
  secondText_.reset();
  if (second) secondText_ = second;
  displayName_ = displayName;
}

void InformationRecord::Save(pugi::xml_node node) const {
  if (!firstText_.empty()) xml::AddAttribute(node, tags::kFirstText, firstText_);
  if (secondText_) xml::AddAttribute(node, tags::kSecondText, *secondText_);
  xml::AddAttribute(node, tags::kDisplayName, displayName_);
  leftovers_.Restore(node);
}

}  // namespace host::elements

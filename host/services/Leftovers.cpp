#include "host/services/Leftovers.h"

#include <algorithm>

namespace bench {
namespace {

bool Holds(std::initializer_list<std::string_view> names, std::string_view name) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

bool IsKnown(pugi::xml_node child, std::initializer_list<std::string_view> knownElements) {
  switch (child.type()) {
    case pugi::node_element:
      return Holds(knownElements, child.name());
    case pugi::node_declaration:
      return true;
    default:
      return false;
  }
}

}  // namespace

Leftovers::Leftovers(const Leftovers& other) { *this = other; }

Leftovers& Leftovers::operator=(const Leftovers& other) {
  if (this == &other) return *this;
  kept_.reset();
  if (other.kept_) {
    kept_ = std::make_unique<pugi::xml_document>();
    kept_->reset(*other.kept_);
  }
  return *this;
}

pugi::xml_node Leftovers::Holder() {
  if (!kept_) {
    kept_ = std::make_unique<pugi::xml_document>();
    kept_->append_child("Kept");
  }
  return kept_->first_child();
}

void Leftovers::Take(pugi::xml_node node, std::initializer_list<std::string_view> knownAttributes,
                     std::initializer_list<std::string_view> knownElements) {
  kept_.reset();
  for (auto attribute = node.first_attribute(); attribute; attribute = attribute.next_attribute()) {
    if (!Holds(knownAttributes, attribute.name())) Holder().append_copy(attribute);
  }
  for (auto child = node.first_child(); child; child = child.next_sibling()) {
    if (!IsKnown(child, knownElements)) Holder().append_copy(child);
  }
}

void Leftovers::Add(pugi::xml_node element) { Holder().append_copy(element); }

void Leftovers::Restore(pugi::xml_node node) const {
  if (!kept_) return;
  const auto holder = kept_->first_child();
  for (const auto attribute : holder.attributes()) {
    if (!node.attribute(attribute.name())) node.append_copy(attribute);
  }
  for (const auto child : holder.children()) node.append_copy(child);
}

}  // namespace bench

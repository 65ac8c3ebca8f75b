#include "host/xml/UnknownXml.h"

#include <algorithm>
#include <cstdint>
#include <span>
#include <string_view>

#include "host/xml/XmlNode.h"

namespace host::xml {
namespace {

/// Finds known things by their names. Nearly all files hold them in the order in which they are listed.
template <class Known>
class InOrder {
 public:
  explicit InOrder(std::span<const Known> all)
      : begin_(all.data()), end_(begin_ + all.size()), next_(begin_) {}

  /// Nothing when it is not known.
  const Known* Find(const char* name) {
    const auto has = [name](const Known& known) { return xml::SameName(NameOf(known), name); };
    if (next_ == end_ || !has(*next_)) next_ = std::find_if(begin_, end_, has);
    return next_ == end_ ? nullptr : next_++;
  }

 private:
  static const char* NameOf(const char* known) { return known; }
  static const char* NameOf(const UnknownXml::Attribute& known) { return known.name; }

  const Known* begin_;
  const Known* end_;
  const Known* next_;
};

/// The line breaks and blanks in an element that holds nothing else: how it was laid out, no part of it.
bool IsLayout(pugi::xml_node node) {
  return node.type() == pugi::node_pcdata &&
         std::string_view(node.value()).find_first_not_of(" \t\r\n") == std::string_view::npos;
}

}  // namespace

UnknownXml::UnknownXml(const UnknownXml& other) { *this = other; }

UnknownXml& UnknownXml::operator=(const UnknownXml& other) {
  if (this == &other) return *this;
  kept_.reset();
  if (other.kept_) {
    kept_ = std::make_unique<pugi::xml_document>();
    kept_->reset(*other.kept_);
  }
  return *this;
}

pugi::xml_node UnknownXml::Holder() {
  if (!kept_) {
    kept_ = std::make_unique<pugi::xml_document>();
    kept_->append_child("Kept");
  }
  return kept_->first_child();
}

void UnknownXml::Take(pugi::xml_node node, std::initializer_list<Attribute> knownAttributes,
                      std::initializer_list<const char*> knownElements) {
  TakeAttributes(node, knownAttributes);
  InOrder<const char*> elements({knownElements.begin(), knownElements.size()});
  for (auto child = node.first_child(); child; child = child.next_sibling()) {
    const bool element = child.type() == pugi::node_element;
    if (!element || !elements.Find(child.name())) Add(child);
  }
}

void UnknownXml::TakeAttributes(pugi::xml_node node, std::initializer_list<Attribute> known) {
  kept_.reset();
  InOrder<Attribute> attributes({known.begin(), known.size()});
  std::uint32_t seen = 0;
  for (auto attribute = node.first_attribute(); attribute; attribute = attribute.next_attribute()) {
    const auto* found = attributes.Find(attribute.name());
    if (!found) {
      Holder().append_copy(attribute);
      continue;
    }
    const auto bit = std::uint32_t{1} << (found - known.begin());
    // Which of the two was meant cannot be known, and the other would be lost.
    if (seen & bit) throw XmlError(node, xml::AttributeTwice(attribute));
    seen |= bit;
    if (found->value) *found->value = attribute.value();
  }
}

void UnknownXml::Add(pugi::xml_node child) {
  if (child.type() != pugi::node_declaration && !IsLayout(child)) Holder().append_copy(child);
}

void UnknownXml::Restore(pugi::xml_node node) const {
  if (!kept_) return;
  const auto holder = kept_->first_child();
  for (const auto attribute : holder.attributes()) {
    if (!node.attribute(attribute.name())) node.append_copy(attribute);
  }
  for (const auto child : holder.children()) node.append_copy(child);
}

}  // namespace host::xml

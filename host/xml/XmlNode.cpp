#include "host/xml/XmlNode.h"

#include <algorithm>
#include <array>
#include <typeinfo>

#include "OrvikTypeLib/As.h"
#include "host/base/Text.h"
#include "host/base/Tr.h"

namespace host::xml {
namespace {

constexpr char kNodeSource[] = "OrvikTypeLib.XmlNode";

bool IsText(pugi::xml_node node) {
  return node.type() == pugi::node_pcdata || node.type() == pugi::node_cdata;
}

void RequireName(const std::string& name) {
  if (!xml::IsName(name))
    throw orvik::HostError(orvik::HostError::kInvalidArgument, kNodeSource,
                           Tr("\"%%1\" cannot be the name of an element or attribute", {name}));
}

/// Gives a node or an attribute the text, as far as a file can hold it.
template <class Target>
void SetValue(Target target, const std::string& text) {
  if (InvalidUtf8(text) == std::string::npos) {
    target.set_value(text.data(), text.size());
  } else {
    target.set_value(ValidUtf8(text).c_str());
  }
}

constexpr bool StartsName(unsigned char letter) {
  return (letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z') || letter == '_' ||
         letter == ':' || letter >= 0x80;
}

/// Whether a letter is valid in a name; names are checked at every write.
constexpr auto kInName = [] {
  std::array<bool, 256> table{};
  for (unsigned letter = 0; letter < table.size(); ++letter)
    table[letter] = StartsName(static_cast<unsigned char>(letter)) || (letter >= '0' && letter <= '9') ||
                    letter == '-' || letter == '.';
  return table;
}();

}  // namespace

pugi::xml_node ElementFrom(pugi::xml_node node) {
  while (node && node.type() != pugi::node_element) node = node.next_sibling();
  return node;
}

pugi::xml_node NextInDocument(pugi::xml_node element, pugi::xml_node top) {
  if (const auto child = FirstElement(element)) return child;
  while (element && element != top) {
    if (const auto next = NextElement(element)) return next;
    element = element.parent();
  }
  return {};
}

std::string Text(pugi::xml_node element) {
  const auto first = element.first_child();
  if (!first.next_sibling()) return IsText(first) ? first.value() : std::string();
  std::string text;
  for (auto child = first; child; child = child.next_sibling()) {
    if (IsText(child)) text += child.value();
  }
  return text;
}

void SetText(pugi::xml_node element, const std::string& text) {
  for (auto child = element.first_child(); child;) {
    const auto next = child.next_sibling();
    if (IsText(child)) element.remove_child(child);
    child = next;
  }
  if (!text.empty()) SetValue(element.prepend_child(pugi::node_pcdata), text);
}

void SetAttribute(pugi::xml_node element, const char* name, const std::string& value) {
  if (const auto attribute = element.attribute(name)) {
    SetValue(attribute, value);
  } else {
    AddAttribute(element, name, value);
  }
}

void AddAttribute(pugi::xml_node element, const char* name, const std::string& value) {
  SetValue(element.append_attribute(name), value);
}

std::string AttributeTwice(pugi::xml_attribute attribute) {
  return Tr("the attribute \"%%1\" stands twice; remove one", {attribute.name()});
}

pugi::xml_node AddElement(pugi::xml_node parent, const std::string& name) {
  RequireName(name);
  return parent.append_child(name.c_str());
}

bool IsName(const std::string& name) {
  return !name.empty() && StartsName(static_cast<unsigned char>(name.front())) &&
         std::all_of(name.begin(), name.end(),
                     [](char letter) { return kInName[static_cast<unsigned char>(letter)]; });
}

std::int32_t NumberAttribute(pugi::xml_node element, const char* name) {
  return NumberIn(element.attribute(name).value(), element, name);
}

std::int32_t NumberIn(const char* text, pugi::xml_node element, const char* name) {
  const auto number = WholeNumber(text);
  if (!number)
    throw XmlError(element,
                   Tr("the attribute \"%%1\" of \"%%2\" is not a whole number", {name, element.name()}));
  return *number;
}

std::shared_ptr<XmlNode> XmlNode::Create(std::shared_ptr<pugi::xml_document> document, pugi::xml_node node) {
  return std::make_shared<XmlNode>(std::move(document), node);
}

const XmlNode& XmlNode::Of(const std::shared_ptr<orvik::IXmlNode>& node) {
  const auto& any = orvik::Required(node);
  // The class is final, so comparing the type is enough.
  if (typeid(any) != typeid(XmlNode))
    throw orvik::HostError(orvik::HostError::kTypeMismatch, kNodeSource,
                           Tr("the node is not one of this host's"));
  return static_cast<const XmlNode&>(any);
}

std::shared_ptr<orvik::IXmlNode> XmlNode::Wrap(pugi::xml_node node) const {
  return node ? Create(document_, node) : nullptr;
}

const std::shared_ptr<orvik::IXmlNode>& XmlReference::To(pugi::xml_node node) {
  if (reference_.use_count() == 1) {
    node_->node_ = node;
  } else {
    auto fresh = XmlNode::Create(document_, node);
    node_ = fresh.get();
    reference_ = std::move(fresh);
  }
  return reference_;
}

std::string XmlNode::IXmlNode_Name() const { return node_.name(); }

void XmlNode::IXmlNode_SetName(const std::string& sName) {
  RequireName(sName);
  node_.set_name(sName.c_str());
}

std::string XmlNode::IXmlNode_Text() const { return xml::Text(node_); }

void XmlNode::IXmlNode_SetText(const std::string& sText) { xml::SetText(node_, sText); }

bool XmlNode::IXmlNode_HasAttribute(const std::string& sName) const {
  return !node_.attribute(sName.c_str()).empty();
}

std::string XmlNode::IXmlNode_Attribute(const std::string& sName) const {
  return node_.attribute(sName.c_str()).value();
}

void XmlNode::IXmlNode_SetAttribute(const std::string& sName, const std::string& sValue) {
  RequireName(sName);
  xml::SetAttribute(node_, sName.c_str(), sValue);
}

std::int32_t XmlNode::IXmlNode_ChildCount() const {
  std::int32_t count = 0;
  for (auto child = xml::FirstElement(node_); child; child = xml::NextElement(child)) ++count;
  return count;
}

std::shared_ptr<orvik::IXmlNode> XmlNode::IXmlNode_FirstChild() const {
  return Wrap(xml::FirstElement(node_));
}

std::shared_ptr<orvik::IXmlNode> XmlNode::IXmlNode_NextSibling() const {
  return Wrap(xml::NextElement(node_));
}

void XmlNode::IXmlNode_ForEachChild(const Visitor& Visit) const {
  XmlReference reference(document_);
  std::string name;
  for (auto child = xml::FirstElement(node_); child;) {
    const auto next = xml::NextElement(child);  // the visitor may move the child
    name = child.name();
    Visit(name, reference.To(child));
    child = next;
  }
}

std::shared_ptr<orvik::IXmlNode> XmlNode::IXmlNode_FindChild(const std::string& sName) const {
  return Wrap(node_.child(sName.c_str()));
}

std::shared_ptr<orvik::IXmlNode> XmlNode::IXmlNode_AddChild(const std::string& sName) {
  return Wrap(xml::AddElement(node_, sName));
}

void XmlNode::IXmlNode_Append(std::shared_ptr<IXmlNode> Node) {
  const XmlNode& added = Of(Node);
  if (added.document_ != document_)
    throw orvik::HostError(orvik::HostError::kInvalidArgument, kNodeSource,
                           Tr("the node \"%%1\" belongs to another document", {Node->Name()}));
  if (added.node_.parent() == node_ && !xml::NextElement(added.node_)) return;
  if (!node_.append_move(added.node_))
    throw orvik::HostError(orvik::HostError::kInvalidArgument, kNodeSource,
                           Tr("the node \"%%1\" stands above the one it is to be put below", {Node->Name()}));
}

}  // namespace host::xml

#pragma once

#include <memory>
#include <pugixml.hpp>
#include <string>

#include "OrvikTypeLib/HostError.h"
#include "OrvikTypeLib/IXmlNode.h"

namespace host::xml {

/// One element of a document. It keeps the document alive.
class XmlNode final : public orvik::IXmlNode {
 public:
  /// Use `Create`.
  XmlNode(std::shared_ptr<pugi::xml_document> document, pugi::xml_node node)
      : document_(std::move(document)), node_(node) {}

  static std::shared_ptr<XmlNode> Create(std::shared_ptr<pugi::xml_document> document, pugi::xml_node node);

  /// The node behind a reference; `HostError` 91 for an empty one and 13 for a node of another library.
  static const XmlNode& Of(const std::shared_ptr<orvik::IXmlNode>& node);

  const std::shared_ptr<pugi::xml_document>& Document() const { return document_; }
  pugi::xml_node Raw() const { return node_; }
  /// Another node of the same document; empty for an empty one.
  std::shared_ptr<IXmlNode> Wrap(pugi::xml_node node) const;

 private:
  friend class XmlReference;

  std::string IXmlNode_Name() const override;
  void IXmlNode_SetName(const std::string& sName) override;
  std::string IXmlNode_Text() const override;
  void IXmlNode_SetText(const std::string& sText) override;
  bool IXmlNode_HasAttribute(const std::string& sName) const override;
  std::string IXmlNode_Attribute(const std::string& sName) const override;
  void IXmlNode_SetAttribute(const std::string& sName, const std::string& sValue) override;
  std::int32_t IXmlNode_ChildCount() const override;
  std::shared_ptr<IXmlNode> IXmlNode_FirstChild() const override;
  std::shared_ptr<IXmlNode> IXmlNode_NextSibling() const override;
  void IXmlNode_ForEachChild(const Visitor& Visit) const override;
  std::shared_ptr<IXmlNode> IXmlNode_FindChild(const std::string& sName) const override;
  std::shared_ptr<IXmlNode> IXmlNode_AddChild(const std::string& sName) override;
  void IXmlNode_Append(std::shared_ptr<IXmlNode> Node) override;

  std::shared_ptr<pugi::xml_document> document_;
  pugi::xml_node node_;
};

/// A reusable reference to the nodes of a document. A caller that keeps the returned reference keeps its
/// node: the next call then creates a new one.
class XmlReference {
 public:
  explicit XmlReference(std::shared_ptr<pugi::xml_document> document) : document_(std::move(document)) {}

  /// @param node must not be empty
  const std::shared_ptr<orvik::IXmlNode>& To(pugi::xml_node node);

 private:
  std::shared_ptr<pugi::xml_document> document_;
  std::shared_ptr<orvik::IXmlNode> reference_;
  XmlNode* node_ = nullptr;
};

/// A fault in what a node holds, and where the node is in the source it was read from.
class XmlError final : public orvik::HostError {
 public:
  XmlError(pugi::xml_node node, const std::string& description)
      : HostError(kTypeMismatch, "OrvikTypeLib.XmlNode", description), offset_(node.offset_debug()) {}

  /// In bytes; -1 for a node that was not read from a source.
  std::ptrdiff_t Offset() const { return offset_; }

 private:
  std::ptrdiff_t offset_;
};

/// Operations on raw nodes that the host's own readers and writers share.
/// The node itself when it is an element, else the next element after it; empty when there is none.
pugi::xml_node ElementFrom(pugi::xml_node node);
inline pugi::xml_node FirstElement(pugi::xml_node parent) { return ElementFrom(parent.first_child()); }
inline pugi::xml_node NextElement(pugi::xml_node element) { return ElementFrom(element.next_sibling()); }

/// Whether two names are the same. Names are short, and compared dozens of times for each element of a
/// document: a call would take longer than the comparison.
inline bool SameName(const char* one, const char* other) {
  while (*one == *other && *one != '\0') ++one, ++other;
  return *one == *other;
}

/// Whether the node is an element of that name.
inline bool IsElement(pugi::xml_node node, const char* name) {
  return node.type() == pugi::node_element && SameName(node.name(), name);
}

/// The next element in document order below `top`, or empty: a walk over any depth without recursion.
pugi::xml_node NextInDocument(pugi::xml_node element, pugi::xml_node top);

/// The whole text directly below the element.
std::string Text(pugi::xml_node element);
void SetText(pugi::xml_node element, const std::string& text);

/// Adds or replaces an attribute. NUL and invalid UTF-8 become U+FFFD.
void SetAttribute(pugi::xml_node element, const char* name, const std::string& value);

/// Adds an attribute to an element that has none of that name.
void AddAttribute(pugi::xml_node element, const char* name, const std::string& value);

/// The message for an attribute that occurs twice in its element.
std::string AttributeTwice(pugi::xml_attribute attribute);

/// Adds an element; `HostError` 5 for an invalid tag.
pugi::xml_node AddElement(pugi::xml_node parent, const std::string& name);

/// Whether the text can be a tag or the name of an attribute.
bool IsName(const std::string& name);

/// The attribute as a 32-bit number; `XmlError` naming attribute and element when it is missing or not one.
std::int32_t NumberAttribute(pugi::xml_node element, const char* name);
/// The same for an attribute that was read already.
std::int32_t NumberIn(const char* text, pugi::xml_node element, const char* name);

}  // namespace host::xml

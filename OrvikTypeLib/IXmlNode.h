#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <utility>

#include "OrvikTypeLib/IObject.h"

namespace orvik {

/// One element of an XML document. A node keeps its document alive.
///
/// Implemented by: the host. Mandatory. Since contract version 1. User-interface thread only.
class IXmlNode : public virtual IObject {
 public:
  /// Is given an element and its tag.
  using Visitor = std::function<void(const std::string& sName, const std::shared_ptr<IXmlNode>& Node)>;

  /// The element's tag.
  std::string Name() const { return IXmlNode_Name(); }
  /// Renames the element.
  void SetName(const std::string& sName) { IXmlNode_SetName(sName); }
  /// The text directly below the element; empty when there is none.
  std::string Text() const { return IXmlNode_Text(); }
  /// Replaces the text directly below the element.
  void SetText(const std::string& sText) { IXmlNode_SetText(sText); }
  /// Whether the attribute is present, even with an empty value.
  bool HasAttribute(const std::string& sName) const { return IXmlNode_HasAttribute(sName); }
  /// The attribute's value; empty when it is absent.
  std::string Attribute(const std::string& sName) const { return IXmlNode_Attribute(sName); }
  /// Adds or replaces an attribute.
  void SetAttribute(const std::string& sName, const std::string& sValue) {
    IXmlNode_SetAttribute(sName, sValue);
  }
  /// Number of child elements.
  std::int32_t ChildCount() const { return IXmlNode_ChildCount(); }
  /// The first child element, or empty.
  std::shared_ptr<IXmlNode> FirstChild() const { return IXmlNode_FirstChild(); }
  /// The next element below the same parent, or empty.
  std::shared_ptr<IXmlNode> NextSibling() const { return IXmlNode_NextSibling(); }
  /// Gives each child element to `Visit`, in order. Faster than going from sibling to sibling: a reference
  /// that `Visit` does not keep is used again for the next child.
  void ForEachChild(const Visitor& Visit) const { IXmlNode_ForEachChild(Visit); }
  /// The first child element of that tag, or empty.
  std::shared_ptr<IXmlNode> FindChild(const std::string& sName) const { return IXmlNode_FindChild(sName); }
  /// Creates an element, adds it as the last child and returns it.
  std::shared_ptr<IXmlNode> AddChild(const std::string& sName) { return IXmlNode_AddChild(sName); }
  /// Makes `Node` of the same document the last child; one that is already last stays. Empty is refused
  /// with `HostError`.
  void Append(std::shared_ptr<IXmlNode> Node) { IXmlNode_Append(std::move(Node)); }

 private:
  virtual std::string IXmlNode_Name() const = 0;
  virtual void IXmlNode_SetName(const std::string& sName) = 0;
  virtual std::string IXmlNode_Text() const = 0;
  virtual void IXmlNode_SetText(const std::string& sText) = 0;
  virtual bool IXmlNode_HasAttribute(const std::string& sName) const = 0;
  virtual std::string IXmlNode_Attribute(const std::string& sName) const = 0;
  virtual void IXmlNode_SetAttribute(const std::string& sName, const std::string& sValue) = 0;
  virtual std::int32_t IXmlNode_ChildCount() const = 0;
  virtual std::shared_ptr<IXmlNode> IXmlNode_FirstChild() const = 0;
  virtual std::shared_ptr<IXmlNode> IXmlNode_NextSibling() const = 0;
  virtual void IXmlNode_ForEachChild(const Visitor& Visit) const = 0;
  virtual std::shared_ptr<IXmlNode> IXmlNode_FindChild(const std::string& sName) const = 0;
  virtual std::shared_ptr<IXmlNode> IXmlNode_AddChild(const std::string& sName) = 0;
  virtual void IXmlNode_Append(std::shared_ptr<IXmlNode> Node) = 0;
};

}  // namespace orvik

#pragma once

#include <memory>
#include <string>

#include "OrvikTypeLib/IObject.h"

namespace orvik {

class IXmlNode;

/// An XML document (class "OrvikTypeLib.XmlDocument").
///
/// Implemented by: the host. Mandatory. Since contract version 1. User-interface thread only.
class IXmlDocument : public virtual IObject {
 public:
  /// Replaces the document by the parsed text; false, and an empty document, when it is malformed.
  /// `LastError` gives the reason.
  bool LoadFromString(const std::string& sXml) { return IXmlDocument_LoadFromString(sXml); }
  /// Why the last load failed, with line and column; empty after a good one.
  std::string LastError() const { return IXmlDocument_LastError(); }
  /// The first element of that tag in document order, at any depth, or empty.
  std::shared_ptr<IXmlNode> FindElement(const std::string& sName) const {
    return IXmlDocument_FindElement(sName);
  }
  /// Empties the document and returns its new root element.
  std::shared_ptr<IXmlNode> CreateRoot(const std::string& sName) { return IXmlDocument_CreateRoot(sName); }
  /// The root element, or empty.
  std::shared_ptr<IXmlNode> Root() const { return IXmlDocument_Root(); }
  /// The document as text, UTF-8, indented by two blanks.
  std::string SaveToString() const { return IXmlDocument_SaveToString(); }

 private:
  virtual bool IXmlDocument_LoadFromString(const std::string& sXml) = 0;
  virtual std::string IXmlDocument_LastError() const = 0;
  virtual std::shared_ptr<IXmlNode> IXmlDocument_FindElement(const std::string& sName) const = 0;
  virtual std::shared_ptr<IXmlNode> IXmlDocument_CreateRoot(const std::string& sName) = 0;
  virtual std::shared_ptr<IXmlNode> IXmlDocument_Root() const = 0;
  virtual std::string IXmlDocument_SaveToString() const = 0;
};

}  // namespace orvik

#pragma once

#include <memory>
#include <pugixml.hpp>
#include <string>
#include <string_view>

#include "OrvikTypeLib/IXmlDocument.h"

namespace host::xml {

/// An XML document. Nodes that were handed out before a load keep the document they belong to.
class XmlDocument final : public orvik::IXmlDocument {
 public:
  XmlDocument() : document_(std::make_shared<pugi::xml_document>()) {}

  const std::shared_ptr<pugi::xml_document>& Raw() const { return document_; }

 private:
  bool IXmlDocument_LoadFromString(const std::string& sXml) override;
  std::string IXmlDocument_LastError() const override { return error_; }
  std::shared_ptr<orvik::IXmlNode> IXmlDocument_FindElement(const std::string& sName) const override;
  std::shared_ptr<orvik::IXmlNode> IXmlDocument_CreateRoot(const std::string& sName) override;
  std::shared_ptr<orvik::IXmlNode> IXmlDocument_Root() const override;
  std::string IXmlDocument_SaveToString() const override;

  std::shared_ptr<orvik::IXmlNode> Wrap(pugi::xml_node node) const;

  std::shared_ptr<pugi::xml_document> document_;
  std::string error_;
};

/// Why a text is not well-formed XML, and the byte where the fault was found.
struct Fault {
  std::size_t offset = 0;
  std::string reason;
};

/// Parses a whole document into `document`, comments included: one root element, nothing but comments and
/// white space around it.
/// @return the fault; its reason is empty when the document is well formed
Fault Parse(std::string_view text, pugi::xml_document& document);
/// The same, but `document` keeps what precedes the fault.
Fault ParseAsFarAsPossible(std::string_view text, pugi::xml_document& document);

struct Parsed {
  std::shared_ptr<pugi::xml_document> document;
  Fault fault;
};
/// The same without a copy of the text: the document owns the text, and changes it.
Parsed ParseInPlace(std::string text);

/// The number of the line, from 1, of the byte.
std::size_t LineOf(std::string_view text, std::size_t offset);

/// The document as text, UTF-8, indented by two blanks. Beyond 256 levels it is not indented: the blanks
/// would outweigh everything else.
std::string Write(const pugi::xml_document& document);
/// Adds an element to a text as it stands in a document, so many levels deep; with the blanks before it and
/// the line end behind it.
void WriteTo(std::string& text, pugi::xml_node element, unsigned depth);

}  // namespace host::xml

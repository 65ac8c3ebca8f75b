#include "host/xml/XmlDocument.h"

#include <algorithm>

#include "host/base/Tr.h"
#include "host/xml/XmlNode.h"
#include "host/xml/XmlReferences.h"

namespace host::xml {
namespace {

constexpr int kIndentedLevels = 256;
constexpr char kIndent[] = "  ";

/// Fragments are parsed so that text beside the root element is seen, and refused, instead of dropped.
constexpr unsigned kParseFlags = pugi::parse_default | pugi::parse_comments | pugi::parse_pi |
                                 pugi::parse_doctype | pugi::parse_ws_pcdata_single | pugi::parse_fragment;

std::size_t OffsetOf(pugi::xml_node node) {
  const auto offset = node.offset_debug();
  return offset < 0 ? 0 : static_cast<std::size_t>(offset);
}

Fault CheckTop(const pugi::xml_document& document, std::size_t size) {
  pugi::xml_node root;
  for (auto node = document.first_child(); node; node = node.next_sibling()) {
    if (node.type() == pugi::node_pcdata || node.type() == pugi::node_cdata) {
      const auto text = std::string_view(node.value()).find_first_not_of(" \t\r\n");
      if (text != std::string_view::npos)
        return {OffsetOf(node) + text, Tr("there is text outside the root element")};
    }
    if (node.type() == pugi::node_doctype)
      return {OffsetOf(node), Tr("a document type declaration is not supported")};
    if (node.type() != pugi::node_element) continue;
    if (root) return {OffsetOf(node), Tr("there is a second root element")};
    root = node;
  }
  if (!root) return {size, Tr("there is no root element")};
  return {};
}

/// The node itself, not those in it, holds a reference to nothing; of a tree whose references stand as they
/// are.
bool HoldsReferenceToNothing(pugi::xml_node node) {
  const auto holds = [](const char* text) { return ReferenceToNothing(text) != std::string_view::npos; };
  if (node.type() == pugi::node_pcdata) return holds(node.value());
  return std::any_of(node.attributes_begin(), node.attributes_end(),
                     [&](pugi::xml_attribute attribute) { return holds(attribute.value()); });
}

/// Where a reference to nothing stands, if not in a comment or the like; `npos` when there is none. The
/// parser makes bytes of it that end the text, or are no text.
std::size_t FindReferenceToNothing(std::string_view text) {
  if (ReferenceToNothing(text) == std::string_view::npos) return std::string_view::npos;
  pugi::xml_document asItStands;
  asItStands.load_buffer(text.data(), text.size(), kParseFlags & ~pugi::parse_escapes, pugi::encoding_utf8);
  const auto holder = asItStands.find_node(HoldsReferenceToNothing);
  return holder ? ReferenceToNothing(text, OffsetOf(holder)) : std::string_view::npos;
}

/// Parses the text by `load`, which may change it.
template <class Load>
Fault Checked(std::string_view text, const pugi::xml_document& document, Load load) {
  const auto nul = text.find('\0');
  const auto reference = FindReferenceToNothing(text);
  const pugi::xml_parse_result result = load();
  if (!result) return {static_cast<std::size_t>(result.offset < 0 ? 0 : result.offset), result.description()};
  if (nul != std::string_view::npos) return {nul, Tr("there is a NUL byte")};
  if (reference != std::string_view::npos)
    return {reference, Tr("the reference stands for no character; remove it")};
  return CheckTop(document, text.size());
}

bool DeeperThan(pugi::xml_node node, int levels) {
  struct Depth : pugi::xml_tree_walker {
    int limit = 0;
    bool for_each(pugi::xml_node&) override { return depth() <= limit; }
  } walker;
  walker.limit = levels;
  return !node.traverse(walker);
}

unsigned FormatOf(pugi::xml_node node) {
  return DeeperThan(node, kIndentedLevels) ? pugi::format_raw : pugi::format_indent;
}

/// Adds to a text. A carriage return as itself would read back as the end of a line.
class StringWriter : public pugi::xml_writer {
 public:
  explicit StringWriter(std::string& text) : text_(text) {}

  void write(const void* data, std::size_t size) override {
    std::string_view rest(static_cast<const char*>(data), size);
    for (auto end = rest.find('\r'); end != std::string_view::npos; end = rest.find('\r')) {
      text_.append(rest.substr(0, end)).append("&#13;");
      rest.remove_prefix(end + 1);
    }
    text_.append(rest);
  }

 private:
  std::string& text_;
};

}  // namespace

Fault Parse(std::string_view text, pugi::xml_document& document) {
  auto fault = ParseAsFarAsPossible(text, document);
  if (!fault.reason.empty()) document.reset();
  return fault;
}

Fault ParseAsFarAsPossible(std::string_view text, pugi::xml_document& document) {
  return Checked(text, document, [&] {
    return document.load_buffer(text.data(), text.size(), kParseFlags, pugi::encoding_utf8);
  });
}

Parsed ParseInPlace(std::string text) {
  struct Owner {
    std::string text;
    pugi::xml_document document;
  };
  const auto owner = std::make_shared<Owner>();
  owner->text = std::move(text);
  auto fault = Checked(owner->text, owner->document, [&] {
    return owner->document.load_buffer_inplace(owner->text.data(), owner->text.size(), kParseFlags,
                                               pugi::encoding_utf8);
  });
  return {{owner, &owner->document}, std::move(fault)};
}

std::size_t LineOf(std::string_view text, std::size_t offset) {
  const auto end = text.begin() + static_cast<std::ptrdiff_t>(std::min(offset, text.size()));
  return 1 + static_cast<std::size_t>(std::count(text.begin(), end, '\n'));
}

std::string Write(const pugi::xml_document& document) {
  std::string text;
  StringWriter writer(text);
  document.save(writer, kIndent, FormatOf(document.root()), pugi::encoding_utf8);
  return text;
}

void WriteTo(std::string& text, pugi::xml_node element, unsigned depth) {
  StringWriter writer(text);
  element.print(writer, kIndent, FormatOf(element), pugi::encoding_utf8, depth);
}

bool XmlDocument::IXmlDocument_LoadFromString(const std::string& sXml) {
  document_ = std::make_shared<pugi::xml_document>();
  const auto fault = xml::Parse(sXml, *document_);
  error_.clear();
  if (fault.reason.empty()) return true;
  const auto offset = std::min(fault.offset, sXml.size());
  const auto lineStart = offset == 0 ? std::string::npos : sXml.rfind('\n', offset - 1);
  const auto column = offset - (lineStart == std::string::npos ? 0 : lineStart + 1) + 1;
  error_ = Tr("line %%1, column %%2: %%3",
              {std::to_string(xml::LineOf(sXml, offset)), std::to_string(column), fault.reason});
  return false;
}

std::shared_ptr<orvik::IXmlNode> XmlDocument::Wrap(pugi::xml_node node) const {
  return node ? XmlNode::Create(document_, node) : nullptr;
}

std::shared_ptr<orvik::IXmlNode> XmlDocument::IXmlDocument_FindElement(const std::string& sName) const {
  const auto root = document_->document_element();
  for (auto node = root; node; node = xml::NextInDocument(node, root)) {
    if (sName == node.name()) return Wrap(node);
  }
  return nullptr;
}

std::shared_ptr<orvik::IXmlNode> XmlDocument::IXmlDocument_CreateRoot(const std::string& sName) {
  document_ = std::make_shared<pugi::xml_document>();
  error_.clear();
  return Wrap(xml::AddElement(*document_, sName));
}

std::shared_ptr<orvik::IXmlNode> XmlDocument::IXmlDocument_Root() const {
  return Wrap(document_->document_element());
}

std::string XmlDocument::IXmlDocument_SaveToString() const { return xml::Write(*document_); }

}  // namespace host::xml

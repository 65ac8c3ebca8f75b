#include "host/document/KnownParts.h"

#include <algorithm>
#include <set>

#include "host/base/Tr.h"
#include "host/document/Findings.h"
#include "host/xml/XmlNode.h"

namespace host::document {

void NoteUnknown(pugi::xml_node node, std::initializer_list<std::string_view> attributes,
                 std::span<const std::string_view> elements, Findings& findings) {
  const auto isOneOf = [](const auto& names, std::string_view name) {
    return std::find(names.begin(), names.end(), name) != names.end();
  };
  std::set<std::string_view> seen;
  for (const auto attribute : node.attributes()) {
    if (!seen.insert(attribute.name()).second) findings.Wrong(node, xml::AttributeTwice(attribute));
    if (!isOneOf(attributes, attribute.name()))
      findings.Note(node, Tr("the attribute \"%%1\" of \"%%2\" is not known; it is kept",
                             {attribute.name(), node.name()}));
  }
  for (const auto child : node.children()) {
    if (child.type() == pugi::node_element && !isOneOf(elements, child.name()))
      findings.Note(child, Tr("the element \"%%1\" is not known; it is kept", {child.name()}));
  }
}

}  // namespace host::document

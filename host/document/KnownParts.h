#pragma once

#include <initializer_list>
#include <pugixml.hpp>
#include <span>
#include <string_view>

namespace host::document {

class Findings;

/// The sections of a document.
inline constexpr std::string_view kDocumentSections[] = {"Equipment", "Standards", "Instruments", "Elements",
                                                         "Runs"};

/// Notes the attributes and elements of the node that are not known. The loader keeps them.
void NoteUnknown(pugi::xml_node node, std::initializer_list<std::string_view> attributes,
                 std::span<const std::string_view> elements, Findings& findings);

inline void NoteUnknown(pugi::xml_node node, std::initializer_list<std::string_view> attributes,
                        std::initializer_list<std::string_view> elements, Findings& findings) {
  NoteUnknown(node, attributes, std::span(elements.begin(), elements.size()), findings);
}

}  // namespace host::document

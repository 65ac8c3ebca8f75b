#pragma once

#include <functional>
#include <pugixml.hpp>

namespace host::document {

/// Visits the saved elements below the node in document order. Nesting of any depth takes no stack.
void ForEachSavedElement(pugi::xml_node elements, const std::function<void(pugi::xml_node)>& visit);

/// Takes away from saved elements everything that is not planned: results, when and by whom they were made,
/// doubts about them, and any unknown XML, which may belong to those. Identity, texts,
/// settings, limits and the marks "print" and "record only" stay.
/// @param elements the node above the saved elements
void KeepPlanAlone(pugi::xml_node elements);

}  // namespace host::document

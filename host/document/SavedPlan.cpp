#include "host/document/SavedPlan.h"

#include <algorithm>
#include <initializer_list>
#include <string_view>

#include "host/elements/ElementTags.h"

namespace host::document {
namespace {

using Names = std::initializer_list<std::string_view>;

bool Among(Names names, std::string_view name) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

void KeepAttributes(pugi::xml_node node, Names kept) {
  for (auto attribute = node.first_attribute(); attribute;) {
    const auto next = attribute.next_attribute();
    if (!Among(kept, attribute.name())) node.remove_attribute(attribute);
    attribute = next;
  }
}

void KeepChildren(pugi::xml_node node, Names kept) {
  for (auto child = node.first_child(); child;) {
    const auto next = child.next_sibling();
    if (child.type() != pugi::node_element || !Among(kept, child.name())) node.remove_child(child);
    child = next;
  }
}

void KeepPlanOf(pugi::xml_node element) {
  KeepAttributes(element, {elements::tags::kID, elements::tags::kTestID, elements::tags::kPlugInID,
                           elements::tags::kClass});
  KeepChildren(element,
               {elements::tags::kInformation, elements::tags::kAuxiliary, elements::tags::kConfiguration,
                elements::tags::kExpectedResult, elements::tags::kTestElement});
  const auto marks = element.child(elements::tags::kAuxiliary);
  KeepAttributes(marks, {elements::tags::kPrint, elements::tags::kRecordOnly});
  KeepChildren(marks, {});
}

}  // namespace

void ForEachSavedElement(pugi::xml_node elements, const std::function<void(pugi::xml_node)>& visit) {
  auto element = elements;
  while (true) {
    auto next = element.child(elements::tags::kTestElement);
    while (!next && element != elements) {
      next = element.next_sibling(elements::tags::kTestElement);
      if (!next) element = element.parent();
    }
    if (!next) return;
    element = next;
    visit(element);
  }
}

void KeepPlanAlone(pugi::xml_node elements) { ForEachSavedElement(elements, KeepPlanOf); }

}  // namespace host::document

#include "host/document/SavedElements.h"

#include <algorithm>
#include <string>

#include "host/base/Tr.h"
#include "host/elements/ElementTags.h"
#include "host/elements/Nesting.h"
#include "host/xml/XmlNode.h"

namespace host::document {
namespace {

/// The next saved element in document order below `top`; `depth` follows.
pugi::xml_node Next(pugi::xml_node element, pugi::xml_node top, int& depth) {
  if (const auto child = element.child(elements::tags::kTestElement)) {
    ++depth;
    return child;
  }
  while (element != top) {
    if (const auto next = element.next_sibling(elements::tags::kTestElement)) return next;
    element = element.parent();
    --depth;
  }
  return {};
}

}  // namespace

void SavedElements::Check(pugi::xml_node top) {
  int depth = 1;
  for (auto element = top; element; element = Next(element, top, depth)) {
    if (depth > elements::kDeepestNesting)
      throw xml::XmlError(element, Tr("elements are nested more than %%1 levels deep",
                                      {std::to_string(elements::kDeepestNesting)}));
    const auto id = xml::NumberAttribute(element, elements::tags::kID);
    if (id < 1) throw xml::XmlError(element, Tr("the identifier %%1 is below 1", {std::to_string(id)}));
    if (!ids_.insert(id).second)
      throw xml::XmlError(element, Tr("the identifier %%1 is used twice", {std::to_string(id)}));
    highestId_ = std::max(highestId_, id);
  }
}

}  // namespace host::document

#include "host/bench/DocumentElements.h"

#include <algorithm>

#include "host/base/TextColumns.h"
#include "host/base/Tr.h"
#include "host/base/VisibleText.h"
#include "host/bench/InputError.h"
#include "host/document/Document.h"
#include "host/document/ElementText.h"
#include "host/document/ElementWalk.h"

namespace host::bench {

using Element = std::shared_ptr<orvik::ITestElement>;

Element ElementFor(const document::Document& document, const std::string& option, std::int32_t id) {
  auto element = document.Find(id);
  if (!element)
    throw InputError(
        Tr("%%1 %%2: %%3 has no such element", {option, std::to_string(id), document.Path().string()}));
  return element;
}

std::vector<Element> ElementsFor(const document::Document& document, const std::string& option,
                                 const std::vector<std::int32_t>& ids) {
  std::vector<Element> elements;
  for (const auto id : ids) {
    auto element = ElementFor(document, option, id);
    if (std::find(elements.begin(), elements.end(), element) == elements.end())
      elements.push_back(std::move(element));
  }
  return elements;
}

std::string ListOf(const Element& top, const elements::ElementFactory& factory) {
  std::string list;
  document::WalkElements(top, [&](const Element& element) {
    list += LeftPadded(std::to_string(element->ID()), 4) + "  " +
            LeftPadded(std::to_string(element->TestID()), 4) + "  " +
            host::VisibleText(document::ElementName(*element, factory)) + "\n";
  });
  return list;
}

std::string NameWithNumber(orvik::ITestElement& element, const elements::ElementFactory& factory) {
  return Tr("element %%1 (%%2)",
            {std::to_string(element.ID()), host::VisibleText(document::ElementName(element, factory))});
}

}  // namespace host::bench

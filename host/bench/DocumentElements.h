#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "OrvikTypeLib/ITestElement.h"

namespace host::document {
class Document;
}
namespace host::elements {
class ElementFactory;
}

namespace host::bench {

/// The element that an option names. `InputError` naming option and document when there is none.
/// @param option such as "--element"
std::shared_ptr<orvik::ITestElement> ElementFor(const document::Document& document, const std::string& option,
                                                std::int32_t id);
/// These elements in the order given, each once.
std::vector<std::shared_ptr<orvik::ITestElement>> ElementsFor(const document::Document& document,
                                                              const std::string& option,
                                                              const std::vector<std::int32_t>& ids);

/// A line for the element and for each below it: identifier, test and name.
std::string ListOf(const std::shared_ptr<orvik::ITestElement>& top, const elements::ElementFactory& factory);

/// "element 3 (Earth leakage, NC)"
std::string NameWithNumber(orvik::ITestElement& element, const elements::ElementFactory& factory);

}  // namespace host::bench

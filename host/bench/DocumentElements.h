#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "OrvikTypeLib/ITestElement.h"

namespace bench {

class Document;
class ElementFactory;

/// The element that an option names. `InputError` naming option and document when there is none.
/// @param option such as "--element"
std::shared_ptr<orvik::ITestElement> ElementFor(const Document& document, const std::string& option,
                                                std::int32_t id);
/// These elements in the order given, each once.
std::vector<std::shared_ptr<orvik::ITestElement>> ElementsFor(const Document& document,
                                                              const std::string& option,
                                                              const std::vector<std::int32_t>& ids);

/// A line for the element and for each below it: identifier, test and name.
std::string ListOf(const std::shared_ptr<orvik::ITestElement>& top, const ElementFactory& factory);

/// "element 3 (Earth leakage, NC)"
std::string NameWithNumber(orvik::ITestElement& element, const ElementFactory& factory);

}  // namespace bench

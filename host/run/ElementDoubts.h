#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "OrvikTypeLib/IInstrumentColl.h"
#include "OrvikTypeLib/ITestElement.h"

namespace bench {

class ElementFactory;

/// What the host holds against the element's result; saved with the element.
std::vector<std::string> DoubtsOf(const std::shared_ptr<orvik::ITestElement>& element,
                                  const ElementFactory& factory);
void SetDoubts(const std::shared_ptr<orvik::ITestElement>& element, const ElementFactory& factory,
               const std::vector<std::string>& doubts);

/// A doubt about the unit of a reading: it was compared with limits in another unit. Limits are compared by
/// number alone, so nobody else would notice. Empty when there is none.
std::string UnitDoubt(const orvik::ITestElement& element);

/// A doubt about the test leads, whose resistance is taken away from a reading of the protective earth: a
/// reading below it becomes 0, which passes whatever the earth is. Empty when there is none.
/// @param ohms the reading as the tester told it
std::string LeadsDoubt(const orvik::ITestElement& element,
                       const std::shared_ptr<orvik::IInstrumentColl>& instruments,
                       std::optional<double> ohms);

}  // namespace bench

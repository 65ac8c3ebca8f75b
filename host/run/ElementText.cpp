#include "host/run/ElementText.h"

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/IInformationRecord.h"
#include "host/elements/ElementFactory.h"
#include "host/services/Tr.h"

namespace bench {

std::string ElementName(orvik::ITestElement& element, const ElementFactory& factory) {
  const auto base = factory.BaseOf(orvik::As<orvik::ITestElement>(element.shared_from_this()));
  if (const auto information = base ? base->Information() : nullptr) {
    if (!information->DisplayName().empty()) return information->DisplayName();
    if (!information->SecondText().empty()) return information->SecondText();
  }
  return Tr("test %%1", {std::to_string(element.TestID())});
}

}  // namespace bench

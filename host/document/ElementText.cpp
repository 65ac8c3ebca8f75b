#include "host/document/ElementText.h"

#include "OrvikTypeLib/As.h"
#include "OrvikTypeLib/IInformationRecord.h"
#include "host/base/Tr.h"
#include "host/elements/ElementFactory.h"

namespace host::document {

std::string ElementName(orvik::ITestElement& element, const elements::ElementFactory& factory) {
  const auto base = factory.BaseOf(orvik::As<orvik::ITestElement>(element.shared_from_this()));
  if (const auto information = base ? base->Information() : nullptr) {
    if (!information->DisplayName().empty()) return information->DisplayName();
    if (!information->SecondText().empty()) return information->SecondText();
  }
  return Tr("test %%1", {std::to_string(element.TestID())});
}

}  // namespace host::document

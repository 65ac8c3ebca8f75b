#pragma once

#include <memory>
#include <pugixml.hpp>

#include "host/elements/TestElement.h"

namespace host::elements {

/// A saved element whose plug-in is missing. It is shown as unknown, cannot be run, and is saved as it was
/// read, with everything below it.
class UnknownElement final : public TestElement {
 public:
  using TestElement::TestElement;

 private:
  std::shared_ptr<ITestElement> ITestElement_Clone() const override;
  void ITestElement_Load(std::shared_ptr<orvik::IXmlNode> Node, std::shared_ptr<IObject> Context) override;
  std::shared_ptr<orvik::IXmlNode> ITestElement_Save(std::shared_ptr<orvik::IXmlNode> Parent) const override;

  pugi::xml_document saved_;
};

}  // namespace host::elements

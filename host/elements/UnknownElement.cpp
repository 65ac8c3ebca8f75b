#include "host/elements/UnknownElement.h"

#include "OrvikTypeLib/As.h"
#include "host/base/Tr.h"
#include "host/elements/ElementTags.h"
#include "host/xml/XmlNode.h"

namespace host::elements {

std::shared_ptr<orvik::ITestElement> UnknownElement::ITestElement_Clone() const {
  const auto factory = Factory();
  auto copy = std::make_shared<UnknownElement>(factory);
  CopyIdentity(*copy);
  copy->saved_.reset(saved_);
  return copy;
}

void UnknownElement::ITestElement_Load(std::shared_ptr<orvik::IXmlNode> Node, std::shared_ptr<IObject>) {
  const auto node = xml::XmlNode::Of(Node).Raw();
  LoadIdentity(node);
  saved_.reset();
  saved_.append_copy(node);
  const std::string name = node.child(tags::kInformation).attribute(tags::kDisplayName).value();
  const auto shown = name.empty() ? Tr("test %%1", {std::to_string(TestID())}) : name;
  Texts().SetDisplayName(Tr("%%1 (unknown: the plug-in \"%%2\" is missing)", {shown, PlugInID()}));
}

std::shared_ptr<orvik::IXmlNode> UnknownElement::ITestElement_Save(
    std::shared_ptr<orvik::IXmlNode> Parent) const {
  const auto& parent = xml::XmlNode::Of(Parent);
  auto node = parent.Raw().append_copy(saved_.document_element());
  xml::SetAttribute(node, tags::kID, std::to_string(ID()));
  return xml::XmlNode::Create(parent.Document(), node);
}

}  // namespace host::elements
